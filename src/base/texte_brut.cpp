#include "base/texte_brut.h"

#include <algorithm>
#include <utility>

LignesBrutes::LignesBrutes(std::string_view octets, std::size_t position,
                           std::optional<std::string_view> texte)
    : octets_(octets), lignes_(octets.substr(position)) {
    if (texte)
        textes_.emplace(*texte);
}

std::optional<LigneBrute> LignesBrutes::suivante() {
    const auto octets = lignes_.suivante();
    if (!octets)
        return std::nullopt;
    LigneBrute ligne;
    ligne.debut = static_cast<std::size_t>(octets->data() - octets_.data());
    ligne.fin = ligne.debut + octets->size();
    const std::size_t longueur_de_fin = octets_.substr(ligne.fin).starts_with(RetourLigne) ? 2 : 1;
    ligne.suite = std::min(ligne.fin + longueur_de_fin, octets_.size());
    ligne.numero = ++numero_;
    ligne.texte = textes_ ? textes_->suivante().value_or("") : *octets;
    return ligne;
}

TexteBrut::TexteBrut(std::string octets)
    : octets_(std::move(octets)),
      encodage_(encodage_de(octets_)),
      marque_(octets_.starts_with(marque_utf8) ? marque_utf8.size() : 0),
      texte_(encodage_ == Encodage::utf8 ? std::string() : en_utf8(octets_)) {}

LignesBrutes TexteBrut::lignes() const {
    if (encodage_ == Encodage::utf8)
        return {octets_, marque_, std::nullopt};
    return {octets_, marque_, texte_};
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
