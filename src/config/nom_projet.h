#pragma once

#include <filesystem>
#include <string>
#include <string_view>

// A project's name is data: it comes from the settings, a command line, a directory listing or a
// text field. It becomes a path here and nowhere else.

/// What stands behind the project's name in the names of its files; n: the robot, 1..9.
inline constexpr const char* suite_table = " Table.ini";
std::string suite_robot(int n);
std::string suite_trajet(int n);

/// Why a project cannot bear this name, "" when it can: it would leave Configuration, be cut short,
/// be too long for the names of its files and their backups, or not be read back from the settings.
/// The empty name can.
std::string raison_projet_impossible(std::string_view nom);
/// @throws ErreurExecution with the reason when no project can bear this name
void exiger_projet_possible(std::string_view nom);

/// The name of a project's file: `projet` + `suffixe`. @throws ErreurExecution as above
std::string nom_de_fichier(std::string_view projet, std::string_view suffixe);
/// Its path, exactly so. @throws ErreurExecution as above
std::filesystem::path chemin_de_projet(const std::filesystem::path& configuration,
                                       std::string_view projet, std::string_view suffixe);
/// The same, or the file that is there under another upper or lower case spelling.
std::filesystem::path fichier_de_projet(const std::filesystem::path& configuration,
                                        std::string_view projet, std::string_view suffixe);

/// What a file of Configuration describes: its name is the project's, a blank, and one of these.
enum class GenreFichier { table, robot, trajet };

/// Why an editor cannot save as `nom` + ".ini": no project can bear the name, or the team's other
/// systems could not read the file; "" when it can.
std::string raison_nom_impossible(std::string_view nom);
/// The file that an editor saves as `nom` + ".ini", found whatever its case.
/// @throws ErreurExecution with the reason when it cannot
std::filesystem::path fichier_d_editeur(const std::filesystem::path& configuration,
                                        std::string_view nom);
/// The project whose file `nom` + ".ini" is, "" when it belongs to none: "Essai Table" is a table
/// of "Essai", "Essai Robot2" a robot, "Essai Trajet1" a trajectory.
std::string projet_du_nom(std::string_view nom, GenreFichier genre);
/// The project that a file of Configuration belongs to by its name, "" when there is none.
std::string projet_nomme_par(std::string_view fichier);
/// The nearest name that is possible and belongs to a project.
std::string proposer_nom(std::string_view nom, GenreFichier genre);
