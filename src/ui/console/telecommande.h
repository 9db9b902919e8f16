#pragma once

#include "record/console.h"
#include "seance/annonces.h"
#include "sim/actions.h"
#include "ui/commun/barre_nombre.h"

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QWidget>

#include <array>
#include <functional>
#include <optional>

class Bureau;
class Seance;
class QGridLayout;
class QLayout;

/// The remote-control console: drives one robot action by action and records what it does. The
/// model is record/console.h; this is its window.
class Télécommande final : public QWidget, private Ecouteur {
public:
    /// @param nbre_carreaux  the text of the tile count's box
    Télécommande(QWidget* parent, Seance& seance, Bureau& bureau,
                 std::function<std::string()> nbre_carreaux);

    /// Enables or disables the action fields and buttons.
    void Active_Desactive(bool Status);
    /// The engine's word that the driven action is over, or that the run has ended.
    void action_finie();
    void VScroll1_Change();
    void Command4_Click(std::size_t k);
    void Command9_Click();
    void Command2_Click();
    /// Ends the action that the robot is driven through. @returns false when there is none
    bool arreter_action();
    /// Goes on with the path that was recorded last, if it can be.
    void continuer_le_dernier();
    int robot() const { return console_.robot(); }
    /// Writes a start pose, of the displayed table, into the fields. Asks before it ends a
    /// recording.
    void proposer_depart(const struct Pose& affichee);
    /// A tick is over: the time of the match is shown by the second.
    void suivre_le_temps();

protected:
    bool eventFilter(QObject* objet, QEvent* evenement) override;
    void keyPressEvent(QKeyEvent* evenement) override;
    void showEvent(QShowEvent* evenement) override;
    void changeEvent(QEvent* evenement) override;

private:
    static constexpr std::size_t nb_actions = actions::boutons.size();

    /// The captions of the console, in the order of their indices.
    enum Legende { // NOLINT(performance-enum-size)
        l_numero,
        l_position,
        l_x,
        l_y,
        l_cap,
        l_cm_x,
        l_cm_y,
        l_degre_cap,
        l_action,
        l_longueur,
        l_unite_longueur,
        l_angle,
        l_degre,
        nb_legendes
    };

    void projet_change(Lecture lecture) override;
    void reglages_changes() override;

    void Debut_Fin_Enr(bool Status);
    /// Another project was loaded: no recording goes on, the pose is read again.
    void recommencer();
    /// There are more or fewer robots to choose from.
    void suivre_nombre_de_robots();
    /// Says where the typed position lies, and what a turned table does to it.
    void indiquer_position();
    void annuler();
    void continuer(int robot);
    void remplir_menu();
    void ajouter_les_gardes();
    void actualiser();
    void ecrire_le_temps();
    void actualiser_liste();
    void preparer_liste();
    std::optional<std::size_t> rang_choisi() const;
    void changer_la_liste(const std::function<void(std::size_t)>& changer);
    void choisir_dans_la_liste(std::size_t rang);
    void remplir_actions(QMenu& menu, void (Console::*faire)(std::size_t, const ActionConduite&));
    void montrer_menu_de_liste(const QPoint& ou);
    void surligner(const actions::Action* action);

    void nommer();
    void nommer_champs();
    void placer();
    QLayout* placer_robot();
    QLayout* placer_action();
    QLayout* placer_boutons();
    QLayout* placer_liste();
    void connecter();
    void connecter_touches();

    Seance& seance_;
    Bureau& bureau_;
    Console console_;
    std::array<QLabel, nb_legendes> Label1;
    QLineEdit Text1, Text4, TextX, TextY, TextA;
    /// Behind the fields: one that loses the keyboard by its end still changes their colour.
    std::array<QPushButton, nb_actions> Command4;
    BarreNombre VScroll1;
    QLabel NbRO;
    QPushButton Command9, Command2;
    QPushButton annuler_;
    QPushButton reprendre_;
    QMenu menu_reprendre_{this};
    QLabel indication_;
    QListWidget liste_;
    QLabel total_;
    std::int32_t seconde_ = 0;         ///< that total_ shows
    QWidget* clavier_avant_ = nullptr; ///< what had the keyboard before the present action
    QWidget* clavier_passe_ = nullptr; ///< what Qt gave it to then
};
