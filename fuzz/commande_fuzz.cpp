// Any bytes as the commands of "piloter": each line is a command, nothing or a refusal; what is
// driven is recorded, and the recording reads back.

#include "cli/commande.h"
#include "cli/fenetres_terminal.h"
#include "config/lecteur_trajet.h"
#include "outils.h"
#include "record/console.h"
#include "record/trajet.h"
#include "sim/damier.h"
#include "sim/secours.h"

#include <memory>
#include <sstream>

namespace {

constexpr int lignes_max = 20;
constexpr int ticks_en_tout = 4000; // of all commands, at the light step

class FenetresEssai final : public FenetresTerminal {
public:
    using FenetresTerminal::FenetresTerminal;
    void suivre(Console& console) { console_ = &console; }
    void Active_Desactive(bool Status) override {
        if (Status)
            console_->action_finie();
    }
    void montrer_course(bool en_cours) override {
        FenetresTerminal::montrer_course(en_cours);
        if (!en_cours)
            console_->action_finie();
    }

private:
    Console* console_ = nullptr;
};

Etat etat_de_depart() {
    Etat e;
    Init_Table_Old(e);
    Init_Robot_Old(e);
    Init_Jeu_Old(e);
    initDamier(e);
    e.PasTemps = 5;
    return e;
}

// @returns false when the program would have ended
bool conduire(Console& console, Moteur& moteur, const FenetresEssai& f, std::string_view ligne,
              int& ticks) {
    tenter([&] {
        if (const auto commande = lire_commande(ligne))
            console.Command4_Click(commande->legende, commande->Text1, commande->Text4);
    });
    while (f.en_marche() && ++ticks < ticks_en_tout) {
        if (!moteur.Timer_Timer())
            return false;
    }
    return ticks < ticks_en_tout;
}

void relire(const Etat& e) {
    const auto relu = std::make_unique<Etat>();
    Entier16 NoLigne;
    LecteurTrajet(*relu).lire(texte_trajet(e, 1, "essai"), 1, NoLigne);
    exiger(relu->TrajNbActions(1) <= e.TrajNbActions(1) + 1);
}

} // namespace

CIBLE(commande) {
    static const auto depart = std::make_unique<const Etat>(etat_de_depart());
    static const auto e = std::make_unique<Etat>();
    *e = *depart;
    std::ostringstream messages;
    FenetresEssai f(*e, messages);
    Moteur moteur(*e, f);
    Console console(*e, f, moteur);
    f.suivre(console);
    console.VScroll1_Change(1);
    console.Command9_Click({"100", "160", "90"});
    int ticks = 0;
    int lues = 0;
    const std::string texte(octets, octets + taille);
    Lignes lignes(texte);
    for (auto ligne = lignes.suivante(); ligne && lues < lignes_max; ligne = lignes.suivante()) {
        ++lues;
        if (!conduire(console, moteur, f, *ligne, ticks))
            break;
    }
    if (!f.terminee())
        relire(*e);
    return 0;
}
