#pragma once

#include "config/erreur_lecture.h"
#include "config/reglages.h"
#include "sim/etat.h"
#include "sim/fenetres.h"

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// Reads and installs a project's files for one Etat. Every failing reader shows "Erreur lors de la
/// lecture du fichier " + path + " Ligne " + line number through Fenetres, stops, and falls back on
/// the built-in data. A project is a name: the files of Configuration/ that begin with it.
class Projet {
public:
    /// @param dossier_application  holds (or will hold) the directory Configuration
    Projet(Etat& etat, Fenetres& fenetres, std::filesystem::path dossier_application);

    const std::filesystem::path& dossier_application() const;
    std::filesystem::path dossier_configuration() const;
    /// Paths of the present project's files, found whatever the case of their names.
    std::filesystem::path chemin_general() const;
    std::filesystem::path chemin_table() const;
    std::filesystem::path chemin_robot(int n) const;
    std::filesystem::path chemin_trajet(int n) const;
    /// The file whose name is the project's name and `suite`: " Table.ini".
    /// @throws ErreurExecution, like the others, when no project can bear the name
    std::filesystem::path chemin(std::string_view suite) const;

    /// Creates whichever of the present project's 20 files are missing, with the default content.
    /// Errors are ignored: the file's reader reports it.
    void Installe();
    /// No settings are there yet: the program has never been started here.
    bool jamais_demarre() const;
    /// Writes Readme.txt into the application directory, unless it is there; says nothing when that
    /// fails.
    void deposer_notice() const;
    /// Reads the general settings into NomProjet and Options; installs a newly named project.
    void LoadGeneral();
    void LoadTable();
    void LoadRobot();
    void LoadTrajet();
    /// LoadRobot, then empties the trajectories of robots 1..9 ("FIN" alone).
    void Init_Robot();
    /// LoadTrajet, then puts robots 1..9 on their initial pose.
    void Init_Jeu();
    /// Records `nom` and the settings in the general settings file, replaced as a whole. Errors are
    /// ignored. The caller asks only when the options were modified.
    void SaveGeneral(std::string_view nom, const ReglagesGeneraux& reglages);

    /// From now on `nom` takes the place of the project name that LoadGeneral reads.
    /// @throws ErreurExecution when no project can bear it
    void imposer_projet(std::string nom);
    /// From now on LoadTrajet takes robot n's trajectory from what `texte` makes of its file's.
    void lire_trajet_autrement(int n, std::function<std::string(std::string_view)> texte);
    /// Reads every file of the project as the start-up does, into the Etat, but installs and writes
    /// nothing. What is wrong comes out as messages.
    void verifier();

    /// What the readers complained about when each kind of file was read last, as values.
    const std::vector<ErreurDeLecture>& erreurs() const { return erreurs_; }
    /// The lines of robot n's actions 1, 2... in its file; empty when the trajectories in use are
    /// the built-in ones.
    const std::vector<int>& lignes_trajet(int n) const { return lignes_trajet_(n); }

private:
    template <typename Lecteur>
    bool lire(std::string_view projet, std::string_view suite, const Entier16& NoLigne,
              Lecteur lecteur, int robot = 0, std::string_view consequence = {});
    /// Those of the files whose `suite` begins so: they are read again.
    void oublier_erreurs(std::string_view sorte);

    Etat& etat_;
    Fenetres& fenetres_;
    std::filesystem::path dossier_;
    std::string configuration_; ///< the directory Configuration, with a separator behind
    std::optional<std::string> projet_impose_;
    int autre_trajet_ = 0; ///< robot whose file is read otherwise
    std::function<std::string(std::string_view)> autre_texte_;
    bool installation_ = true; ///< LoadGeneral may create files
    std::vector<ErreurDeLecture> erreurs_;
    Tableau<std::vector<int>, robots_max> lignes_trajet_;
};
