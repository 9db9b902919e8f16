#include "config/document_trajet.h"

#include "config/ecriture.h"
#include "config/fige.h"
#include "config/lecteur_trajet.h"
#include "config/ligne.h"
#include "config/ligne_trajet.h"
#include "config/style_trajet.h"
#include "sim/actions.h"

#include <algorithm>
#include <cmath>

namespace {

bool est_courte(std::string_view cle) {
    const actions::Action* const action = actions::trouver(cle);
    return action != nullptr && action->mot.empty();
}

bool est_action(const Fiche& e) {
    return e.cle != "INIT";
}

std::string trop_d_actions() {
    return "Le trajet ne peut pas avoir plus de " + std::to_string(actions_max) + " actions";
}

/// Brings the key to its ten characters, the numbers that it lacks to 0. @throws ErreurExecution
void verifier_fiche(Fiche& e) {
    if (actions::trouver(Nom10(e.cle)) == nullptr)
        throw ErreurExecution("« " + e.cle + " » n'est pas une action");
    e.cle = Nom10(e.cle).sans_blancs();
    const std::size_t n = DocumentTrajet::champs(e.cle);
    for (std::size_t i = 0; i < n; ++i)
        if (!(std::fabs(e.v[i]) <= 32768 && e.v[i] < 32768 && std::trunc(e.v[i]) == e.v[i]))
            throw ErreurConversion(texte_simple(e.v[i]), "un nombre entier de -32768 à 32767");
    std::fill(e.v.begin() + static_cast<std::ptrdiff_t>(n), e.v.end(), 0.0F);
    e.texte.clear();
}

} // namespace

std::string cle_jouee(std::string_view cle) {
    if (!est_courte(cle))
        return std::string(cle);
    return std::string(cle == "BD" ? actions::BALISE_DRO.vue() : actions::BALISE_GAU.vue());
}

std::size_t DocumentTrajet::champs(std::string_view cle) {
    return static_cast<std::size_t>(parametres_de_trajet(Nom10(cle)).value_or(0));
}

FicheLue fiche_trajet(std::string_view ligne) {
    const Nom10 code = code_de_trajet(ligne);
    FicheLue lue{{std::string(code.sans_blancs()), {}, ""}, ""};
    if (est_courte(lue.fiche.cle) && code == Nom10(lue.fiche.cle))
        return lue;
    try {
        const LigneTrajet nombres = lire_ligne_trajet(ligne);
        std::copy(nombres.v.begin(), nombres.v.end(), lue.fiche.v.begin());
    } catch (const ErreurExecution& erreur) {
        lue.refus = erreur.what();
    }
    return lue;
}

DocumentTrajet DocumentTrajet::depuis(std::string_view octets) {
    DocumentTrajet d;
    d.lire(octets, fiche_trajet, compte_dans_un_trajet);
    return d;
}

DocumentTrajet DocumentTrajet::nouveau() {
    Ecrivain texte;
    texte.entete("trajet.ini ")
        .ligne("#")
        .description("Fichier de description du déplacement du robot", "Readme.txt")
        .ligne("Init,100,30,0")
        .ligne("FIN");
    return depuis(texte.texte());
}

DocumentTrajet DocumentTrajet::depuis_fige(std::string_view fige) {
    DocumentTrajet d;
    d.relever(fige, [](const Fiche& f) {
        Fiche verifiee = f;
        verifier_fiche(verifiee);
        return verifiee == f;
    });
    if (std::ranges::any_of(d.entrees_, [](const Entree& e) { return e.objet && !e.lu; }))
        LectureFigee::refuser();
    return d;
}

std::vector<RefusLecture> DocumentTrajet::refus(bool courtes) const {
    std::vector<RefusLecture> liste;
    int actions = 0;
    for (std::size_t r = 0; r < entrees_.size(); ++r) {
        const Entree& e = entrees_[r];
        const int ligne = static_cast<int>(r) + 1;
        if (!e.compte)
            continue;
        const bool action_de_trop = e.objet && est_action(*e.objet) && ++actions == actions_max + 1;
        if (!e.objet)
            liste.push_back({ligne, fiche_trajet(sans_commentaire(en_utf8(e.octets))).refus});
        else if (courtes && est_courte(e.objet->cle))
            liste.push_back({ligne, "« " + e.objet->cle + " » n'est pas lu par le simulateur"});
        else if (action_de_trop)
            liste.push_back({ligne, trop_d_actions()});
    }
    return liste;
}

int DocumentTrajet::nb_actions() const {
    return static_cast<int>(std::count_if(rangs_.begin(), rangs_.end(), [&](std::size_t r) {
        return est_action(*entrees_[r].objet);
    }));
}

std::optional<std::array<int, 3>> DocumentTrajet::depart() const {
    for (std::size_t i = nombre(); i-- > 0;)
        if (!est_action((*this)[i]))
            return std::array{(*this)[i].entier(0), (*this)[i].entier(1), (*this)[i].entier(2)};
    return std::nullopt;
}

