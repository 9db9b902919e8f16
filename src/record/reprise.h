#pragma once

#include "record/enregistrement.h"
#include "record/place_reprise.h"
#include "record/sauvegarde.h"

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

/// What a saving left to tell.
struct BilanSauvegarde {
    std::vector<EchecEcriture> echecs;
    std::filesystem::path reprise; ///< the recovery file that keeps the recording
    std::string echec_reprise;     ///< why even that file could not be written; empty = it was

    bool complete() const { return echecs.empty(); }
    /// One message for the user; empty when everything was written.
    std::string message() const;
};

/// What to say when another program has the same project open; both texts are empty when none has.
struct AvisPartage {
    std::string texte;
    std::string explication;
};

/// The recovery file, "Configuration/<project> Reprise.ini": what was recorded and is not saved
/// yet, replaced as a whole after each action. It survives a crash, a kill and a power cut; the
/// next start offers it. Programs that share a project have one each.
class Reprise {
public:
    Reprise(Etat& etat, std::filesystem::path dossier_configuration)
        : e(etat), dossier_(std::move(dossier_configuration)), place_(dossier_) {}

    /// Makes the present project's recovery file this program's own, as long as no other project is
    /// taken in its place.
    /// @param vierge  leaves one alone that waits for being offered
    AvisPartage prendre_projet(bool vierge = false);

    /// The present project's recovery file.
    std::filesystem::path chemin() const;

    /// Writes what is recorded and not saved; does nothing when there is nothing.
    /// @throws ErreurFichier
    void ecrire();
    /// The same; a failure is told to the user, once until it works again.
    void ecrire_ou_prevenir(Fenetres& f);

    /// SauvRobot, then deletes the recovery file; unless something could not be written: then the
    /// recording is kept in it. Show the result's message.
    BilanSauvegarde sauver(Fenetres& f, const Ecrit& ecrit = {});

    /// At start and after loading a project: offers a recording that was not saved. Yes puts it
    /// back; no deletes the file; a file that cannot be read is told and put aside.
    /// @param charger_projet  loads another project, whose recording the user takes up; without it
    ///                        only the present project's is offered
    /// @returns true when a recording was put back: draw the table again
    bool proposer(Fenetres& f, const std::function<void(const std::string&)>& charger_projet = {});

private:
    void mettre_de_cote(Fenetres& f, const std::filesystem::path& fichier,
                        const std::string& raison) const;

    Etat& e;
    std::filesystem::path dossier_;
    PlaceReprise place_;
    Robots en_attente_; ///< recorded and not saved, asked about or not
    bool prevenu_ = false;
};
