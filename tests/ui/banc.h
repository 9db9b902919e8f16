#pragma once

#include "outils/dossier_temporaire.h"
#include "outils/textes.h"
#include "ui/principale/sim1.h"
#include "ui/script.h"

#include <QSettings>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

/// A started simulator on a project of its own; its boxes are answered from the script.
class Banc : public testing::Test, protected Script {
protected:
    Banc() {
        std::filesystem::current_path(dossier.chemin()); // as the program does
        QSettings().clear();
    }

    ~Banc() override { std::filesystem::current_path(std::filesystem::temp_directory_path()); }

    void demarrer() {
        sim = std::make_unique<Sim1>(dossier.chemin(), [this](int code) { fins.push_back(code); });
        sim->Form_Load();
    }
    /// The control of that name, in the main window or in a window that belongs to it.
    template <typename Controle = QWidget>
    Controle& trouver(const char* nom) {
        for (QWidget* controle : sim->findChildren<QWidget*>(nom))
            if (auto* voulu = dynamic_cast<Controle*>(controle))
                return *voulu;
        throw std::runtime_error(nom);
    }
    void cliquer(const char* nom) { QTest::mouseClick(&trouver(nom), Qt::LeftButton); }
    void cocher(const char* nom, bool coche) { trouver<QCheckBox>(nom).setChecked(coche); }
    // Nothing can be written any more, and no directory made.
    void perdre_le_dossier() {
        std::filesystem::rename(dossier / "Configuration", dossier / "partie");
        dossier.ecrire("Configuration", "une clé débranchée");
    }
    void retrouver_le_dossier() {
        std::filesystem::remove(dossier / "Configuration");
        std::filesystem::rename(dossier / "partie", dossier / "Configuration");
    }
    Seance& seance() { return sim->seance(); }
    Fenetres& fenetres() { return seance().fenetres(); }
    Etat& e() { return seance().etat(); }
    FOption& options() { return trouver<FOption>("FOption"); }

    DossierTemporaire dossier;
    std::vector<int> fins; ///< exit codes asked for
    std::unique_ptr<Sim1> sim;
};
