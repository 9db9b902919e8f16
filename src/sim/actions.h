#pragma once

#include "base/texte.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

// The elementary actions: all that is said about them stands in `actions::table`. How they move the
// robot is in cinematique.cpp and balise.cpp.

namespace actions {

inline constexpr Nom10 AUCUNE{}; ///< the previous action is finished
inline constexpr Nom10 FIN{"FIN"};
inline constexpr Nom10 PAUSE{"PAUSE"};
inline constexpr Nom10 AVANCE{"AVANCE"};
inline constexpr Nom10 RECULE{"RECULE"};
inline constexpr Nom10 DROITE{"DROITE"};
inline constexpr Nom10 GAUCHE{"GAUCHE"};
inline constexpr Nom10 VIRAVDR{"VIRAVDR"};
inline constexpr Nom10 VIRAVGA{"VIRAVGA"};
inline constexpr Nom10 VIRARDR{"VIRARDR"};
inline constexpr Nom10 VIRARGA{"VIRARGA"};
inline constexpr Nom10 BALISE_DRO{"BALISE DRO"};
inline constexpr Nom10 BALISE_GAU{"BALISE GAU"};
inline constexpr Nom10 BD{"BD"};
inline constexpr Nom10 BG{"BG"};
inline constexpr Nom10 INIT{"INIT"};

enum class Genre : std::uint8_t {
    depart, ///< the start pose, no action: files list it among them
    fin,
    pause,
    droit,
    rotation, ///< on the spot
    arc,
    balise
};

enum class Unite : std::uint8_t { aucune, cm, degres, centiemes };

/// What begins a line of the generation input file. A value follows those that end in a colon.
namespace mots {
inline constexpr std::string_view avance = "AVANCE:";
inline constexpr std::string_view recule = "RECULE:";
inline constexpr std::string_view droite = "DROITE:";
inline constexpr std::string_view gauche = "GAUCHE:";
inline constexpr std::string_view delai = "DELAY :";
inline constexpr std::string_view bd = "BALDROITE";
inline constexpr std::string_view bg = "BALGAUCHE";
inline constexpr std::string_view carreaux = "CARREAUX:";
} // namespace mots

struct Action {
    Nom10 nom;                ///< as the trajectory has it
    std::string_view mot;     ///< as trajectory files usually write it; empty: they refuse it
    std::string_view legende; ///< of its button on the console; empty: it has none
    Genre genre = Genre::fin;
    int sens = 0;   ///< sign of the first parameter in the motion: to the right, backwards: -1
    int cote = 0;   ///< of an arc: +90 or -90 degrees, see Action_Virage
    Nom10 miroir{}; ///< the action to the other side; itself when it has no side
    std::array<Unite, 3> parametres{}; ///< in the order of the trajectory
    std::string_view unite_etat{};     ///< what the status line puts behind its progress
    std::uint8_t code = 0;             ///< of its row in the generation table; 0: it has none
    std::string_view genere{};         ///< its line in the generation input file
    std::string_view quart{};          ///< likewise an arc's quarter turn

    /// 0 to 3.
    constexpr int nb_parametres() const {
        return static_cast<int>(
            std::ranges::count_if(parametres, [](Unite unite) { return unite != Unite::aucune; }));
    }
    constexpr bool a_un_angle() const { return parametres[0] == Unite::degres; }
    /// A distance, a radius or a duration.
    constexpr bool a_une_longueur() const { return nb_parametres() > (a_un_angle() ? 1 : 0); }
    /// A tile count may follow it in the generation table.
    constexpr bool compte_les_carreaux() const { return genre != Genre::pause; }
};

inline constexpr auto table = [] {
    using namespace mots;
    using enum Genre;
    using enum Unite;
    return std::array<Action, 15>{{
        {AVANCE, "Avance", "Avance", droit, 1, 0, AVANCE, {cm}, "cm", 1, avance},
        {RECULE, "Recule", "Recule", droit, -1, 0, RECULE, {cm}, "cm", 2, recule},
        // Deliberate: turns on the spot are generated crossed.
        {DROITE, "Droite", "Droite", rotation, -1, 0, GAUCHE, {degres}, "°", 4, gauche},
        {GAUCHE, "Gauche", "Gauche", rotation, 1, 0, DROITE, {degres}, "°", 3, droite},
        {PAUSE, "Pause", "Pause", pause, 1, 0, PAUSE, {centiemes}, "ms", 9, delai},
        {VIRAVDR, "VirAvDr", "VirAvDr", arc, -1, 90, VIRAVGA, {degres, cm}, "", 6, avance, droite},
        {VIRAVGA, "VirAvGa", "VirAvGa", arc, 1, -90, VIRAVDR, {degres, cm}, "", 5, avance, gauche},
        {VIRARDR, "VirArDr", "VirArDr", arc, -1, -90, VIRARGA, {degres, cm}, "", 8, recule, droite},
        {VIRARGA, "VirArGa", "VirArGa", arc, 1, 90, VIRARDR, {degres, cm}, "", 7, recule, gauche},
        {BALISE_DRO, "Balise droite", "Balise Droite", balise, -1, 0, BALISE_GAU, {}, "°", 10, bd},
        {BALISE_GAU, "Balise gauche", "Balise Gauche", balise, 1, 0, BALISE_DRO, {}, "°", 11, bg},
        // A search that runs; deliberately without a unit.
        {BD, "", "", balise, -1, 0, BG},
        {BG, "", "", balise, 1, 0, BD},
        {FIN, "FIN", "", fin, 0, 0, FIN},
        {INIT, "Init", "", depart, 0, 0, INIT, {cm, cm, degres}},
    }};
}();

/// The eleven that the console has buttons for, in the order in which it names them.
inline constexpr auto boutons = std::span(table).first<11>();

/// A row of the generation table that is no action: a tile count.
inline constexpr std::uint8_t code_carreaux = 12;

/// The action of this name; null when there is none.
constexpr const Action* trouver(const Nom10& nom) {
    const auto* const trouvee = std::ranges::find(table, nom, &Action::nom);
    return trouvee == table.end() ? nullptr : trouvee;
}
constexpr bool est(const Nom10& nom, Genre genre) {
    const Action* const action = trouver(nom);
    return action != nullptr && action->genre == genre;
}
/// The action that the console records under this name; null when there is none.
const Action* trouver_bouton(const Nom10& nom);
/// The action whose caption, in capitals and whole, is `nom`; null when there is none.
const Action* trouver_legende(std::string_view nom);
/// The action of a row of the generation table; null when there is none.
const Action* trouver_code(int code);

/// A line of the generation input file; the value belongs to the words that end in a colon.
struct LigneGeneree {
    std::string_view mot;
    double valeur = 0;
};
/// What the generation input says of an action of the console. An arc of radius R and angle A
/// becomes a straight run R sin A, a quarter turn to its side and a straight run (1 - cos A) R.
/// Deliberate: A, recorded in degrees, is taken as radians.
/// @param p1, p2  as the generation table has them: an arc's radius first
std::vector<LigneGeneree> lignes_generees(const Action& action, int p1, int p2);

/// The generation table, and so the robot's program, keeps each value in one byte.
constexpr bool tient_dans_un_octet(int valeur) {
    return valeur >= 0 && valeur <= 255;
}

} // namespace actions

/// The side that a beacon search turns to.
inline constexpr std::uint8_t balise_droite = 1;
inline constexpr std::uint8_t balise_gauche = 2;
