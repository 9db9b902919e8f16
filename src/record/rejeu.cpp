#include "record/rejeu.h"

bool Rejeu::finir_action() {
    finie_ = interrompu_ = false;
    while (!finie_ && !interrompu_ && etat_.TempsEcoule <= duree_du_match) {
        etat_.TempsEcoule += etat_.PasTemps;
        moteur_.Executer_Actions();
    }
    return finie_ && etat_.TempsEcoule <= duree_du_match;
}
