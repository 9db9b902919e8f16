#include "config/lecteur_trajet.h"

#include "config/ligne.h"
#include "sim/actions.h"

#include <algorithm>
#include <array>

namespace {

constexpr std::array sans_parametre{actions::FIN, actions::BALISE_DRO, actions::BALISE_GAU};
constexpr std::array un_parametre{actions::PAUSE, actions::AVANCE, actions::RECULE, actions::DROITE,
                                  actions::GAUCHE};
constexpr std::array deux_parametres{actions::VIRAVDR, actions::VIRAVGA, actions::VIRARDR,
                                     actions::VIRARGA};

template <typename Liste>
bool parmi(const Liste& liste, const Nom10& action) {
    return std::find(liste.begin(), liste.end(), action) != liste.end();
}

// Unlike in the other files, the line is upper-cased as a whole first: any ASCII letter counts.
bool contient_lettre_ou_chiffre(std::string_view ligne) {
    return std::any_of(ligne.begin(), ligne.end(), [](char c) {
        return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9');
    });
}

// The code is not trimmed: ten characters from the start of the line, up to the first comma. All
// known ones are ASCII, so bytes will do.
Nom10 code_de(std::string_view ligne) {
    std::array<char, 10> tampon{};
    const std::string_view code = ligne.substr(0, std::min(ligne.find(','), tampon.size()));
    std::copy(code.begin(), code.end(), tampon.begin());
    mettre_en_majuscules({tampon.data(), code.size()});
    return std::string_view(tampon.data(), code.size());
}

// After the code; a line without a comma is its own first field.
Champs champs_de(std::string_view ligne) {
    Champs champs(ligne);
    if (ligne.find(',') != std::string_view::npos)
        champs.suivant();
    return champs;
}

} // namespace

void LecteurTrajet::lire(std::string_view texte, Entier16 n, Entier16& NoLigne) {
    e.TrajNbActions(n) = 0;
    pour_chaque_ligne(
        texte, NoLigne, [&](std::string_view ligne) { lire_ligne(ligne, n); },
        contient_lettre_ou_chiffre);
}

void LecteurTrajet::lire_ligne(std::string_view ligne, Entier16 n) {
    const Nom10 code = code_de(ligne);
    if (code == actions::INIT)
        return lire_pose(ligne, n);
    Champs champs = champs_de(ligne);
    if (parmi(deux_parametres, code)) {
        parametre_ = champs.entier();
        parametre2_ = champs.dernier_entier();
    } else if (parmi(un_parametre, code)) {
        parametre_ = champs.dernier_entier();
    } else if (!parmi(sans_parametre, code)) {
        refuser_cle(code.vue());
    }
    ajouter(code, n);
}

void LecteurTrajet::lire_pose(std::string_view ligne, Entier16 n) {
    Champs champs = champs_de(ligne);
    const Entier16 x = champs.entier();
    const Entier16 y = champs.entier();
    e.CapInit(n) = simple(champs.dernier_entier());
    e.XInit(n) = simple(x);
    e.YInit(n) = simple(y);
}

void LecteurTrajet::ajouter(const Nom10& action, Entier16 n) {
    const Entier16 k = e.TrajNbActions(n) + 1;
    e.TrajAction(n, k) = action;
    e.TrajParam1(n, k) = parametre_;
    e.TrajParam2(n, k) = parametre2_;
    e.TrajNbActions(n) = k;
}
