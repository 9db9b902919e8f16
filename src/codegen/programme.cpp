#include "codegen/programme.h"

#include "base/erreurs.h"

#include <algorithm>
#include <utility>

namespace {

constexpr std::string_view marque_utf8 = "\xEF\xBB\xBF";

std::size_t fin_de_ligne(std::string_view texte, std::size_t i) {
    while (i < texte.size() && texte[i] != '\r' && texte[i] != '\n')
        ++i;
    return i;
}

std::size_t apres_la_fin(std::string_view texte, std::size_t fin) {
    if (fin == texte.size())
        return fin;
    return fin + (texte.substr(fin).starts_with(RetourLigne) ? 2 : 1);
}

char minuscule_ascii(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c | 0x20) : c;
}

} // namespace

std::optional<LigneProgramme> LignesProgramme::suivante() {
    if (position_ >= octets_.size())
        return std::nullopt;
    LigneProgramme ligne;
    ligne.debut = position_;
    ligne.fin = fin_de_ligne(octets_, position_);
    ligne.suite = apres_la_fin(octets_, ligne.fin);
    ligne.numero = ++numero_;
    const std::size_t fin_texte = fin_de_ligne(texte_, position_texte_);
    ligne.texte = texte_.substr(position_texte_, fin_texte - position_texte_);
    position_ = ligne.suite;
    position_texte_ = apres_la_fin(texte_, fin_texte);
    return ligne;
}

Programme::Programme(std::string octets)
    : octets_(std::move(octets)),
      encodage_(encodage_de(octets_)),
      marque_(encodage_ == Encodage::utf8 && octets_.starts_with(marque_utf8) ? marque_utf8.size()
                                                                              : 0),
      texte_(encodage_ == Encodage::utf8 ? std::string() : en_utf8(octets_)) {}

LignesProgramme Programme::lignes() const {
    const std::string_view texte = encodage_ == Encodage::utf8 ? octets() : texte_;
    return {octets_, marque_, texte.substr(marque_)};
}

std::optional<std::string_view> fin_majoritaire(std::string_view octets) {
    std::size_t crlf = 0;
    std::size_t lf = 0;
    std::size_t cr = 0;
    for (std::size_t i = 0; i < octets.size(); ++i) {
        if (octets[i] == '\n') {
            ++lf;
        } else if (octets[i] == '\r') {
            const bool deux = i + 1 < octets.size() && octets[i + 1] == '\n';
            ++(deux ? crlf : cr);
            i += deux ? 1 : 0;
        }
    }
    if (crlf + lf + cr == 0)
        return std::nullopt;
    if (crlf >= lf && crlf >= cr)
        return RetourLigne;
    return lf >= cr ? "\n" : "\r";
}

std::string_view fin_manquante(std::string_view octets, std::string_view fin) {
    const bool complete = octets.empty() || octets.back() == '\n' || octets.back() == '\r';
    return complete || octets == marque_utf8 ? std::string_view() : fin;
}

std::string appliquer(const Programme& programme, const std::vector<Modification>& modifications) {
    const std::string_view octets = programme.octets();
    std::string resultat;
    resultat.reserve(octets.size() + 1024);
    std::size_t copie = 0;
    for (const Modification& m : modifications) {
        resultat += octets.substr(copie, m.debut - copie);
        resultat += encoder(m.texte, programme.encodage());
        copie = m.fin;
    }
    resultat += octets.substr(copie);
    return resultat;
}

bool contient_sans_casse(std::string_view texte, std::string_view motif) {
    return std::search(texte.begin(), texte.end(), motif.begin(), motif.end(),
                       [](char t, char m) { return minuscule_ascii(t) == m; }) != texte.end();
}

void refuser_ligne(const std::filesystem::path& fichier, std::size_t numero, std::string_view texte,
                   std::string_view raison) {
    constexpr std::size_t montres = 80;
    const std::string_view debut = premiers_caracteres(texte, montres);
    std::string message = fichier.string() + " Ligne " + std::to_string(numero) + " : « ";
    message += debut;
    message += debut.size() < texte.size() ? "… » : " : " » : ";
    message += raison;
    throw ErreurExecution(message);
}
