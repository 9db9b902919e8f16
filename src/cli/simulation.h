#pragma once

#include "cli/fenetres_terminal.h"
#include "seance/seance.h"

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>

/// What the command line puts in the place of the settings read.
struct ChoixDeLigne {
    std::optional<std::filesystem::path> dossier; ///< application directory
    std::optional<std::string> projet;
    std::optional<int> robots; ///< 1..9
    bool allege = false;
    bool horizontale = false;
    /// Called before the first file is read.
    std::function<void(Projet&)> avant_lecture{};
};

/// Applies the settings read into `Options`, or what stands in their place, as the start-up does:
/// display, time step, number of robots, quarter turn.
/// @returns whether the table was turned  @throws Debordement: nothing is turned then
bool appliquer_reglages(Etat& e, const ChoixDeLigne& choix);

/// The application directory, made the process's current directory. @throws ErreurFichier
std::filesystem::path ouvrir_dossier(const std::optional<std::filesystem::path>& demande);

/// The sizes that the drawing on the command line takes for a screen: 1280 x 720 pixels.
struct Image {
    double largeur = 0; ///< pixels
    double hauteur = 0;
    Entier16 Echelle; ///< twips per cm
};

/// Init_Table for such a screen. @throws ErreurExecution when the table does not allow it
Image disposer(Etat& e);

/// A session without a window, started like the window's.
class Simulation final : private Hote {
public:
    /// Reads the project and applies the settings. Messages go through `fenetres`, which works on
    /// `etat`.
    Simulation(Etat& etat, FenetresTerminal& fenetres, ChoixDeLigne choix);

    /// False when the start-up stopped half-way, its reason told: there is nothing to play.
    bool demarree() const { return demarree_; }

    /// Plays ticks until the run ends by itself or TempsEcoule reaches `duree` (hundredths of a
    /// second).
    void jouer(std::int32_t duree);

    Seance& seance() { return seance_; }
    const Seance& seance() const { return seance_; }
    Moteur& moteur() { return seance_.moteur(); }
    Image image() const { return image_; }

private:
    void Init_Table() override { image_ = disposer(etat_); }
    void redessiner() override;
    void appliquer_reglages() override;
    bool apres_panne() override { return false; }
    std::filesystem::path choisir_dossier(std::string_view) override { return {}; }
    bool en_marche() const override { return fenetres_.en_marche(); }
    bool terminee() const override { return fenetres_.terminee(); }

    Etat& etat_;
    FenetresTerminal& fenetres_;
    ChoixDeLigne choix_;
    Seance seance_;
    Image image_;
    bool demarree_ = false;
};