// A line is made from its bytes alone, so that neither moving it nor what becomes of its neighbours
// changes it.
std::string DocumentTrajet::ligne_ecrite(std::size_t r) const {
    const Entree& e = entrees_[r];
    return e.objet == e.lu ? e.octets : retoucher_ligne_trajet(e.octets, *e.lu, *e.objet);
}

std::string DocumentTrajet::texte_de(std::size_t i) const {
    return ligne_ecrite(rangs_[i]);
}

// The nearest line above that shows a style, else the nearest below; a start pose looks at start
// poses first, an action at actions.
std::string DocumentTrajet::style_et_texte(std::size_t i, const Fiche& fiche) const {
    std::optional<StyleTrajet> autre;
    const auto essayer = [&](std::size_t k) -> std::optional<StyleTrajet> {
        auto style = StyleTrajet::de(texte_de(k), (*this)[k]);
        if (style && est_action((*this)[k]) == est_action(fiche))
            return style;
        if (style && !autre)
            autre = style;
        return std::nullopt;
    };
    for (std::size_t k = i; k-- > 0;)
        if (const auto style = essayer(k))
            return style->ecrire(fiche);
    for (std::size_t k = i; k < nombre(); ++k)
        if (const auto style = essayer(k))
            return style->ecrire(fiche);
    return autre.value_or(StyleTrajet()).ecrire(fiche);
}

void DocumentTrajet::exiger_place(int actions) const {
    if (actions > 0 && nb_actions() + actions > actions_max)
        throw ErreurExecution(trop_d_actions());
}

void DocumentTrajet::inserer(std::size_t i, const Fiche& fiche) {
    Entree nouvelle;
    nouvelle.lu = fiche;
    verifier_fiche(*nouvelle.lu);
    exiger_place(est_action(fiche) ? 1 : 0);
    nouvelle.objet = nouvelle.lu;
    nouvelle.octets = style_et_texte(i, *nouvelle.lu);
    inserer_entree(rang_pour(i), std::move(nouvelle));
}

std::size_t DocumentTrajet::inserer_lignes(std::size_t i, std::string_view texte) {
    const std::string octets = encoder(texte, encodage_);
    if (encodage_ != Encodage::utf8 && en_utf8(octets) != texte)
        throw ErreurExecution("Un caractère de ce texte n'existe pas dans l'encodage du fichier");
    DocumentTrajet lignes = depuis(octets);
    if (const auto refuses = lignes.refus(); !refuses.empty())
        throw LigneRefusee(refuses.front().ligne, refuses.front().raison);
    exiger_place(lignes.nb_actions());
    std::size_t r = rang_pour(i);
    for (Entree& ligne : lignes.entrees_) {
        const bool compte = ligne.compte;
        inserer_entree(r, std::move(ligne));
        entrees_[r++].compte = compte;
    }
    return lignes.nombre();
}

void DocumentTrajet::remplacer(std::size_t i, Fiche fiche) {
    verifier_fiche(fiche);
    if (est_action(fiche) && !est_action((*this)[i]))
        exiger_place(1);
    Document::remplacer(i, std::move(fiche));
}

std::string DocumentTrajet::texte_jouable() const {
    return assembler_les_comprises([this](std::size_t r) {
        const std::optional<Fiche>& f = entrees_[r].objet;
        return f && est_courte(f->cle) ? cle_jouee(f->cle) : ligne_ecrite(r);
    });
}

void DocumentTrajet::remplir(Etat& e, Entier16 n) const {
    Entier16 NoLigne;
    try {
        LecteurTrajet(e).lire(texte_jouable(), n, NoLigne);
    } catch (const ErreurExecution&) { // NOLINT(bugprone-empty-catch)
        // More than 1000 actions: the first 1000 are played.
    }
}

void DocumentTrajet::comparer(const DocumentTrajet& relu) const {
    const auto jouee = [](Fiche f) {
        f.cle = cle_jouee(f.cle);
        return f;
    };
    for (std::size_t i = 0; i < nombre(); ++i)
        if (est_action((*this)[i]) && (i >= relu.nombre() || jouee(relu[i]) != jouee((*this)[i])))
            throw ErreurExecution("L'action de la ligne " + std::to_string(ligne(i)) +
                                  " ne serait pas relue telle quelle");
    if (relu.nb_actions() != nb_actions() || relu.depart() != depart())
        throw ErreurExecution(
            "Le départ ou le nombre des actions ne seraient pas relus tels quels");
}

std::string DocumentTrajet::ecrire() const {
    std::string octets = assembler([this](std::size_t r) { return ligne_ecrite(r); });
    const DocumentTrajet relu = depuis(octets);
    if (const auto refus = relire(relu.texte_jouable()))
        throw ErreurExecution("Le trajet ne pourrait pas être relu (ligne " +
                              std::to_string(refus->ligne) + ") : " + refus->raison);
    comparer(relu);
    return octets;
}

std::optional<RefusLecture> DocumentTrajet::relire(std::string_view octets) {
    return refus_de([&](Entier16& NoLigne) {
        parcourir_trajet(en_utf8(std::string(octets)), NoLigne, [](const LigneTrajet&) {});
    });
}
