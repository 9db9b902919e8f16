#include "ui/principale/editeurs.h"

#include "ui/commun/garde.h"
#include "ui/commun/place.h"
#include "ui/principale/sim1.h"

#include <QAction>
#include <QScreen>

#include <algorithm>
#include <utility>

namespace {

/// What "Charger" does once a project is chosen.
void charger_projet(Sim1& sim, const std::string& projet) {
    sim.SauvRobot();
    sim.etat().NomProjet = projet;
    sim.charger_projet_choisi();
}

FenetreEditeur::Programme programme(Sim1& sim) {
    return {sim.projet().dossier_configuration(),
            [&sim](const std::string& projet) { garde(sim, [&] { charger_projet(sim, projet); }); },
            [&sim](const std::filesystem::path& fichier) { sim.fichier_ecrit(fichier); }};
}

} // namespace

Editeurs::Editeurs(Sim1& sim)
    : sim_(sim),
      outils_(*new Foutil(&sim)),
      table_(*new dessinTable(&sim, outils_, programme(sim))),
      robot_(*new dessinRobot(&sim, outils_, programme(sim))) {
    outils_.au_choix_d_outil = [this] { table_.outil_change(); };
    outils_.au_choix_du_dessin = [this] { montrer_dessin(); };
    outils_.a_l_annulation = [this](const char* commande) {
        FenetreEditeur& dessin =
            outils_.chx_dessinRobot.isChecked() ? static_cast<FenetreEditeur&>(robot_) : table_;
        dessin.findChild<QAction*>(commande)->trigger();
    };
}

void Editeurs::montrer() {
    placer();
    montrer_dessin();
    outils_.show();
    outils_.raise();
}

void Editeurs::montrer_dessin() {
    const bool robot = outils_.chx_dessinRobot.isChecked();
    if (robot)
        robot_.regler_table(sim_.etat());
    QWidget& dessin = robot ? static_cast<QWidget&>(robot_) : table_;
    dessin.show();
    dessin.raise();
    dessin.activateWindow();
}

// The palette at the left edge of the screen, the drawing beside it; or where the user left them.
void Editeurs::placer() {
    if (std::exchange(places_, true))
        return;
    const QRect ecran = sim_.screen()->availableGeometry();
    constexpr int marge = 8;
    outils_.move(ecran.topLeft() + QPoint(marge, 4 * marge)); // its title bar above
    const int gauche = ecran.left() + outils_.sizeHint().width() + 3 * marge;
    for (QWidget* dessin : std::initializer_list<QWidget*>{&table_, &robot_}) {
        dessin->move(gauche, ecran.top() + marge);
        dessin->resize(std::min(dessin->width(), ecran.right() - gauche - 2 * marge),
                       std::min(std::max(dessin->height(), 620), ecran.height() - 60));
        retenir_place(*dessin);
    }
    retenir_place(outils_);
}

bool Editeurs::peut_partir() {
    const auto table = table_.demander_depart();
    if (table == FenetreEditeur::Depart::annuler)
        return false;
    const auto robot = robot_.demander_depart();
    return robot != FenetreEditeur::Depart::annuler && table_.preparer_depart(table) &&
           robot_.preparer_depart(robot);
}

void Editeurs::partir() {
    table_.partir();
    robot_.partir();
}

void Editeurs::proposer_reprises() {
    for (const bool robot : {false, true}) {
        FenetreEditeur& dessin = robot ? static_cast<FenetreEditeur&>(robot_) : table_;
        if (!dessin.proposer_reprise(sim_))
            continue;
        outils_.suivre(robot ? GenreFichier::robot : GenreFichier::table);
        montrer();
    }
}

void Editeurs::ecrire_reprises() {
    table_.ecrire_reprise();
    robot_.ecrire_reprise();
}
