#pragma once

#include "ui/banc.h"
#include "ui/console/telecommande.h"

// Drives the console by its buttons and keys; each action is played by the real clock.
class ConsoleFenetre : public Banc {
protected:
    void ouvrir() {
        if (!sim)
            demarrer();
        cliquer("Command5");
        console = &trouver("Télécommande");
        ASSERT_TRUE(QTest::qWaitForWindowActive(console));
    }
    template <typename Controle = QWidget>
    Controle& dans_console(const char* nom) {
        return *console->findChild<Controle*>(nom);
    }
    QPushButton& bouton(const char* legende) {
        for (auto* b : console->findChildren<QPushButton*>("Command4")) {
            if (b->text() == legende)
                return *b;
        }
        throw std::runtime_error(legende);
    }
    void saisir(const char* champ, const char* texte) {
        dans_console<QLineEdit>(champ).setText(texte);
    }
    // The engine's clock is the real one: long actions are not waited for, but ticked through.
    void finir_l_action() {
        for (int tick = 0; tick < 3000 && !bouton("Avance").isEnabled(); ++tick)
            seance().moteur().Timer_Timer();
    }
    void jouer(const char* legende) {
        bouton(legende).click();
        finir_l_action();
    }
    void commencer() {
        dans_console<QPushButton>("Command9").click();
        finir_l_action(); // the tick that finds the robot idle
    }
    std::string fichier(const char* nom) {
        return dossier.lire(std::string("Configuration/") + nom);
    }

    QWidget* console = nullptr;
};
