// How the options window looks: names, captions, tool tips and places of its controls.
#include "ui/commun/icones_commandes.h"
#include "ui/commun/separateur.h"
#include "ui/commun/style.h"
#include "ui/principale/foption.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QStyleOptionButton>
#include <QStylePainter>
#include <QVBoxLayout>

#include <array>
#include <initializer_list>

namespace {

struct Libelle {
    QWidget& controle;
    const char* nom;
    const char* texte;
    const char* bulle;
};

void ecrire_texte(QWidget& controle, const char* texte) {
    if (auto* bouton = qobject_cast<QAbstractButton*>(&controle))
        bouton->setText(texte);
    else if (auto* etiquette = qobject_cast<QLabel*>(&controle))
        etiquette->setText(texte);
}

} // namespace

void CaseLibelle::paintEvent(QPaintEvent*) {
    QStyleOptionButton option;
    initStyleOption(&option);
    QStylePainter(this).drawItemText(rect(),
                                     Qt::AlignLeft | Qt::AlignVCenter | Qt::TextShowMnemonic,
                                     palette(), isEnabled(), text(), QPalette::WindowText);
}

void FOption::nommer() {
    constexpr auto nombre = "Donner le nombre du robots sur l'aire de jeu";
    constexpr auto carreaux = "Donne le nombre de carreaux détectés sous l'extrémité du robot";
    for (const Libelle& l : std::initializer_list<Libelle>{
             {Check1, "Check1", "Affichage rapide",
              "Affiche le parcours de la trajectoire rapidement"},
             {Check2, "Check2", "Traitement allégé", "Décocher cette case pour les PC peu rapides"},
             {Check3, "Check3", "Table horizontale",
              "Cocher pour changer l'orientation de l'aire de jeu"},
             {Check4, "Check4", "Nbr de Robot", nombre},
             {VScroll1, "VScroll1", "",
              "Le nombre ne fait que descendre. Pour remettre des robots : clic droit sur l'aire "
              "de "
              "jeu, ou « Charger »."},
             {NbRO, "NbRO", "1", nombre},
             {utiliDamier, "utiliDamier", "Util. du damier",
              "Cocher pour utiliser le damier. Dans le cas où cette option est sélectionnée, la "
              "génération du fichier PICBASIC correspondant prendra en compte cette option."},
             {lb_utilcarreaux, "lb_utilcarreaux", "Nbre Carreaux", carreaux},
             {nbre_carreaux, "nbre_carreaux", "", carreaux},
             {Command1, "Command1", "Démarrer", "Démarre une trajectoire. "},
             {Command2, "Command2", "Charger",
              "Charge un projet Si la trajectoire du projet précédemment chargé est nouvelle, "
              "possibilité de l'enregistrer."},
             {Command5, "Command5", "Télécommande", "Ouvre la fenêtre de création de trajectoire."},
             {dessinAire, "dessinAire", "Créer un projet...",
              "Crée un projet: Dessin de la table et du robot."},
             {generer, "generer", "Générer code PICBASIC",
              "Ouvre la fenêtre de génération de trajectoire pour le PICBASIC."},
             {Aide, "Aide", "Aide", "Ouvre l'aide du logiciel"},
             {Command4, "Command4", "Quitter", "Quitte le logiciel"}}) {
        l.controle.setObjectName(l.nom);
        ecrire_texte(l.controle, l.texte);
        l.controle.setToolTip(l.bulle);
    }
    recents_.setObjectName("recents");
    recents_.setAccessibleName("Projets récents");
    recents_.setToolTip("Charge un des derniers projets");
    recents_.setArrowType(Qt::DownArrow);
    setObjectName("FOption");
    setWindowTitle("Option");
    Check1.setChecked(true);
    VScroll1.setAccessibleName("Nombre de robots");
    nbre_carreaux.setAccessibleName("Nombre de carreaux");
    damier_tourne_.setObjectName("damier_tourne");
    damier_tourne_.setText("Table tournée : les comptes\ndiffèrent de ceux de la\ntable droite.");
    damier_tourne_.hide();
}

void FOption::placer() {
    auto* colonne = new QVBoxLayout(this);
    colonne->setSizeConstraint(QLayout::SetFixedSize);
    colonne->setContentsMargins(style::marge, style::marge, style::marge, style::marge);
    colonne->setSpacing(style::ecart);
    for (QCheckBox* boite : {&Check1, &Check2, &Check3})
        colonne->addWidget(boite);
    colonne->addLayout(placer_robots());
    colonne->addWidget(separateur());
    colonne->addWidget(&utiliDamier);
    colonne->addLayout(placer_carreaux());
    colonne->addWidget(&damier_tourne_);
    colonne->addWidget(separateur());
    colonne->addLayout(placer_boutons());
}

QLayout* FOption::placer_robots() {
    retablir_plage();
    VScroll1.setFixedHeight(style::hauteur_barre_nombre);
    NbRO.setAlignment(Qt::AlignCenter);
    NbRO.setFrameStyle(int(QFrame::Panel) | int(QFrame::Sunken));
    NbRO.setMinimumWidth(NbRO.fontMetrics().averageCharWidth() * 4);
    auto* rangee = new QHBoxLayout;
    rangee->setSpacing(style::ecart_serre);
    rangee->addWidget(&Check4);
    rangee->addStretch();
    rangee->addWidget(&NbRO, 0, Qt::AlignVCenter);
    rangee->addWidget(&VScroll1);
    return rangee;
}

// Hidden until the box is ticked; their place stays, so that nothing jumps.
QLayout* FOption::placer_carreaux() {
    nbre_carreaux.setText("0");
    nbre_carreaux.setAlignment(Qt::AlignRight);
    nbre_carreaux.setMaximumWidth(nbre_carreaux.fontMetrics().averageCharWidth() * 10);
    lb_utilcarreaux.setBuddy(&nbre_carreaux);
    auto* rangee = new QHBoxLayout;
    rangee->addWidget(&lb_utilcarreaux);
    rangee->addStretch();
    rangee->addWidget(&nbre_carreaux);
    for (QWidget* controle : std::initializer_list<QWidget*>{&lb_utilcarreaux, &nbre_carreaux}) {
        QSizePolicy place = controle->sizePolicy();
        place.setRetainSizeWhenHidden(true);
        controle->setSizePolicy(place);
        controle->hide();
    }
    return rangee;
}

QLayout* FOption::placer_boutons() {
    auto* colonne = new QVBoxLayout;
    colonne->setSpacing(style::ecart_serre);
    for (const auto& [bouton, commande] : std::initializer_list<std::pair<QPushButton&, Commande>>{
             {Command1, Commande::demarrer},
             {Command2, Commande::charger},
             {Command5, Commande::telecommande},
             {dessinAire, Commande::creer},
             {generer, Commande::generer},
             {Aide, Commande::aide},
             {Command4, Commande::quitter}}) {
        bouton.setEnabled(false); // until a procedure is given to it
        bouton.setIcon(icone(commande, &bouton == &Command1));
        style::aligner_a_gauche(bouton);
        if (&bouton != &Command2) {
            colonne->addWidget(&bouton);
            continue;
        }
        auto* rangee = new QHBoxLayout;
        rangee->addWidget(&bouton, 1);
        rangee->addWidget(&recents_);
        colonne->addLayout(rangee);
    }
    style::mettre_en_avant(Command1);
    Command1.setMinimumHeight(Command1.sizeHint().height() * 4 / 3);
    return colonne;
}
