// The table's context menu.
#include "ui/principale/sim1.h"
#include "ui/verdict/verdict.h"

#include <QAction>
#include <QMenu>

QAction& Sim1::entree(const char* nom, const QString& texte, const QKeySequence& touche,
                      std::function<void()> procedure) {
    auto* action = new QAction(texte, this);
    action->setObjectName(nom);
    action->setShortcut(touche);
    connect(action, &QAction::triggered, this, std::move(procedure));
    Table.addAction(action);
    options_.addAction(action);
    return *action;
}

// One line each, in the menu's order.
void Sim1::composer_menu() {
    entree("menu_constats", "Constats du match…\tF7", {}, [this] { verdict_->montrer_liste(); });
    entree("menu_restaurer", "Restaurer une version…", {}, [this] { montrer_restauration(); });
}

void Sim1::montrer_menu(const QPoint& ou) {
    QMenu menu(&Table);
    menu.setObjectName("menu_table");
    remplir_robots(*menu.addMenu("Nombre de robots"));
    menu.addSeparator();
    menu.addActions(Table.actions());
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
