#include "ui/principale/editeurs.h"

#include "seance/seance.h"
#include "ui/commun/bureau.h"
#include "ui/commun/garde.h"
#include "ui/commun/place.h"

#include <QAction>
#include <QScreen>

#include <algorithm>
#include <utility>

namespace {

/// The loaded project's own file was saved: nothing is asked where nothing can be lost.
bool relire(Seance& seance, const std::string& projet) {
    if (projet != seance.etat().NomProjet || seance.en_marche() || seance.trajet_non_sauve())
        return false;
    garde(seance.fenetres(), [&] { seance.relire_tout(); });
    return true;
}

FenetreEditeur::Programme programme(Seance& seance, Bureau& bureau) {
    return {seance.projet().dossier_configuration(),
            [&](const std::string& projet) {
                garde(seance.fenetres(), [&] { bureau.charger_projet(projet); });
            },
            [&](const std::filesystem::path& fichier) {
                seance.annonces().annoncer(&Ecouteur::fichier_ecrit, fichier);
            },
            [&](const std::string& projet) { return relire(seance, projet); }};
}

} // namespace

Editeurs::Editeurs(QWidget* principale, Seance& seance, Bureau& bureau)
    : principale_(*principale),
      seance_(seance),
      bureau_(bureau),
      outils_(*new Foutil(principale)),
      table_(*new dessinTable(principale, outils_, programme(seance, bureau))),
      robot_(*new dessinRobot(principale, outils_, programme(seance, bureau))),
      trajet_(*new dessinTrajet(principale, outils_, programme(seance, bureau), seance)),
      premiere_page_(*new PremierePage(seance.projet().dossier_configuration())) {
    outils_.au_choix_d_outil = [this] {
        table_.outil_change();
        robot_.outil_change();
    };
    outils_.au_choix_du_dessin = [this] { montrer_dessin(); };
    outils_.au_demenagement = [this] { palette_demenagee(); };
    outils_.a_l_annulation = [this](const char* commande) {
        dessin_choisi().findChild<QAction*>(commande)->trigger();
    };
    table_.addToolBar(&premiere_page_); // which is its owner from now on
    table_.insertToolBarBreak(&premiere_page_);
    premiere_page_.hide();
    premiere_page_.a_la_creation = [this](const PremierePage::Demande& d) { creer(d); };
}

FenetreEditeur& Editeurs::dessin_choisi() {
    return outils_.chx_dessinRobot.isChecked() ? static_cast<FenetreEditeur&>(robot_) : table_;
}

void Editeurs::palette_demenagee() {
    if (outils_.ancree())
        dessin_choisi().accueillir_palette();
    table_.suivre_palette();
    robot_.suivre_palette();
    placer_palette();
}

void Editeurs::montrer() {
    placer();
    premiere_page_.proposer();
    montrer_dessin();
    placer_palette();
    outils_.show();
    outils_.raise();
}

void Editeurs::montrer_dessin() {
    FenetreEditeur& dessin = dessin_choisi();
    if (&dessin == &robot_)
        robot_.regler_table(seance_.etat());
    dessin.proposer(fichier_du_projet(&dessin == &robot_));
    dessin.accueillir_palette();
    accueillir(dessin);
    dessin.show();
    dessin.raise();
    dessin.activateWindow();
}

// The first page goes with the drawing that is shown.
void Editeurs::accueillir(FenetreEditeur& dessin) {
    auto* ancienne = static_cast<QMainWindow*>(premiere_page_.parentWidget());
    if (premiere_page_.isHidden() || ancienne == &dessin)
        return;
    ancienne->removeToolBarBreak(&premiere_page_);
    ancienne->removeToolBar(&premiere_page_);
    dessin.addToolBar(&premiere_page_);
    dessin.insertToolBarBreak(&premiere_page_);
    premiere_page_.show();
}

