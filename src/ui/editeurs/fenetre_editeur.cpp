#include "ui/editeurs/fenetre_editeur.h"

#include "ui/commun/nombre.h"
#include "ui/commun/touches_annulation.h"
#include "ui/commun/vue_echelle.h"
#include "ui/editeurs/foutil.h"

#include <QAction>
#include <QActionGroup>
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
    partage->addWidget(&contenu.vue);
    partage->addWidget(&contenu.panneau);
    partage->setStretchFactor(0, 1);
    partage->setSizes(contenu.largeurs);
    setCentralWidget(partage);
    position_.setObjectName("position");
    position_.setText("x, y");
    comptes_.setObjectName("comptes");
    statusBar()->addPermanentWidget(&comptes_);
    statusBar()->addPermanentWidget(&position_);
    resize(900, 600);
}

QAction* FenetreEditeur::action(QMenu& menu, const char* nom, const QString& texte,
                                const QKeySequence& touche, std::function<void()> faire,
                                Qt::ConnectionType quand) {
    QAction* a = menu.addAction(texte);
    a->setObjectName(nom);
    a->setShortcut(touche);
    const auto executer = [this, faire = std::move(faire)] {
        try {
            if (prendre_la_saisie())
                faire();
        } catch (const ErreurExecution& refus) { // a drawing's limit is an answer, no fault
            boites_.message(refus.what());
        }
    };
    connect(a, &QAction::triggered, this, executer, quand);
    return a;
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
    ouvert().commencer();
    montrer_titre();
}

void FenetreEditeur::preparer_fichier() {
    QMenu& fichier = *menuBar()->addMenu("&Fichier");
    // These may ask: later, so that an assistive tool that triggers one is not kept waiting.
    const auto ajouter = [&](const char* nom, const QString& texte, const QKeySequence& touche,
                             std::function<void()> faire) {
        action(fichier, nom, texte, touche, std::move(faire), Qt::QueuedConnection);
    };
    ajouter("nouveau", "&Nouveau", QKeySequence::New, [this] { nouveau(); });
    ajouter("ouvrir", "&Ouvrir...", QKeySequence::Open, [this] { choisir_un_fichier(); });
    fichier.addSeparator();
    ajouter("enregistrer", "&Enregistrer", QKeySequence::Save, [this] { enregistrer(); });
    ajouter("enregistrer_sous", "Enregistrer &sous...", QKeySequence("Ctrl+Shift+S"),
            [this] { enregistrer_sous(); });
    fichier.addSeparator();
    ajouter("fermer", "&Fermer", QKeySequence::Close, [this] { close(); });
}

// What is being typed is the last step: it is taken, then undone.
void FenetreEditeur::preparer_annulation() {
    QMenu& m = *menu_edition_;
    const auto nommer = [](QAction* a, const QString& verbe, const QString& pas) {
        a->setText(pas.isEmpty() ? verbe : verbe + " : " + pas);
    };
    QAction* annuler = action(m, "annuler", "&Annuler", {}, [this] { pile().undo(); });
    QAction* retablir = action(m, "retablir", "&Rétablir", {}, [this] { pile().redo(); });
    annuler->setShortcuts(touches_d_annulation());
    retablir->setShortcuts(touches_de_retablissement());
    for (QAction* a : {annuler, retablir})
        a->setEnabled(false);
    connect(&pile(), &QUndoStack::canUndoChanged, annuler, &QAction::setEnabled);
    connect(&pile(), &QUndoStack::canRedoChanged, retablir, &QAction::setEnabled);
    connect(&pile(), &QUndoStack::undoTextChanged, annuler,
            [=](const QString& pas) { nommer(annuler, "&Annuler", pas); });
    connect(&pile(), &QUndoStack::redoTextChanged, retablir,
            [=](const QString& pas) { nommer(retablir, "&Rétablir", pas); });
    m.addSeparator();
}

void FenetreEditeur::preparer_edition() {
    QMenu& m = *menu_edition_;
    action(m, "dupliquer", "&Dupliquer", QKeySequence("Ctrl+D"), [this] { dupliquer(); });
    QAction* supprimer =
        action(m, "supprimer", "&Supprimer", QKeySequence::Delete, [this] { retirer(); });
    QAction* tout =
        action(m, "tout", "&Tout choisir", QKeySequence::SelectAll, [this] { tout_choisir(); });
    // Within the view only: elsewhere these keys belong to the text and the numbers.
    for (QAction* a : {supprimer, tout}) {
        a->setShortcutContext(Qt::WidgetShortcut);
        vue().addAction(a);
    }
    preparer_pas();
    m.addSeparator();
}

void FenetreEditeur::preparer_pas() {
    QMenu& pas = *menu_edition_->addMenu("Déplacer d'un &pas");
    struct Fleche {
        const char* nom;
        Qt::Key touche;
        int dx, dy;
    };
    for (const Fleche& f :
         {Fleche{"gauche", Qt::Key_Left, -1, 0}, Fleche{"droite", Qt::Key_Right, 1, 0},
          Fleche{"haut", Qt::Key_Up, 0, 1}, Fleche{"bas", Qt::Key_Down, 0, -1}})
        for (const int n : {1, 10}) {
            QAction* a = action(pas, qPrintable(QString("pas_%1_%2").arg(f.nom).arg(n)),
                                QString("%1 cm : %2").arg(n).arg(f.nom),
                                QKeySequence(n == 10 ? Qt::SHIFT | f.touche : f.touche),
                                [this, f, n] { deplacer(f.dx * n, f.dy * n); });
            a->setShortcutContext(Qt::WidgetShortcut);
            vue().addAction(a);
        }
}

void FenetreEditeur::preparer_affichage() {
    QMenu& affichage = *menuBar()->addMenu("&Affichage");
    const auto milieu = [this] { return QRectF(vue().rect()).center(); };
    action(affichage, "zoom_plus", "Zoom &avant", QKeySequence("Ctrl++"),
           [this, milieu] { vue().zoomer(1.25, milieu()); });
    action(affichage, "zoom_moins", "Zoom a&rrière", QKeySequence("Ctrl+-"),
           [this, milieu] { vue().zoomer(0.8, milieu()); });
    action(affichage, "ajuster", "A&juster à la fenêtre", QKeySequence("Ctrl+0"),
           [this] { vue().ajuster(); });
    affichage.addSection("Grille");
    auto* pas = new QActionGroup(this);
    for (const int cm : {1, 5, 10}) {
        QAction* a =
            action(affichage, qPrintable(QString("grille_%1").arg(cm)),
                   QString("Grille de %1 cm").arg(cm), {}, [this, cm] { vue().regler_grille(cm); });
        a->setCheckable(true);
        a->setChecked(cm == vue().grille());
        pas->addAction(a);
    }
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
