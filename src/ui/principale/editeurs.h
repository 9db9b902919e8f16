#pragma once

#include "ui/editeurs/dessin_robot.h"
#include "ui/editeurs/dessin_table.h"
#include "ui/editeurs/dessin_trajet.h"
#include "ui/editeurs/foutil.h"
#include "ui/principale/premiere_page.h"

#include <filesystem>
#include <vector>

class Bureau;
class Seance;

/// The palette and the drawing windows that it opens.
class Editeurs {
public:
    Editeurs(QWidget* principale, Seance& seance, Bureau& bureau);

    /// "Créer un projet...": the palette and the editor of what it draws.
    void montrer();
    /// "Modifier le trajet…": the present project's trajectory of a robot, 1..9, at its action
    /// `numero` (0: none in particular).
    void montrer_trajet(int robot, int numero);
    /// Asks about all unsaved changes, then saves what is to be saved; discards nothing yet.
    /// @returns false when the user does not want to leave
    bool peut_partir() { return peut_partir(dessins()); }
    /// The program ends: what is not saved goes.
    void partir();
    /// Offers the drawings that an earlier program did not save.
    void proposer_reprises();
    /// Brings the recovery files up to date: the program may end at once.
    void ecrire_reprises();

private:
    void montrer_dessin();
    void accueillir(FenetreEditeur& dessin);
    /// The files of a new project, open in both editors; then offers to load it.
    void creer(const PremierePage::Demande& demande);
    void montrer_trajet();
    void placer();
    void placer_palette();
    void palette_demenagee();
    FenetreEditeur& dessin_choisi();
    std::filesystem::path fichier_du_projet(bool robot) const;
    std::vector<FenetreEditeur*> dessins() const { return {&table_, &robot_, &trajet_}; }
    static bool peut_partir(const std::vector<FenetreEditeur*>& dessins);

    QWidget& principale_;
    Seance& seance_;
    Bureau& bureau_;
    // The windows belong to the main window, like all others.
    Foutil& outils_;
    dessinTable& table_;
    dessinRobot& robot_;
    dessinTrajet& trajet_;
    PremierePage& premiere_page_;
    bool places_ = false;         ///< the windows have got their first place
    bool palette_placee_ = false; ///< it has floated
    bool trajet_place_ = false;
};
