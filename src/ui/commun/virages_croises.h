#pragma once

#include <filesystem>
#include <string>

/// Whether the robot's Action_Droite turns it to the left and Action_Gauche to the right, as the
/// generator takes it, unless the user said otherwise for that project; kept in the user's own
/// settings. @param dossier  the project's Configuration
bool virages_croises(const std::filesystem::path& dossier, const std::string& projet);
void retenir_virages_croises(const std::filesystem::path& dossier, const std::string& projet,
                             bool croises);
