#include "config/document.h"

#include "base/texte_brut.h"
#include "config/fige.h"
#include "config/ligne.h"

#include <algorithm>
#include <utility>

namespace {

bool est_dans(std::string_view cle, const std::vector<std::string_view>& cles) {
    return std::find(cles.begin(), cles.end(), cle) != cles.end();
}

} // namespace

std::optional<RefusLecture> refus_de(const std::function<void(Entier16&)>& lire) {
    Entier16 NoLigne;
    try {
        lire(NoLigne);
        return std::nullopt;
    } catch (const ErreurExecution& erreur) {
        return RefusLecture{NoLigne, erreur.what()};
    }
}

int Document::compter(const std::vector<std::string_view>& cles) const {
    return static_cast<int>(std::count_if(rangs_.begin(), rangs_.end(), [&](std::size_t r) {
        return est_dans(entrees_[r].objet->cle, cles);
    }));
}

std::vector<int> Document::incomprises() const {
    std::vector<int> numeros;
    for (std::size_t r = 0; r < entrees_.size(); ++r)
        if (entrees_[r].compte && !entrees_[r].objet)
            numeros.push_back(static_cast<int>(r) + 1);
    return numeros;
}

bool Document::memes_fiches(const Document& autre) const {
    return std::equal(
        rangs_.begin(), rangs_.end(), autre.rangs_.begin(), autre.rangs_.end(),
        [&](std::size_t r, std::size_t s) { return entrees_[r].objet == autre.entrees_[s].objet; });
}

void Document::lire(std::string_view octets, const Grammaire& grammaire,
                    bool (*compte)(std::string_view)) {
    const TexteBrut brut{std::string(octets)};
    encodage_ = brut.encodage();
    prefixe_ = brut.marque();
    LignesBrutes lignes = brut.lignes();
    while (const auto ligne = lignes.suivante()) {
        Entree e;
        e.octets = brut.octets(*ligne);
        e.fin = brut.fin(*ligne);
        const std::string_view utile = sans_commentaire(ligne->texte);
        e.compte = compte(utile);
        if (e.compte)
            e.objet = e.lu = eventuelle(grammaire(utile));
        entrees_.push_back(std::move(e));
    }
    if (!entrees_.empty() && !entrees_.front().fin.empty())
        fin_usuelle_ = entrees_.front().fin;
    renumeroter();
}

void Document::renumeroter() {
    rangs_.clear();
    for (std::size_t r = 0; r < entrees_.size(); ++r)
        if (entrees_[r].objet)
            rangs_.push_back(r);
}

void Document::retirer(std::size_t i) {
    const std::size_t r = rangs_[i];
    entrees_.erase(entrees_.begin() + static_cast<std::ptrdiff_t>(r));
    renumeroter();
}

std::size_t Document::ajouter(Fiche e, const std::vector<std::string_view>& cles) {
    std::size_t r = entrees_.size();
    for (const std::size_t rang : rangs_)
        if (est_dans(entrees_[rang].objet->cle, cles))
            r = rang + 1;
    Entree nouvelle;
    nouvelle.objet = std::move(e);
    inserer_entree(r, std::move(nouvelle));
    return static_cast<std::size_t>(std::find(rangs_.begin(), rangs_.end(), r) - rangs_.begin());
}

void Document::inserer_entree(std::size_t r, Entree nouvelle) {
    if (r > 0 && entrees_[r - 1].fin.empty())
        entrees_[r - 1].fin = fin_usuelle_;
    nouvelle.fin = fin_usuelle_;
    nouvelle.compte = true;
    entrees_.insert(entrees_.begin() + static_cast<std::ptrdiff_t>(r), std::move(nouvelle));
    renumeroter();
}

std::size_t Document::rang_pour(std::size_t i) const {
    if (i < rangs_.size())
        return rangs_[i];
    return rangs_.empty() ? entrees_.size() : rangs_.back() + 1;
}

