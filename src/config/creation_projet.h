#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// A file of a project: what its name has behind the project's (" Table.ini"), and its bytes.
struct FichierDeProjet {
    std::string suite;
    std::string octets;
};

/// What the files of a project are called behind its name: its table, robots and trajectories, its
/// generation input, the team's program.
const std::vector<std::string>& suites_de_projet();

/// A bare table of 200 x 320 cm, robot 1 at the middle of its foot, the others waiting at its top;
/// nobody moves.
std::vector<FichierDeProjet> projet_vide(const std::string& nom);
/// The files of project `ancien` for project `nom`; the robots that it lacks wait at the table's
/// top.
/// @param lire  the bytes of the file `ancien` + a suffix, nothing when there is no such file
std::vector<FichierDeProjet>
copie_de_projet(const std::string& ancien, const std::string& nom,
                const std::function<std::optional<std::string>(const std::string& suite)>& lire);
/// The same for a project of the directory `configuration`. @throws ErreurFichier
std::vector<FichierDeProjet> copie_de_projet(const std::filesystem::path& configuration,
                                             const std::string& ancien, const std::string& nom);

/// Why no new project can be called so, a sentence without its full stop; "" when one can.
std::string raison_projet_refuse(const std::filesystem::path& configuration,
                                 const std::string& nom);
/// Writes the files of a new project, all or none of them; nothing that exists is replaced.
/// @throws ErreurExecution with the reason, ErreurFichier
void creer_projet(const std::filesystem::path& configuration, const std::string& nom,
                  const std::vector<FichierDeProjet>& fichiers);
