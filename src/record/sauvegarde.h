#pragma once

#include "sim/etat.h"
#include "sim/fenetres.h"

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

/// Marks robot I's trajectory as changed by the console. @throws HorsTable when I is outside 0..10
void Set_Sauv_Robot(Etat& e, Entier16 I);

/// A file that could not be written whole, and why.
struct EchecEcriture {
    std::filesystem::path chemin;
    std::string raison;
};

using Ecrit = std::function<void(const std::filesystem::path&)>;

/// For each of robots 0..9 whose trajectory was changed: asks whether to save it, writes its
/// trajectory file if so, and forgets the change whatever the answer. If the last answer was yes,
/// shows the path of the generation input file and writes it. The files are those of the unturned
/// table. Errors stop nothing and show nothing.
/// Each file is replaced as a whole; its previous version is kept among the ten newest of
/// `dossier_configuration`/Sauvegardes.
/// @param ecrit  hears of each file right after it was written, before the next question
/// @returns what could not be written, so that the caller tells the user
std::vector<EchecEcriture> SauvRobot(Etat& e, Fenetres& f,
                                     const std::filesystem::path& dossier_configuration,
                                     const Ecrit& ecrit = {});
