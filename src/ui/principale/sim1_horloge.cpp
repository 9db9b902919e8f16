// The match's clock: its pace, its pause, its single steps.
#include "analyse/resume_table.h"
#include "ui/commun/vitesses.h"
#include "ui/console/telecommande.h"
#include "ui/principale/sim1.h"
#include "ui/verdict/verdict.h"

#include <QAction>

namespace {

Cadence::Instant maintenant() {
    return std::chrono::steady_clock::now();
}

} // namespace

void Sim1::regler_Timer(Entier16 ms) {
    suspendue_ = false;
    if (ms > 0) {
        cadence_.demarrer(std::chrono::milliseconds(ms), maintenant());
        Timer.start(cadence_.intervalle());
    } else {
        Timer.stop();
    }
    verdict_->course_change();
    montrer_rythme();
    placer_verdict();
    suivre_calques();
}

void Sim1::Timer_Timer() {
    const Cadence::Instant instant = maintenant();
    // A box lets the timer run on underneath: the ticks wait until it is closed.
    if (boite_ouverte() || terminee_)
        return cadence_.retenir(instant);
    Cadence::Duree calcul{};
    for (int n = 0; Timer.isActive() && cadence_.echu(instant, n, calcul); ++n) {
        const Cadence::Duree avant = temps_de_calcul();
        seance_.moteur().Timer_Timer();
        const Cadence::Duree tick = temps_de_calcul() - avant;
        cadence_.compter(tick);
        calcul += tick;
    }
    barre_.avancer(e->TempsEcoule);
}

void Sim1::suspendre(bool oui) {
    if (!en_marche() || boite_ouverte())
        return;
    suspendue_ = oui;
    if (oui) {
        Timer.stop();
    } else {
        cadence_.retenir(maintenant());
        Timer.start(cadence_.intervalle());
    }
    montrer_rythme();
}

void Sim1::avancer_d_un_pas() {
    suspendre(true);
    if (!suspendue_ || boite_ouverte())
        return;
    seance_.moteur().Timer_Timer();
    barre_.avancer(e->TempsEcoule);
    decrire_la_table();
}

void Sim1::changer_vitesse(double vitesse) {
    cadence_.changer_vitesse(vitesse, maintenant());
    if (Timer.isActive())
        Timer.start(cadence_.intervalle());
    montrer_rythme();
}

bool Sim1::arreter_course() {
    if (!en_marche())
        return false;
    if (!console_ || !console_->arreter_action())
        seance_.moteur().Fin_Jeu();
    return true;
}

void Sim1::montrer_rythme() {
    for (QAction* action : {pause_, pas_})
        action->setEnabled(en_marche());
    pause_->setChecked(suspendue_);
    barre_.suspendre(suspendue_);
    titrer();
    decrire_la_table();
}

void Sim1::decrire_la_table() {
    const std::string texte =
        Timer.isActive() ? "Le match court. En pause, la table se décrit." : resume_de_la_table(*e);
    Table.setAccessibleDescription(texte_qt(texte) + " Un clic affiche les options.");
}

// The bare caption is the default project's.
void Sim1::titrer() {
    const bool nomme = !e->NomProjet.empty() && e->NomProjet != "Defaut";
    QString titre = "Tavolmex";
    if (nomme) // no mark of changes
        titre.prepend(texte_qt(e->NomProjet).replace("[*]", "[*][*]") + " – ");
    if (cadence_.vitesse() != 1)
        titre += " (vitesse " + legende_vitesse(cadence_.vitesse()) + ")";
    if (suspendue_)
        titre += " – en pause";
    setWindowTitle(titre);
}
