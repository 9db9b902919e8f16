#include "ui/editeurs.h"

#include "sim/orientation.h"
#include "ui/sim1.h"

#include <QScreen>

namespace {

/// What "Charger" does once a project is chosen.
void charger_projet(Sim1& sim, const std::string& projet) {
    Etat& e = sim.etat();
    e.NomProjet = projet;
    sim.projet().Installe();
    sim.moteur().Fin_Jeu();
    sim.projet().LoadTable();
    sim.projet().Init_Robot();
    sim.projet().Init_Jeu();
    if (e.TableHorizontale)
        horizontal(e);
    sim.Init_Table();
    sim.Dessine_Table();
    sim.Dessine_Robot();
    sim.options().modifie = true;
}

FenetreEditeur::Programme programme(Sim1& sim) {
    return {sim.projet().dossier_configuration(),
            [&sim](const std::string& projet) { charger_projet(sim, projet); }};
}

} // namespace

Editeurs::Editeurs(Sim1& sim)
    : sim_(sim),
      outils_(*new Foutil(&sim)),
      table_(*new dessinTable(&sim, outils_, programme(sim))) {
    outils_.au_choix_d_outil = [this] { table_.outil_change(); };
    outils_.au_choix_du_dessin = [this] { montrer_dessin(); };
    // What is drawn is the table; a robot's file is written with any text editor.
    outils_.chx_dessinRobot.setEnabled(false);
}

void Editeurs::montrer() {
    placer();
    montrer_dessin();
    outils_.show();
    outils_.raise();
}

void Editeurs::montrer_dessin() {
    table_.show();
    table_.raise();
    table_.activateWindow();
}

// The palette at the left edge of the screen, the drawing beside it.
void Editeurs::placer() {
    if (table_.isVisible())
        return;
    const QRect ecran = sim_.screen()->availableGeometry();
    constexpr int marge = 8;
    outils_.move(ecran.topLeft() + QPoint(marge, 4 * marge)); // its title bar above
    const int gauche = ecran.left() + outils_.sizeHint().width() + 3 * marge;
    table_.move(gauche, ecran.top() + marge);
    table_.resize(std::min(table_.width(), ecran.right() - gauche - 2 * marge),
                  std::min(std::max(table_.height(), 620), ecran.height() - 60));
}

bool Editeurs::peut_partir() {
    return table_.peut_partir();
}
