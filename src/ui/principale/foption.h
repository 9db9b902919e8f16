#pragma once

#include "seance/seance.h"
#include "ui/commun/barre_nombre.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>
#include <QWidget>

#include <functional>
#include <string_view>

class Bureau;
class QMenu;

/// A check box that serves as a caption: no indicator, not to be ticked.
class CaseLibelle final : public QCheckBox {
public:
    using QCheckBox::QCheckBox;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    bool hitButton(const QPoint&) const override { return false; }
    void nextCheckState() override {}
    void paintEvent(QPaintEvent*) override;
};

/// The control panel "Option", beside the main window. Every change is applied to the main window
/// at once and marks the settings as modified.
class FOption final : public QWidget, private Ecouteur {
public:
    FOption(QWidget* parent, Seance& seance, Bureau& bureau);

    bool modifie = false; ///< the general settings differ from their file; never cleared again
    bool projet_choisi = false; ///< set when the user picked a project
    bool charge = false;        ///< the window is loaded

    /// Puts the settings just read into the boxes and the scroll bar, whose handlers apply them.
    void appliquer(const Tableau<Entier16, 4>& Options);
    /// Writes the general settings if they were modified.
    void SaveGeneral();
    void montrer();
    /// Gives the buttons of windows that may not exist their procedure and enables them.
    void brancher(QPushButton& bouton, std::function<void()> procedure);
    /// Chooses the number of robots (1..9) after the scroll bar has got its whole range back.
    void choisir_robots(int nombre);
    void retablir_plage() { VScroll1.setRange(1, robots_des_fichiers); }
    /// During a run the display options and the number of robots are fixed.
    void montrer_course(bool en_cours);
    bool robots_modifiables() const { return VScroll1.isEnabled(); }

    void Command1_Click();
    /// "Charger": offers to save what was recorded, lets the user choose a project, loads it.
    void Command2_Click();
    void Command4_Click();
    /// Loads a project that was chosen without the list. @returns false when the user stays
    bool charger(const std::string& projet);
    void remplir_recents(QMenu& menu);
    /// Space starts and stops where no control uses it. @returns whether the key was that one
    bool espace(const QKeyEvent& touche);

    QLineEdit nbre_carreaux;
    QCheckBox utiliDamier;
    QPushButton Command1, Command2, Command5, dessinAire, generer, Aide, Command4;

protected:
    void keyPressEvent(QKeyEvent* evenement) override;

private:
    void projet_change(Lecture lecture) override;
    ReglagesGeneraux reglages() const;
    void Check1_Click(bool coche);
    void Check2_Click(bool coche);
    void Check3_Click(bool coche);
    void VScroll1_Change(int valeur);
    void NbRO_Change();
    void utiliDamier_Click(bool coche);
    void avertir_du_damier();
    void Form_Load() { charge = true; }

    void nommer();
    void placer();
    QLayout* placer_robots();
    QLayout* placer_carreaux();
    QLayout* placer_boutons();
    void connecter();

    Seance& seance_;
    Bureau& bureau_;
    QCheckBox Check1, Check2, Check3;
    CaseLibelle Check4;
    BarreNombre VScroll1;
    QLabel NbRO, lb_utilcarreaux;
    QLabel damier_tourne_;
    QToolButton recents_;
};
