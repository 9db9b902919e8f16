#include "config/lecteur_trajet.h"

#include "sim/actions.h"

#include <algorithm>
#include <array>

namespace {

struct Action {
    Nom10 code;
    int parametres;
};
constexpr std::array<Action, 13> connues{{{actions::AVANCE, 1},
                                          {actions::VIRAVDR, 2},
                                          {actions::VIRAVGA, 2},
                                          {actions::PAUSE, 1},
                                          {actions::RECULE, 1},
                                          {actions::DROITE, 1},
                                          {actions::GAUCHE, 1},
                                          {actions::VIRARDR, 2},
                                          {actions::VIRARGA, 2},
                                          {actions::INIT, 3},
                                          {actions::FIN, 0},
                                          {actions::BALISE_DRO, 0},
                                          {actions::BALISE_GAU, 0}}};

// Unlike in the other files, the line is upper-cased as a whole first: any ASCII letter counts.
bool contient_lettre_ou_chiffre(std::string_view ligne) {
    return std::any_of(ligne.begin(), ligne.end(), [](char c) {
        return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9');
    });
}

// Not trimmed: the ten characters from the start of the line, upper-cased. All known codes are
// ASCII, so bytes will do.
Nom10 code_de(std::string_view texte) {
    std::array<char, 10> octets{};
    const std::size_t n = std::min(texte.size(), octets.size());
    std::transform(texte.begin(), texte.begin() + static_cast<std::ptrdiff_t>(n), octets.begin(),
                   [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 32) : c; });
    return std::string_view(octets.data(), n);
}

int parametres_de(const Nom10& code) {
    for (const Action& action : connues) {
        if (action.code == code)
            return action.parametres;
    }
    refuser_cle(code.vue());
}

} // namespace

void LecteurTrajet::lire(std::string_view texte, Entier16 n, Entier16& NoLigne) {
    e.TrajNbActions(n) = 0;
    lignes_.clear();
    const int avant = NoLigne;
    const auto lire_et_situer = [&](std::string_view ligne) {
        lire_ligne(ligne, n);
        if (e.TrajNbActions(n) > static_cast<int>(lignes_.size()))
            lignes_.push_back(NoLigne - avant);
    };
    pour_chaque_ligne(texte, NoLigne, lire_et_situer, contient_lettre_ou_chiffre);
}

void LecteurTrajet::lire_ligne(std::string_view ligne, Entier16 n) {
    // A line without a comma is its own code and its own first field.
    const std::size_t virgule = ligne.find(',');
    Champs champs(ligne.substr(virgule == std::string_view::npos ? 0 : virgule + 1));
    const Nom10 code = code_de(ligne.substr(0, virgule));
    switch (parametres_de(code)) {
    case 3:
        return lire_pose(champs, n);
    case 2:
        parametre_ = champs.entier();
        parametre2_ = champs.dernier_entier();
        break;
    case 1:
        parametre_ = champs.dernier_entier();
        break;
    default:
        break;
    }
    ajouter(code, n);
}

void LecteurTrajet::lire_pose(Champs& champs, Entier16 n) {
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