void Document::deplacer_vers(std::size_t i, std::size_t vers) {
    const auto depart = entrees_.begin() + static_cast<std::ptrdiff_t>(rangs_[i]);
    const auto arrivee = entrees_.begin() + static_cast<std::ptrdiff_t>(rangs_[vers]);
    const bool derniere_sans_fin = entrees_.back().fin.empty();
    if (derniere_sans_fin)
        entrees_.back().fin = fin_usuelle_;
    if (i < vers)
        std::rotate(depart, depart + 1, arrivee + 1);
    else
        std::rotate(arrivee, depart, depart + 1);
    if (derniere_sans_fin)
        entrees_.back().fin.clear();
    renumeroter();
}

void Document::echanger(std::size_t i, std::size_t j) {
    Entree& a = entrees_[rangs_[i]];
    Entree& b = entrees_[rangs_[j]];
    std::swap(a, b);
    std::swap(a.fin, b.fin); // the last line may have none
}

std::string Document::commentaire(const Entree& e) {
    const std::size_t debut = e.octets.find('#');
    return debut == std::string::npos ? "" : " " + e.octets.substr(debut);
}

std::string Document::composer(const Entree& e, std::size_t champs) const {
    std::string ligne = encoder(ligne_de(*e.objet, champs), encodage_);
    if (e.objet->cle != "M")
        return ligne + commentaire(e);
    // A blank before the comment would belong to the caption.
    return ligne + e.octets.substr(std::min(e.octets.find('#'), e.octets.size()));
}

std::string Document::assembler(const std::function<std::string(std::size_t)>& ecrire) const {
    std::string texte = prefixe_;
    for (std::size_t r = 0; r < entrees_.size(); ++r)
        texte.append(ecrire(r)).append(entrees_[r].fin);
    return texte;
}

std::string
Document::assembler_les_comprises(const std::function<std::string(std::size_t)>& ecrire) const {
    return en_utf8(assembler([&](std::size_t r) {
        return entrees_[r].compte && !entrees_[r].objet ? std::string("#") : ecrire(r);
    }));
}

namespace {

constexpr std::string_view aucune = "-", la_meme = "=", la_voici = "+";

void figer_fiche(const std::optional<Fiche>& f, EcritureFigee& texte) {
    texte.mettre(f ? la_voici : aucune);
    if (!f)
        return;
    texte.mettre(f->cle);
    for (const float x : f->v)
        texte.mettre(texte_simple(x).vue());
    texte.mettre(f->texte);
}

std::optional<Fiche> relever_fiche(LectureFigee& lecture, const std::optional<Fiche>& autre = {}) {
    const std::string_view sorte = lecture.suivant();
    if (sorte == la_meme && autre)
        return autre;
    if (sorte == aucune)
        return std::nullopt;
    if (sorte != la_voici)
        LectureFigee::refuser();
    Fiche f;
    f.cle = lecture.suivant();
    for (float& x : f.v)
        x = lecture.simple();
    f.texte = lecture.suivant();
    return f;
}

} // namespace

std::string Document::figer() const {
    EcritureFigee texte;
    texte.mettre(prefixe_);
    texte.mettre(encodage_ == Encodage::utf8 ? "utf8" : "1252");
    texte.mettre(fin_usuelle_);
    texte.mettre(std::to_string(entrees_.size()));
    for (const Entree& e : entrees_) {
        texte.mettre(e.octets);
        texte.mettre(e.fin);
        texte.mettre(e.compte ? "1" : "0");
        figer_fiche(e.lu, texte);
        if (e.lu && e.objet == e.lu)
            texte.mettre(la_meme);
        else
            figer_fiche(e.objet, texte);
    }
    return texte.texte();
}

void Document::relever(std::string_view fige, const std::function<bool(const Fiche&)>& possible) {
    LectureFigee lecture(fige);
    prefixe_ = lecture.suivant();
    encodage_ = lecture.suivant() == "utf8" ? Encodage::utf8 : Encodage::windows1252;
    fin_usuelle_ = lecture.suivant();
    entrees_.clear();
    for (std::size_t n = lecture.nombre(); n > 0; --n) {
        Entree e;
        e.octets = lecture.suivant();
        e.fin = lecture.suivant();
        e.compte = lecture.suivant() == "1";
        e.lu = relever_fiche(lecture);
        e.objet = relever_fiche(lecture, e.lu);
        if (e.objet && !possible(*e.objet))
            LectureFigee::refuser();
        entrees_.push_back(std::move(e));
    }
    lecture.finir();
    renumeroter();
}
