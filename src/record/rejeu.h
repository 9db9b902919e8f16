#pragma once

#include "sim/fenetres_muettes.h"
#include "sim/moteur.h"

/// Plays the driven robot's actions at once, tick by tick as the clock would, with nothing shown.
/// The other robots move meanwhile.
class Rejeu final : public FenetresMuettes {
public:
    explicit Rejeu(Etat& etat) : etat_(etat), moteur_(etat, *this) {}

    /// Plays the present action of robot RobotTele up to and with the tick that finds it done.
    /// @returns false when the match ended first, or an error of any robot ended the run
    bool finir_action();
    void predire_carreaux(Entier16 i) { moteur_.predire_carreaux(i); }

    void message(std::string_view, std::string_view = {}) override { interrompu_ = true; }
    void Active_Desactive(bool Status) override { finie_ = finie_ || Status; }
    void fin_du_programme() override { interrompu_ = true; }

private:
    Etat& etat_;
    Moteur moteur_;
    bool finie_ = false;
    bool interrompu_ = false;
};
