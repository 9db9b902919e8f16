#pragma once

#include "base/texte.h"

#include <array>
#include <cstdint>
#include <string_view>

/// Codes of the generation table's rows. 0 marks the end of the table.
enum class Code : std::uint8_t {
    avance = 1,
    recule,
    gauche,
    droite,
    viravga,
    viravdr,
    virarga,
    virardr,
    pause,
    balise_droite,
    balise_gauche,
    carreaux,
};

/// What an action reads from the console's fields, and in which order the generation table has it.
enum class Parametres { aucun, longueur, angle, rayon_et_angle };

/// One button of the console.
struct ActionConsole {
    std::string_view legende; ///< caption: "VirAvDr"
    std::string_view nom;     ///< the caption in capitals: the action's name
    Code code;
    Parametres parametres;
    bool compte_carreaux; ///< a tile count follows it in the generation table

    constexpr bool utilise_Text1() const {
        return parametres == Parametres::longueur || parametres == Parametres::rayon_et_angle;
    }
    constexpr bool utilise_Text4() const {
        return parametres == Parametres::angle || parametres == Parametres::rayon_et_angle;
    }
};

/// The eleven buttons, in the order in which the console shows them.
inline constexpr std::array<ActionConsole, 11> actions_console{{
    {"Avance", "AVANCE", Code::avance, Parametres::longueur, true},
    {"Recule", "RECULE", Code::recule, Parametres::longueur, true},
    {"Droite", "DROITE", Code::droite, Parametres::angle, true},
    {"Gauche", "GAUCHE", Code::gauche, Parametres::angle, true},
    {"Pause", "PAUSE", Code::pause, Parametres::longueur, false},
    {"VirAvDr", "VIRAVDR", Code::viravdr, Parametres::rayon_et_angle, true},
    {"VirAvGa", "VIRAVGA", Code::viravga, Parametres::rayon_et_angle, true},
    {"VirArDr", "VIRARDR", Code::virardr, Parametres::rayon_et_angle, true},
    {"VirArGa", "VIRARGA", Code::virarga, Parametres::rayon_et_angle, true},
    {"Balise Droite", "BALISE DROITE", Code::balise_droite, Parametres::aucun, true},
    {"Balise Gauche", "BALISE GAUCHE", Code::balise_gauche, Parametres::aucun, true},
}};

/// The action of that name in capitals, all characters compared; null when there is none.
const ActionConsole* action_de_nom(std::string_view nom);
/// The action that the trajectory has under this name, cut to its ten characters; likewise.
const ActionConsole* action_du_trajet(const Nom10& nom);
