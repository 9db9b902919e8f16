#pragma once

#include "record/enregistrement.h"
#include "record/place_reprise.h"
#include "record/sauvegarde.h"

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

/// A recording that is kept among the versions of the recovery file.
struct EnregistrementGarde {
    std::filesystem::path fichier;
    Enregistrement contenu;
};

/// What to say when another program has the same project open; both texts are empty when none has.
struct AvisPartage {
    std::string texte;
    std::string explication;
};

/// The recovery file, "Configuration/<project> Reprise.ini": what was recorded and is not saved
/// yet, replaced as a whole after each action. It survives a crash, a kill and a power cut; the
/// next start offers it. What the user gives up (a refused saving, a path that another one takes
/// the place of) goes into Configuration/Sauvegardes, which keeps the ten newest of a project.
/// Programs that share a project have a recovery file each.
class Reprise {
public:
    Reprise(Etat& etat, std::filesystem::path dossier_configuration)
        : etat_(etat), dossier_(std::move(dossier_configuration)), place_(dossier_) {}

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
    /// recording is kept in it, and where even that fails the robots count as changed again. What
    /// was refused is kept as garder() does. Show the result's message.
    BilanSauvegarde sauver(Fenetres& f, const Ecrit& ecrit = {});
    /// Writes what sauver() could not write into another directory; what was refused as a recovery
    /// file of its own. @returns what could not be written
    std::vector<EchecEcriture> sauver_ailleurs(const BilanSauvegarde& bilan,
                                               const std::filesystem::path& dossier);

    /// Puts a copy of what is recorded for these robots among the kept ones, unless the newest is
    /// the same. @throws ErreurFichier
    void garder(const Robots& robots);
    /// The same for everything that is not saved; a failure is told. Does nothing when everything
    /// is saved. @returns true when it is kept
    bool garder_ou_prevenir(Fenetres& f);
    /// What is not saved gives way to something else: it is kept, and no longer offered.
    void abandonner(Fenetres& f);
    /// The kept recordings of the present project, newest first; what cannot be read is left out.
    std::vector<EnregistrementGarde> gardes() const;
    /// Takes a recording up in place of what is recorded, which is kept.
    /// @returns false when it could not be kept, which is told: nothing changes
    bool reprendre(Fenetres& f, const Enregistrement& enregistrement);

    /// The highest of the robots that are recorded and not saved; 0 when there is none.
    int dernier_robot() const;

    /// At start and after loading a project: offers a recording that was not saved. Yes puts it
    /// back; no keeps it as garder() does; a file that cannot be read is told and put aside.
    /// @param charger_projet  loads another project, whose recording the user takes up; without it
    ///                        only the present project's is offered. Its errors are told, and the
    ///                        recording waits for the next start
    /// @returns true when a recording was put back: draw the table again
    bool proposer(Fenetres& f, const std::function<void(const std::string&)>& charger_projet = {});

private:
    void garder_texte(const std::string& projet, const std::string& contenu) const;
    std::filesystem::path dossier_gardes() const { return dossier_ / "Sauvegardes"; }
    std::string texte(const Robots& robots) const;
    bool contient(const std::string& texte) const;
    std::string ou_restent_les_refus() const;
    void garder_les_refus(BilanSauvegarde& bilan);
    std::optional<Enregistrement> lire(Fenetres& f, const std::filesystem::path& fichier) const;
    void restaurer(const Enregistrement& enregistrement);
    void mettre_de_cote(Fenetres& f, const std::filesystem::path& fichier,
                        const std::string& raison) const;

    Etat& etat_;
    std::filesystem::path dossier_;
    PlaceReprise place_;
    Robots en_attente_;          ///< recorded and not saved, asked about or not
    std::filesystem::path tenu_; ///< the recovery file that holds what this program recorded
    bool prevenu_ = false;
};
