#include "ui/editeurs/fenetre_editeur.h"

#include "ui/commun/nombre.h"
#include "ui/commun/touches_annulation.h"
#include "ui/commun/vue_echelle.h"
#include "ui/editeurs/colonne_palette.h"
#include "ui/editeurs/foutil.h"

#include <QCloseEvent>
#include <QMenuBar>
#include <QSplitter>
#include <QStatusBar>
#include <QUndoStack>

FenetreEditeur::FenetreEditeur(QWidget* parent, Foutil& outils, Programme programme,
                               Description description)
    : QMainWindow(parent, Qt::Window),
      outils_(outils),
      programme_(std::move(programme)),
      description_(std::move(description)),
      reprise_(programme_.configuration, description_.genre) {
    constexpr int au_plus_ms = 500;
    attente_reprise_.setSingleShot(true);
    attente_reprise_.setInterval(au_plus_ms);
    connect(&attente_reprise_, &QTimer::timeout, this, [this] { ecrire_reprise(); });
    annuler_de_partout(*this);
}

void FenetreEditeur::assembler(Contenu contenu) {
    contenu_.emplace(contenu);
    auto* partage = new QSplitter;
    if (description_.genre != GenreFichier::trajet)
        partage->addWidget(colonne_ = new ColonnePalette(outils_));
    partage->addWidget(&contenu.vue);
    partage->addWidget(&contenu.panneau);
    partage->setStretchFactor(partage->indexOf(&contenu.vue), 1);
    if (colonne_ != nullptr)
        contenu.largeurs.prepend(colonne_->width());
    partage->setSizes(contenu.largeurs);
    setCentralWidget(partage);
    position_.setObjectName("position");
    position_.setText("x, y");
    comptes_.setObjectName("comptes");
    statusBar()->addPermanentWidget(&comptes_);
    statusBar()->addPermanentWidget(&position_);
    resize(900 + (colonne_ != nullptr ? colonne_->width() : 0), 600);
}

void FenetreEditeur::preparer_menus() {
    preparer_fichier();
    menu_edition_ = menuBar()->addMenu("É&dition");
    preparer_annulation();
    preparer_edition();
    preparer_affichage();
    connect(&pile(), &QUndoStack::cleanChanged, this, [this] { montrer_titre(); });
    connect(&pile(), &QUndoStack::indexChanged, this, [this] {
        if (!attente_reprise_.isActive())
            attente_reprise_.start();
    });
    commencer();
    montrer_titre();
}

void FenetreEditeur::accueillir_palette() {
    if (colonne_ != nullptr)
        colonne_->accueillir();
}

void FenetreEditeur::suivre_palette() {
    if (colonne_ != nullptr)
        colonne_->suivre();
}

void FenetreEditeur::outil_change() {
    const Outil& outil = outils_.en_main();
    if (outil.forme == Outil::Forme::selection)
        return statusBar()->clearMessage();
    const QString geste =
        outil.forme == Outil::Forme::brisee
            ? " : cliquer chaque point ; le premier la ferme, Entrée la finit, Retour arrière "
              "reprend un point, Échap abandonne"
            : " : cliquer, ou tracer avec la souris (Alt ou Ctrl : sans la grille, "
              "Maj : garder l'outil)";
    statusBar()->showMessage(outil.texte + geste);
}

void FenetreEditeur::montrer_titre() {
    setWindowTitle((chemin_.empty() ? "Sans nom" : texte_qt(chemin_.filename().string())) +
                   "[*] – " + description_.titre);
    setWindowModified(!pile().isClean());
}

bool FenetreEditeur::prendre_la_saisie() {
    const QString refus = ::prendre_la_saisie(*this);
    if (!refus.isEmpty())
        boites_.message(refus.toStdString());
    return refus.isEmpty();
}

void FenetreEditeur::changeEvent(QEvent* evenement) {
    QMainWindow::changeEvent(evenement);
    if (evenement->type() != QEvent::ActivationChange)
        return;
    if (isActiveWindow()) {
        outils_.suivre(description_.genre);
        accueillir_palette();
        fichier_change(); // what belongs to it may have changed meanwhile
    } else if (attente_reprise_.isActive()) {
        ecrire_reprise();
    }
}

void FenetreEditeur::closeEvent(QCloseEvent* evenement) {
    const bool part = peut_partir();
    if (part)
        partir();
    evenement->setAccepted(part);
}
