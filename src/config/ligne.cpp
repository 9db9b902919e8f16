#include "config/ligne.h"

#include <algorithm>
#include <string>

std::string_view sans_commentaire(std::string_view ligne) {
    return ligne.substr(0, ligne.find('#'));
}

Cle::Cle(
    std::string_view texte) { // NOLINT(*-member-init): the buffer is filled as far as it is read
    const std::string_view nu = rogner(texte);
    if (nu.size() > octets_.size())
        return;
    std::copy(nu.begin(), nu.end(), octets_.begin());
    longueur_ = nu.size();
    mettre_en_majuscules({octets_.data(), longueur_});
}

std::string_view Champs::suivant() {
    const std::size_t virgule = ligne_.find(',', debut_);
    if (virgule == std::string_view::npos)
        throw ErreurLecture("il manque une virgule : " + std::string(ligne_.substr(0, 80)));
    const std::string_view champ = ligne_.substr(debut_, virgule - debut_);
    debut_ = virgule + 1;
    return champ;
}

void refuser_cle(std::string_view cle) {
    throw ErreurLecture("enregistrement inconnu : " + std::string(cle));
}
