#pragma once

#include "outils/dossier_temporaire.h"
#include "ui/principale/sim1.h"

#include <QApplication>
#include <QMessageBox>
#include <QSettings>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

/// A started simulator on a project of its own. Message boxes are read and answered as they open:
/// questions from a queue ("Non" when it is empty).
class Banc : public testing::Test {
protected:
    Banc() {
        QObject::connect(&veilleur_, &QTimer::timeout, [this] { repondre(); });
        veilleur_.start(1);
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
    Seance& seance() { return sim->seance(); }
    Fenetres& fenetres() { return seance().fenetres(); }
    Etat& e() { return seance().etat(); }
    FOption& options() { return trouver<FOption>("FOption"); }

    DossierTemporaire dossier;
    std::vector<std::string> messages; ///< "message: text" or "question: text"
    std::deque<bool> reponses;
    std::function<void(QMessageBox&)> avant_de_repondre; ///< sees each box before its answer
    std::vector<int> fins;                               ///< exit codes asked for
    std::unique_ptr<Sim1> sim;

private:
    void repondre() {
        auto* boite = dynamic_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (boite == nullptr || boite == examinee_ ||
            boite->objectName() == "enregistrer") // its tests answer it
            return;
        if (avant_de_repondre) {
            const QMessageBox* avant = std::exchange(examinee_, boite);
            avant_de_repondre(*boite); // may wait
            examinee_ = avant;
        }
        messages.push_back((boite->objectName() + ": " + boite->text()).toStdString());
        bool oui = false;
        if (!reponses.empty()) {
            oui = reponses.front();
            reponses.pop_front();
        }
        QAbstractButton* bouton = boite->button(oui ? QMessageBox::Yes : QMessageBox::No);
        (bouton != nullptr ? bouton : boite->button(QMessageBox::Ok))->click();
    }

    QTimer veilleur_;
    const QMessageBox* examinee_ = nullptr; ///< its answer waits
};
