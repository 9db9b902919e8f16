#include "record/rejeu.h"

bool Rejeu::finir_action() {
    finie_ = interrompu_ = false;
    while (!finie_ && !interrompu_ && e.TempsEcoule <= duree_du_match) {
        e.TempsEcoule += e.PasTemps;
        moteur_.Executer_Actions();
    }
    return finie_ && e.TempsEcoule <= duree_du_match;
}
