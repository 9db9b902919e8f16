#include "ui/fenetre_editeur.h"

#include "base/fichiers.h"
#include "ui/foutil.h"
#include "ui/nouveau_projet.h"
#include "ui/vue_echelle.h"

#include <QAction>
#include <QActionGroup>
#include <QApplication>
#include <QCloseEvent>
#include <QFileDialog>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QStatusBar>
#include <QUndoStack>

namespace {

QString nom_court(const std::filesystem::path& chemin) {
    return texte_qt(chemin.filename().string());
}

} // namespace

FenetreEditeur::FenetreEditeur(QWidget* parent, Foutil& outils, Programme programme,
                               GenreFichier genre)
    : QMainWindow(parent, Qt::Window),
      outils_(outils),
      programme_(std::move(programme)),
      genre_(genre) {}

QAction* FenetreEditeur::action(QMenu& menu, const char* nom, const QString& texte,
                                const QKeySequence& touche, std::function<void()> faire,
                                Qt::ConnectionType quand) {
    QAction* a = menu.addAction(texte);
    a->setObjectName(nom);
    a->setShortcut(touche);
    const auto executer = [this, faire = std::move(faire)] {
        try {
            faire();
        } catch (const std::exception& erreur) {
            boites_.message(erreur.what());
        }
    };
    connect(a, &QAction::triggered, this, executer, quand);
    return a;
}

void FenetreEditeur::preparer_menus() {
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
    menu_edition_ = menuBar()->addMenu("É&dition");
    QAction* annuler = pile().createUndoAction(this, "&Annuler");
    QAction* retablir = pile().createRedoAction(this, "&Rétablir");
    annuler->setObjectName("annuler");
    annuler->setShortcut(QKeySequence::Undo);
    retablir->setObjectName("retablir");
    retablir->setShortcut(QKeySequence("Ctrl+Y"));
    menu_edition_->addActions({annuler, retablir});
    menu_edition_->addSeparator();
    preparer_edition();
    preparer_affichage();
    connect(&pile(), &QUndoStack::cleanChanged, this, [this] { montrer_titre(); });
    commencer();
    montrer_titre();
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
    setWindowTitle((chemin_.empty() ? "Sans nom" : nom_court(chemin_)) + "[*] – " +
                   (genre_ == GenreFichier::table ? "Dessin de la table" : "Dessin du robot"));
    setWindowModified(!pile().isClean());
}

void FenetreEditeur::nouveau() {
    if (!peut_partir())
        return;
    chemin_.clear();
    veilleur_.suivre({});
    commencer();
    montrer_titre();
    vue().ajuster();
}

void FenetreEditeur::choisir_un_fichier() {
    if (!peut_partir())
        return;
    const QString filtre = genre_ == GenreFichier::table
                               ? "Fichiers de table (* Table.ini);;Tous les fichiers (*)"
                               : "Fichiers de robot (* Robot?.ini);;Tous les fichiers (*)";
    const QString nom = QFileDialog::getOpenFileName(
        this, "Ouvrir ...", texte_qt(programme_.configuration.string()), filtre);
    if (!nom.isEmpty())
        ouvrir(nom.toStdString());
}

bool FenetreEditeur::ouvrir(const std::filesystem::path& chemin) {
    try {
        std::string lus = lire_octets(chemin);
        const std::vector<int> incomprises = lire(lus);
        chemin_ = chemin;
        sur_le_disque_ = std::move(lus);
        remplacement_accepte_ = false;
        veilleur_.suivre({chemin_, chemin_.parent_path()});
        montrer_titre();
        vue().ajuster();
        if (!incomprises.empty())
            boites_.message("Fichier " + chemin.string() + " : " +
                            std::to_string(incomprises.size()) +
                            " ligne(s) non comprise(s), gardée(s) à leur place. Première : ligne " +
                            std::to_string(incomprises.front()));
        return true;
    } catch (const ErreurExecution& erreur) {
        boites_.message(erreur.what());
        return false;
    }
}

// Another program has saved the file: it is read again, after a question when that would lose
// changes. What is seen of the drawing stays.
void FenetreEditeur::verifier_disque() {
    std::error_code absent;
    if (chemin_.empty() || !std::filesystem::is_regular_file(chemin_, absent))
        return;
    if (QApplication::activeModalWidget() != nullptr)
        return veilleur_.remettre(); // one question at a time
    try {
        std::string lus = lire_octets(chemin_);
        if (lus == sur_le_disque_ || lus == refuses_)
            return;
        const std::string nom = chemin_.filename().string();
        if (!pile().isClean() &&
            !boites_.question("Le fichier " + nom +
                              " a été modifié par un autre programme. Doit-on le relire et perdre "
                              "les changements du dessin ?")) {
            refuses_ = std::move(lus);
            return;
        }
        lire(lus);
        sur_le_disque_ = std::move(lus);
        montrer_titre();
        statusBar()->showMessage("Relu après un changement : " + texte_qt(nom), 10000);
    } catch (const ErreurExecution& erreur) {
        boites_.message(erreur.what());
    }
}

