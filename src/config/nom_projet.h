#pragma once

#include <string>
#include <string_view>

/// What a file of Configuration describes: its name is the project's, a blank, and one of these.
enum class GenreFichier { table, robot };

/// Why `nom` + ".ini" cannot be a file's name, on this system or on the team's others; "" when it
/// can.
std::string raison_nom_impossible(std::string_view nom);
/// The project whose file `nom` + ".ini" is, "" when it belongs to none: "Essai Table" is a table
/// of "Essai", "Essai Robot2" a robot.
std::string projet_du_nom(std::string_view nom, GenreFichier genre);
/// The nearest name that is possible and belongs to a project.
std::string proposer_nom(std::string_view nom, GenreFichier genre);
