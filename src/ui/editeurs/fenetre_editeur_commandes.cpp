// The editors' menus and toolbar.
#include "ui/commun/touches_annulation.h"
#include "ui/commun/vue_echelle.h"
#include "ui/editeurs/fenetre_editeur.h"
#include "ui/editeurs/icones_dessin.h"

#include <QAction>
#include <QActionGroup>
#include <QClipboard>
#include <QGuiApplication>
#include <QMenuBar>
#include <QToolBar>
#include <QToolButton>
#include <QUndoStack>

namespace {

/// "Annuler : Déplacer (Ctrl+Z)"
QString bulle(const QAction& a) {
    const QString touche = a.shortcut().toString(QKeySequence::NativeText);
    const QString texte = a.text().remove('&');
    return touche.isEmpty() ? texte : texte + " (" + touche + ")";
}

} // namespace

QAction* FenetreEditeur::action(QMenu& menu, const char* nom, const QString& texte,
                                const QKeySequence& touche, std::function<void()> faire,
                                Qt::ConnectionType quand) {
    QAction* a = menu.addAction(texte);
    a->setObjectName(nom);
    a->setShortcut(touche);
    a->setIcon(icone_commande(nom));
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
    preparer_grille(affichage);
}

void FenetreEditeur::preparer_grille(QMenu& affichage) {
    affichage.addSection("Grille");
    const auto bascule = [&](const char* nom, const QString& texte, const QKeySequence& touche,
                             void (VueEchelle::*faire)(bool)) {
        QAction* a = action(affichage, nom, texte, touche, [] {});
        a->setCheckable(true);
        a->setChecked(true);
        connect(a, &QAction::toggled, &vue(), [this, faire](bool oui) { (vue().*faire)(oui); });
    };
    bascule("grille", "Afficher la &grille", QKeySequence("Ctrl+G"), &VueEchelle::montrer_grille);
    bascule("accrocher", "A&ccrocher à la grille", QKeySequence("Ctrl+Shift+G"),
            &VueEchelle::accrocher);
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

void FenetreEditeur::preparer_presse_papiers() {
    QMenu& m = *menu_edition_;
    const auto prendre = [this] {
        if (const std::string lignes = copier(); !lignes.empty())
            QGuiApplication::clipboard()->setText(QString::fromStdString(lignes));
    };
    action(m, "couper", "Co&uper", QKeySequence::Cut, [this, prendre] {
        prendre();
        retirer();
    });
    action(m, "copier", "&Copier", QKeySequence::Copy, prendre);
    action(m, "coller", "C&oller", QKeySequence::Paste,
           [this] { coller(QGuiApplication::clipboard()->text().toStdString()); });
    m.addSeparator();
}

void FenetreEditeur::preparer_alignement() {
    QMenu& m = *menu_edition_->addMenu("A&ligner");
    m.menuAction()->setObjectName("aligner");
    m.setIcon(icone_commande("aligner"));
    struct Commande {
        const char *nom, *texte;
        Bord bord;
    };
    for (const Commande& c :
         {Commande{"aligner_gauche", "À &gauche", Bord::gauche},
          Commande{"aligner_droite", "À &droite", Bord::droite},
          Commande{"aligner_haut", "En &haut", Bord::haut},
          Commande{"aligner_bas", "En &bas", Bord::bas},
          Commande{"aligner_milieu_x", "Sur la même &verticale", Bord::milieu_x},
          Commande{"aligner_milieu_y", "Sur la même h&orizontale", Bord::milieu_y}})
        action(m, c.nom, c.texte, {}, [this, bord = c.bord] { aligner(bord); });
}

QAction* FenetreEditeur::commande_ou_trait(const QString& nom) {
    if (!nom.isEmpty())
        return findChild<QAction*>(nom);
    auto* trait = new QAction(this);
    trait->setSeparator(true);
    return trait;
}

void FenetreEditeur::preparer_menu_contextuel(std::initializer_list<const char*> noms) {
    contextuel_.setObjectName("contextuel");
    for (const char* nom : noms)
        contextuel_.addAction(commande_ou_trait(nom));
}

void FenetreEditeur::preparer_barre(std::initializer_list<const char*> noms) {
    QToolBar& barre = *addToolBar("Commandes");
    barre.setObjectName("barre");
    barre.setMovable(false);
    barre.setIconSize({cote_icone, cote_icone});
    barre.setContextMenuPolicy(Qt::PreventContextMenu);
    for (const char* nom : noms) {
        QAction* a = commande_ou_trait(nom);
        barre.addAction(a);
        if (a->isSeparator())
            continue;
        auto& bouton = *qobject_cast<QToolButton*>(barre.widgetForAction(a));
        bouton.setObjectName(QString("barre_") + nom);
        bouton.setPopupMode(QToolButton::InstantPopup); // of a menu
        const auto decrire = [a, &bouton] {
            bouton.setToolTip(bulle(*a));
            bouton.setAccessibleName(a->text().remove('&'));
        };
        connect(a, &QAction::changed, &bouton, decrire);
        decrire();
    }
}
