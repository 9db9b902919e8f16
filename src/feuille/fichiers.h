#pragma once

#include <ctime>
#include <filesystem>
#include <string>
#include <vector>

class Projet;

/// One file of a project, so that a sheet of paper can be compared with what is on the disk.
struct FichierDeFeuille {
    std::string nom;
    std::string date;  ///< of its last change; "absent" when it cannot be read
    std::string somme; ///< CRC-32, eight hexadecimal digits
};

/// Table, robots and trajectories 1..`robots` of the present project.
std::vector<FichierDeFeuille> fichiers_du_projet(const Projet& projet, int robots);
/// "22/11/2026 09:05", local time.
std::string date_lisible(std::time_t instant);