void Editeurs::creer(const PremierePage::Demande& demande) {
    if (!peut_partir({&table_, &robot_}))
        return;
    const std::filesystem::path dossier = seance_.projet().dossier_configuration();
    creer_projet(dossier, demande.nom, demande.fichiers);
    premiere_page_.hide();
    robot_.ouvrir_nouveau(chemin_de_projet(dossier, demande.nom, suite_robot(1)));
    table_.ouvrir_nouveau(chemin_de_projet(dossier, demande.nom, suite_table));
    if (!seance_.fenetres().question("Doit-on charger le projet " + demande.nom + " maintenant ?"))
        return;
    if (bureau_.charger_projet(demande.nom) && demande.exemple)
        bureau_.montrer_robots(2);
}

std::filesystem::path Editeurs::fichier_du_projet(bool robot) const {
    try {
        return robot ? seance_.projet().chemin_robot(1) : seance_.projet().chemin_table();
    } catch (const ErreurExecution&) { // a name that no project can bear
        return {};
    }
}

// Where the user left it, else beside the drawing.
void Editeurs::placer_palette() {
    if (outils_.ancree() || std::exchange(palette_placee_, true))
        return;
    const QRect ecran = principale_.screen()->availableGeometry();
    outils_.move(ecran.topLeft() + QPoint(8, 32)); // its title bar above
    retenir_place(outils_);
}

// At the left edge of the screen, or where the user left them.
void Editeurs::placer() {
    if (std::exchange(places_, true))
        return;
    const QRect ecran = principale_.screen()->availableGeometry();
    constexpr int marge = 8;
    const int palette = outils_.ancree() ? 0 : outils_.sizeHint().width() + 2 * marge;
    const int gauche = ecran.left() + palette + marge;
    for (QWidget* dessin : std::initializer_list<QWidget*>{&table_, &robot_}) {
        dessin->move(gauche, ecran.top() + marge);
        dessin->resize(std::min(dessin->width(), ecran.right() - gauche - 2 * marge),
                       std::min(std::max(dessin->height(), 660), ecran.height() - 60));
        retenir_place(*dessin);
    }
}

void Editeurs::montrer_trajet(int robot, int numero) {
    montrer_trajet();
    trajet_.montrer_robot(robot);
    trajet_.choisir_l_action(numero);
}

void Editeurs::montrer_trajet() {
    if (!std::exchange(trajet_place_, true)) {
        const QRect ecran = principale_.screen()->availableGeometry();
        trajet_.resize(trajet_.size().boundedTo(ecran.size() - QSize(40, 60)));
        trajet_.move(ecran.right() - trajet_.width() - 20, ecran.top() + 8);
        retenir_place(trajet_);
    }
    trajet_.show();
    trajet_.raise();
    trajet_.activateWindow();
}

bool Editeurs::peut_partir(const std::vector<FenetreEditeur*>& dessins) {
    std::vector<FenetreEditeur::Depart> reponses;
    for (FenetreEditeur* dessin : dessins) {
        reponses.push_back(dessin->demander_depart());
        if (reponses.back() == FenetreEditeur::Depart::annuler)
            return false;
    }
    for (std::size_t i = 0; i < reponses.size(); ++i)
        if (!dessins[i]->preparer_depart(reponses[i]))
            return false;
    return true;
}

void Editeurs::partir() {
    for (FenetreEditeur* dessin : dessins())
        dessin->partir();
}

void Editeurs::proposer_reprises() {
    if (trajet_.proposer_reprise(seance_.fenetres()))
        montrer_trajet();
    for (const bool robot : {false, true}) {
        FenetreEditeur& dessin = robot ? static_cast<FenetreEditeur&>(robot_) : table_;
        if (!dessin.proposer_reprise(seance_.fenetres()))
            continue;
        outils_.suivre(robot ? GenreFichier::robot : GenreFichier::table);
        montrer();
    }
}

void Editeurs::ecrire_reprises() {
    for (FenetreEditeur* dessin : dessins())
        dessin->ecrire_reprise();
}
