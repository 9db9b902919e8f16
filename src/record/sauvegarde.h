#pragma once

#include "record/enregistrement.h"
#include "sim/etat.h"
#include "sim/fenetres.h"

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

/// Marks robot I's trajectory as changed by the console. @throws HorsTable when I is outside 0..10
void Set_Sauv_Robot(Etat& e, Entier16 I);

/// A file that could not be written whole, and why.
struct EchecEcriture {
    std::filesystem::path chemin;
    std::string raison;
};

using Ecrit = std::function<void(const std::filesystem::path&)>;

/// What a saving asked, wrote and left to tell.
struct BilanSauvegarde {
    std::vector<EchecEcriture> echecs;
    Robots acceptes, refuses;      ///< answered "Oui", answered "Non"
    bool generation = false;       ///< the last answer was "Oui"
    std::filesystem::path reprise; ///< the recovery file that keeps what could not be written
    std::string echec_reprise;     ///< why even that file could not be written; empty = it was

    bool complete() const { return echecs.empty(); }
    /// Everything is in its files, among the kept versions or in the recovery file.
    bool en_surete() const { return echec_reprise.empty(); }
    /// One message for the user; empty when everything was written.
    std::string message() const;
};

/// For each of robots 0..9 whose trajectory was changed: asks whether to save it, writes its
/// trajectory file if so, and forgets the change whatever the answer. If the last answer was yes,
/// shows the path of the generation input file and writes it. The files are those of the unturned
/// table. Errors stop nothing and show nothing.
/// Each file is replaced as a whole; its previous version is kept among the ten newest of
/// `dossier_configuration`/Sauvegardes.
/// @param apres_un_refus  what becomes of a path that is not saved, for the question's explanation
/// @param ecrit  hears of each file right after it was written, before the next question
/// @returns the answers, and what could not be written, so that the caller tells the user
BilanSauvegarde SauvRobot(Etat& e, Fenetres& f, const std::filesystem::path& dossier_configuration,
                          std::string_view apres_un_refus = {}, const Ecrit& ecrit = {});

/// Writes the files that SauvRobot would have written for these answers into another directory.
/// @returns what could not be written
std::vector<EchecEcriture> ecrire_ailleurs(Etat& e, const BilanSauvegarde& reponses,
                                           const std::filesystem::path& dossier);
