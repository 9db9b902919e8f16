// What the list of recorded actions changes in the recording.
#include "ui/commun/boites.h"
#include "ui/commun/bureau.h"
#include "ui/console/telecommande.h"

#include <QAction>

void Télécommande::preparer_liste() {
    liste_.setContextMenuPolicy(Qt::CustomContextMenu);
    connect(&liste_, &QWidget::customContextMenuRequested, this,
            [this](const QPoint& ou) { montrer_menu_de_liste(ou); });
    auto* supprimer = new QAction("Supprimer l'action", &liste_);
    supprimer->setObjectName("supprimer_action");
    supprimer->setShortcut(QKeySequence::Delete);
    supprimer->setShortcutContext(Qt::WidgetShortcut);
    connect(supprimer, &QAction::triggered, this,
            [this] { changer_la_liste([this](std::size_t rang) { console_.supprimer(rang); }); });
    liste_.addAction(supprimer);
}

// The row chosen, if what it stands for can be changed now.
std::optional<std::size_t> Télécommande::rang_choisi() const {
    const QListWidgetItem* const choisi = liste_.currentItem();
    if (choisi == nullptr || !choisi->isSelected())
        return std::nullopt;
    const auto rang = static_cast<std::size_t>(choisi->data(Qt::UserRole).toULongLong());
    return console_.modification_possible(rang) ? std::optional(rang) : std::nullopt;
}

void Télécommande::choisir_dans_la_liste(std::size_t rang) {
    for (int i = 0; i < liste_.count(); ++i)
        if (liste_.item(i)->flags() != Qt::NoItemFlags &&
            liste_.item(i)->data(Qt::UserRole).toULongLong() == rang)
            liste_.setCurrentRow(i);
}

// The values are those of the fields, as for the buttons.
void Télécommande::remplir_actions(QMenu& menu,
                                   void (Console::*faire)(std::size_t, const ActionConduite&)) {
    for (const actions::Action& a : actions::boutons)
        menu.addAction(texte_qt(a.legende), this, [this, &a, faire] {
            changer_la_liste([this, &a, faire](std::size_t rang) {
                (console_.*faire)(rang, action_des_champs(a.legende, Text1.text().toStdString(),
                                                          Text4.text().toStdString()));
            });
        });
}

void Télécommande::montrer_menu_de_liste(const QPoint& ou) {
    QMenu menu(&liste_);
    menu.setObjectName("menu_liste");
    const bool possible = rang_choisi().has_value();
    QMenu& remplacer = *menu.addMenu("Remplacer, avec les valeurs des champs, par");
    remplacer.setObjectName("remplacer_action");
    remplir_actions(remplacer, &Console::changer);
    QMenu& inserer = *menu.addMenu("Insérer devant, avec les valeurs des champs");
    inserer.setObjectName("inserer_action");
    remplir_actions(inserer, &Console::inserer);
    menu.addActions(liste_.actions());
    for (QAction* action : menu.actions())
        action->setEnabled(possible);
    menu.addSeparator();
    menu.addAction("Modifier le trajet…", this,
                   [this] { bureau_.modifier_le_trajet(console_.robot(), 0); });
    menu.exec(liste_.mapToGlobal(ou));
    for (QAction* action : liste_.actions())
        action->setEnabled(true); // its key decides for itself
}
