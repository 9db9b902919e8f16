// How the window of former versions looks: names, captions, tool tips and places of its controls.
#include "ui/principale/restauration.h"

#include <QFontDatabase>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QSplitter>
#include <QVBoxLayout>

void Restauration::nommer() {
    setObjectName("Restauration");
    setWindowTitle("Restaurer une version…");
    titre_filtre_.setText("Fichier :");
    titre_filtre_.setBuddy(&filtre_);
    filtre_.setObjectName("filtre");
    filtre_.setAccessibleName("Fichier dont les versions sont montrées");
    liste_.setObjectName("versions");
    liste_.setAccessibleName("Versions gardées");
    titre_apercu_.setObjectName("titre_apercu");
    titre_apercu_.setBuddy(&apercu_);
    apercu_.setObjectName("apercu");
    apercu_.setAccessibleName("Ce que la restauration change");
    compte_rendu_.setObjectName("compte_rendu");
    restaurer_.setObjectName("restaurer");
    restaurer_.setText("Restaurer");
    restaurer_.setToolTip("Remet cette version en place ; la version actuelle est d'abord gardée");
    Fermer.setObjectName("Fermer");
    Fermer.setText("Fermer");
    Fermer.setToolTip("Ferme la fenêtre");
}

void Restauration::placer() {
    liste_.setHeaderLabels({"Fichier", "Date", "Taille"});
    liste_.setRootIsDecorated(false);
    liste_.setAllColumnsShowFocus(true);
    liste_.setUniformRowHeights(true);
    liste_.header()->setStretchLastSection(false);
    liste_.header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    liste_.header()->setSectionResizeMode(0, QHeaderView::Stretch);
    apercu_.setReadOnly(true);
    apercu_.setLineWrapMode(QPlainTextEdit::NoWrap);
    apercu_.setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    for (QLabel* texte : {&titre_apercu_, &compte_rendu_}) {
        texte->setTextFormat(Qt::PlainText); // a path may look like markup
        texte->setWordWrap(true);
    }
    compte_rendu_.setTextInteractionFlags(Qt::TextSelectableByMouse);
    compte_rendu_.hide();

    auto* haut = new QHBoxLayout;
    haut->addWidget(&titre_filtre_);
    haut->addWidget(&filtre_, 1);
    auto* droite = new QWidget;
    auto* colonne_droite = new QVBoxLayout(droite);
    colonne_droite->setContentsMargins(0, 0, 0, 0);
    colonne_droite->addWidget(&titre_apercu_);
    colonne_droite->addWidget(&apercu_, 1);
    auto* partage = new QSplitter;
    partage->addWidget(&liste_);
    partage->addWidget(droite);
    partage->setStretchFactor(1, 1);
    partage->setSizes({540, 400});
    partage->setChildrenCollapsible(false);
    auto* bas = new QHBoxLayout;
    bas->addWidget(&restaurer_);
    bas->addStretch();
    bas->addWidget(&Fermer);
    auto* colonne = new QVBoxLayout(this);
    colonne->addLayout(haut);
    colonne->addWidget(partage, 1);
    colonne->addWidget(&compte_rendu_);
    colonne->addLayout(bas);
    resize(960, 520);
}
