#include "config/lecture_fiche.h"

#include "base/nombre_lu.h"

LectureFiche::LectureFiche(std::string_view ligne) : champs_(ligne) {
    lue_.fiche.cle = Cle(suivant()).vue();
}

std::string_view LectureFiche::suivant() {
    const auto champ = champs_.eventuel();
    if (!champ)
        refuser(champs_.sans_virgule());
    return champ.value_or("");
}

void LectureFiche::entier(std::size_t i) {
    if (const auto petit = champs_.petit_entier())
        lue_.fiche.v[i] = static_cast<float>(*petit);
    else
        entier(i, suivant());
}

void LectureFiche::entier(std::size_t i, std::string_view texte) {
    if (const auto n = entier16_ou_rien(texte))
        lue_.fiche.v[i] = ::simple(*n);
    else
        refuser(pas_un_entier16(texte));
}

void LectureFiche::simple(std::size_t i, std::string_view texte) {
    if (const auto x = simple_ou_rien(texte))
        lue_.fiche.v[i] = *x;
    else
        refuser(pas_un_simple(texte));
}

void LectureFiche::refuser(const std::exception& raison) {
    if (!refusee())
        lue_.refus = raison.what();
}