bool FenetreEditeur::peut_remplacer(const std::filesystem::path& chemin) {
    std::error_code absent;
    if (!std::filesystem::exists(chemin, absent))
        return true;
    const bool le_mien = chemin == chemin_;
    const bool change = le_mien && lire_octets(chemin) != sur_le_disque_;
    if (le_mien && remplacement_accepte_ && !change)
        return true;
    const std::string nom = chemin.filename().string();
    return boites_.question(
        change ? "Le fichier " + nom + " a été modifié depuis son ouverture. Doit-on le remplacer ?"
               : "Le fichier " + nom + " existe déjà. Doit-on le remplacer ?");
}

bool FenetreEditeur::genererFic(const std::filesystem::path& chemin) {
    try {
        const std::string texte = octets();
        if (const auto refus = relire(texte);
            refus && !boites_.question("Le simulateur refusera ce fichier à la ligne " +
                                       std::to_string(refus->ligne) + " (" + refus->raison +
                                       "). Doit-on l'enregistrer quand même ?"))
            return false;
        if (!peut_remplacer(chemin))
            return false;
        ecrire(chemin, texte);
    } catch (const std::exception& erreur) { // the drawing stays, whatever the disk says
        boites_.message(erreur.what());
        return false;
    }
    proposer_de_charger();
    return true;
}

void FenetreEditeur::ecrire(const std::filesystem::path& chemin, const std::string& octets) {
    std::error_code erreur;
    std::filesystem::create_directories(programme_.configuration, erreur);
    if (erreur)
        throw ErreurFichier(programme_.configuration, erreur.value());
    sauvegarder_version(chemin, programme_.configuration / "Sauvegardes");
    remplacer_fichier(chemin, octets);
    if (programme_.ecrit)
        programme_.ecrit(chemin);
    chemin_ = chemin;
    sur_le_disque_ = octets;
    remplacement_accepte_ = true;
    veilleur_.suivre({chemin_, chemin_.parent_path()});
    pile().setClean();
    montrer_titre();
    statusBar()->showMessage("Enregistré : " + nom_court(chemin), 5000);
}

void FenetreEditeur::proposer_de_charger() {
    const std::string projet = projet_du_nom(chemin_.stem().string(), genre_);
    std::error_code erreur;
    const bool a_sa_place =
        std::filesystem::equivalent(chemin_.parent_path(), programme_.configuration, erreur);
    if (a_sa_place && !projet.empty() &&
        boites_.question("Doit-on charger le projet " + projet + " maintenant ?"))
        programme_.charger(projet);
}

bool FenetreEditeur::enregistrer() {
    return chemin_.empty() ? enregistrer_sous() : genererFic(chemin_);
}

bool FenetreEditeur::enregistrer_sous() {
    const bool table = genre_ == GenreFichier::table;
    outils_.suivre(!table); // the dialog writes what the palette says
    nouveauProjet dialogue(this, outils_, programme_.configuration);
    (table ? dialogue.table : dialogue.robot) = [this](const std::filesystem::path& chemin) {
        return genererFic(chemin);
    };
    return dialogue.exec() == QDialog::Accepted;
}

bool FenetreEditeur::peut_partir() {
    if (pile().isClean())
        return true;
    QMessageBox boite(this);
    boite.setObjectName("enregistrer");
    boite.setWindowTitle("Tavolmex");
    boite.setIcon(QMessageBox::Question);
    boite.setTextFormat(Qt::PlainText);
    boite.setText("Le dessin a été modifié. Doit-on l'enregistrer ?");
    boite.setStandardButtons(QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel);
    boite.button(QMessageBox::Save)->setText("Enregistrer");
    boite.button(QMessageBox::Discard)->setText("Ne pas enregistrer");
    boite.button(QMessageBox::Cancel)->setText("Annuler");
    boite.setDefaultButton(QMessageBox::Save);
    const int reponse = boite.exec();
    if (reponse == QMessageBox::Save)
        return enregistrer();
    if (reponse == QMessageBox::Discard) {
        if (chemin_.empty())
            commencer();
        else
            lire(sur_le_disque_);
        return true;
    }
    return false;
}

void FenetreEditeur::changeEvent(QEvent* evenement) {
    QMainWindow::changeEvent(evenement);
    if (evenement->type() == QEvent::ActivationChange && isActiveWindow())
        outils_.suivre(genre_ == GenreFichier::robot);
}

void FenetreEditeur::closeEvent(QCloseEvent* evenement) {
    if (peut_partir())
        evenement->accept();
    else
        evenement->ignore();
}
