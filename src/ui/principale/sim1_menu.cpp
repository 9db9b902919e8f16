// The table's context menu.
#include "config/projet.h"
#include "ui/commun/vitesses.h"
#include "ui/feuille/exports.h"
#include "ui/principale/editeurs.h"
#include "ui/principale/sim1.h"
#include "ui/verdict/verdict.h"

#include <QAction>
#include <QMenu>

#include <utility>

namespace {

/// What the lines of the menu do, where their name does not say it all.
constexpr std::pair<const char*, const char*> bulles[] = {
    {"menu_pause", "Arrête le temps du match là où il en est"},
    {"menu_pas", "Avance d'un pas de temps un match en pause"},
    {"menu_analyse", "La table à chaque instant, la frise des actions et les constats"},
    {"menu_trajet", "Les actions d'un robot dans un tableau, son chemin sur la table"},
    {"menu_restaurer", "Les copies datées des fichiers du projet, à comparer et à remettre"},
    {"menu_feuille", "Une page pour l'équipe, en PDF ou SVG : placement, actions, constats"},
    {"menu_image", "La table et la trace du match, en PNG, PDF ou SVG"},
    {"menu_trace_csv", "La position de chaque robot à chaque pas, pour un tableur"},
    {"menu_dossier", "Le dossier Configuration dans le gestionnaire de fichiers"},
    {"menu_capture", "La fenêtre comme elle est, dans un fichier PNG"},
    {"copier_position", "Le lieu sous la souris, en centimètres"}};

void expliquer(QAction& action) {
    for (const auto& [nom, bulle] : bulles)
        if (action.objectName() == nom)
            action.setToolTip(bulle);
}

} // namespace

QAction& Sim1::commande(const char* nom, const QString& texte, const QKeySequence& touche,
                        std::function<void()> procedure) {
    auto* action = new QAction(texte, this);
    action->setObjectName(nom);
    action->setShortcut(touche);
    expliquer(*action);
    connect(action, &QAction::triggered, this, std::move(procedure));
    addAction(action);
    options_.addAction(action);
    return *action;
}

QAction& Sim1::entree(const char* nom, const QString& texte, const QKeySequence& touche,
                      std::function<void()> procedure) {
    QAction& action = commande(nom, texte, touche, std::move(procedure));
    Table.addAction(&action);
    return action;
}

// One line each, in the menu's order.
void Sim1::composer_menu() {
    pause_ = &entree("menu_pause", "Pause", Qt::Key_P, [this] { suspendre(!suspendue_); });
    pause_->setCheckable(true);
    pas_ = &entree("menu_pas", "Un pas", Qt::Key_Period, [this] { avancer_d_un_pas(); });
    composer_menu_calques();
    entree("menu_analyse", "Analyse du match…\tF7", {}, [this] { verdict_->montrer_fenetre(); });
    entree("menu_trajet", "Modifier le trajet…", QKeySequence("Ctrl+T"), [this] {
        const int conduit = e->RobotTele;
        modifier_le_trajet(conduit >= 1 && conduit <= robots_des_fichiers ? conduit : 1, 0);
    });
    entree("menu_restaurer", "Restaurer une version…", {}, [this] { montrer_restauration(); });
    commandes_de_vitesse_ = {
        &commande("menu_plus_vite", "Plus vite", Qt::Key_Plus,
                  [this] { changer_vitesse(vitesse_voisine(cadence_.vitesse(), 1)); }),
        &commande("menu_moins_vite", "Moins vite", Qt::Key_Minus,
                  [this] { changer_vitesse(vitesse_voisine(cadence_.vitesse(), -1)); }),
        &commande("menu_vitesse_reelle", "Vitesse réelle", Qt::Key_Equal,
                  [this] { changer_vitesse(1); })};
    commandes_d_export_ = {
        &commande("menu_feuille", "Feuille de match…", {}, [this] { exports_->feuille(); }),
        &commande("menu_imprimer", "Imprimer la feuille de match…", {},
                  [this] { exports_->imprimer(); }),
        &commande("menu_image", "Exporter l'image…", {}, [this] { exports_->image(); }),
        &commande("menu_trace_csv", "Exporter la trace…", {}, [this] { exports_->trace(); })};
    commandes_du_projet_ = {
        &commande("menu_dossier", "Ouvrir le dossier", {}, [this] { ouvrir_le_dossier(); }),
        &commande("menu_capture", "Enregistrer une image", Qt::Key_F12,
                  [this] { enregistrer_image(); }),
        &commande("menu_a_propos", "À propos de Tavolmex…", {}, [this] { montrer_a_propos(); })};
    montrer_rythme();
}

void Sim1::modifier_le_trajet(int robot, int numero) {
    editeurs().montrer_trajet(robot, numero);
}

void Sim1::montrer_menu(const QPoint& ou) {
    QMenu menu(&Table);
    menu.setObjectName("menu_table");
    menu.setToolTipsVisible(true);
    remplir_robots(*menu.addMenu("Nombre de robots"));
    remplir_vitesses(*menu.addMenu("Vitesse"));
    menu.addSeparator();
    menu.addActions(Table.actions());
    menu.addSeparator();
    menu.addActions(commandes_d_export_);
    menu.addSeparator();
    options_.remplir_recents(*menu.addMenu("Projets récents"));
    menu.addActions(commandes_du_projet_);
    pointeur_.noter(ou); // whatever the pointer does in the menu
    menu.exec(Table.mapToGlobal(ou));
}

void Sim1::remplir_robots(QMenu& robots) {
    robots.setObjectName("menu_robots");
    robots.setEnabled(options_.robots_modifiables());
    robots.addSection("Nombre de robots");
    for (int n = 1; n <= robots_des_fichiers; ++n) {
        QAction* choix = robots.addAction(QString::number(n));
        choix->setCheckable(true);
        choix->setChecked(n == e->NbRobot);
        connect(choix, &QAction::triggered, this, [this, n] { options_.choisir_robots(n); });
    }
}

void Sim1::remplir_vitesses(QMenu& menu) {
    menu.setObjectName("menu_vitesses");
    for (const double vitesse : vitesses) {
        QAction* choix = menu.addAction(legende_vitesse(vitesse));
        choix->setCheckable(true);
        choix->setChecked(vitesse == cadence_.vitesse());
        connect(choix, &QAction::triggered, this, [this, vitesse] { changer_vitesse(vitesse); });
    }
    menu.addSeparator();
    menu.addActions(commandes_de_vitesse_);
}
