#include "config/ligne.h"

#include <algorithm>
#include <string>

Cle::Cle(
    std::string_view texte) { // NOLINT(*-member-init): the buffer is filled as far as it is read
    const std::string_view nu = rogner(texte);
    if (nu.size() > octets_.size())
        return;
    std::copy(nu.begin(), nu.end(), octets_.begin());
    longueur_ = nu.size();
    mettre_en_majuscules({octets_.data(), longueur_});
}

ErreurLecture Champs::sans_virgule() const {
    return ErreurLecture("il manque une virgule : " + std::string(ligne_.substr(0, 80)));
}

ErreurLecture cle_inconnue(std::string_view cle) {
    return ErreurLecture("enregistrement inconnu : " + std::string(cle));
}

void refuser_cle(std::string_view cle) {
    throw cle_inconnue(cle);
}
