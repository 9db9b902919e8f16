#include "ui/generation/visualiser.h"

#include "base/fichiers.h"
#include "sim/fenetres.h"
#include "ui/commun/boites.h"
#include "ui/commun/bureau.h"
#include "ui/commun/place.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QRegularExpression>
#include <QScrollBar>
#include <QShortcut>
#include <QSplitter>
#include <QVBoxLayout>

#include <algorithm>

Visualiser::Visualiser(QWidget* parent, Fenetres& fenetres, Bureau& bureau,
                       std::filesystem::path FichierVisu)
    : QWidget(parent, Qt::Window),
      fenetres_(fenetres),
      bureau_(bureau),
      FichierVisu_(std::move(FichierVisu)),
      coloration_(Visu),
      veilleur_([this] { relire(); }) {
    nommer();
    placer();
    connecter();
    retenir_place(*this);
}

void Visualiser::nommer() {
    setObjectName("Visualiser");
    setWindowTitle("Visualisation du Code PICBASIC...");
    Label1.setObjectName("Label1");
    Label1.setText("Liste des Fonctions et étiquettes PICBASIC:");
    Label1.setBuddy(&LFonc);
    LFonc.setObjectName("LFonc");
    LFonc.setAccessibleName("Fonctions et étiquettes");
    LFonc.setToolTip("Sélectionner une ligne pour visualiser le code de la fonction dans la liste "
                     "\"contenu\".");
    Label2.setObjectName("Label2");
    Label2.setText("Code correspondant:");
    Label2.setBuddy(&Visu);
    Visu.setObjectName("Visu");
    Visu.setAccessibleName("Code de la fonction");
    Visu.setToolTip("Visualisation d'une fonction sélectionnée");
    recherche_.setObjectName("recherche");
    recherche_.setAccessibleName("Texte à chercher");
    recherche_.setPlaceholderText("Chercher (Ctrl+F)");
    recherche_.setClearButtonEnabled(true);
    chercher_.setObjectName("chercher");
    chercher_.setText("Suivant");
    chercher_.setToolTip("Cherche dans cette fonction, puis dans les suivantes (F3)");
    retour_.setObjectName("retour");
    retour_.setText("Retour");
    retour_.setToolTip("Revient à la fonction d'où partait le Gosub (Alt+Gauche)");
    retour_.setEnabled(false);
    Fermer.setObjectName("Fermer");
    Fermer.setText("Fermer");
    Fermer.setToolTip("Ferme la fenêtre");
}

void Visualiser::placer() {
    auto* gauche = new QWidget;
    auto* colonne_gauche = new QVBoxLayout(gauche);
    colonne_gauche->setContentsMargins(0, 0, 0, 0);
    colonne_gauche->addWidget(&Label1);
    colonne_gauche->addWidget(&LFonc);
    auto* droite = new QWidget;
    auto* colonne_droite = new QVBoxLayout(droite);
    colonne_droite->setContentsMargins(0, 0, 0, 0);
    colonne_droite->addWidget(&Label2, 0, Qt::AlignTop); // above nothing, at first
    colonne_droite->addWidget(&Visu);
    auto* partage = new QSplitter;
    partage->addWidget(gauche);
    partage->addWidget(droite);
    partage->setStretchFactor(1, 1);
    partage->setChildrenCollapsible(false);
    auto* bas = new QHBoxLayout;
    bas->addWidget(&retour_);
    bas->addWidget(&recherche_, 1);
    bas->addWidget(&chercher_);
    bas->addStretch();
    bas->addWidget(&Fermer);
    auto* colonne = new QVBoxLayout(this);
    colonne->addWidget(partage, 1);
    colonne->addLayout(bas);
    resize(860, 560);
}

void Visualiser::connecter() {
    const auto relier = [this](QPushButton& bouton, void (Visualiser::*procedure)()) {
        connect(&bouton, &QPushButton::clicked, this, procedure);
    };
    relier(Fermer, &Visualiser::Fermer_Click);
    relier(chercher_, &Visualiser::chercher);
    relier(retour_, &Visualiser::revenir);
    connect(&LFonc, &QListWidget::currentRowChanged, this, [this] { LFonc_Click(); });
    connect(&recherche_, &QLineEdit::returnPressed, this, [this] { chercher(); });
    connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, &recherche_, [this] {
        recherche_.setFocus();
        recherche_.selectAll();
    });
    connect(new QShortcut(QKeySequence::FindNext, this), &QShortcut::activated, &chercher_,
            &QPushButton::click);
    connect(new QShortcut(QKeySequence::Back, this), &QShortcut::activated, &retour_,
            &QPushButton::click);
    Visu.au_double_clic = [this](const QString& ligne, int colonne) { suivre(ligne, colonne); };
}

void Visualiser::lire() {
    programme_ = std::make_unique<Programme>(lire_octets(FichierVisu_));
    etiquettes_ = lister_etiquettes(*programme_);
    for (const Etiquette& e : etiquettes_)
        LFonc.addItem(texte_qt(e.texte));
}

void Visualiser::Form_Load() {
    LFonc.clear();
    Visu.clear();
    Visu.hide();
    etiquettes_.clear();
    try {
        lire();
    } catch (const ErreurExecution& erreur) {
        fenetres_.message("Erreur lors de la lecture du fichier " + FichierVisu_.string(),
                          std::string("Raison : ") + erreur.what());
        return;
    }
    const QString fichier = texte_qt(FichierVisu_.string());
    setWindowFilePath(fichier);
    setWindowTitle("Visualisation du Code PICBASIC...");
    veilleur_.suivre({FichierVisu_, FichierVisu_.parent_path()});
    Visu.show();
}

// Keeps the selected label and the place in its code. A file that is gone for the moment leaves
// what is shown.
void Visualiser::relire() {
    std::error_code erreur;
    if (!std::filesystem::is_regular_file(FichierVisu_, erreur))
        return;
    const std::string octets = lire_octets(FichierVisu_);
    if (programme_ && octets == programme_->octets())
        return;
    const int rang = LFonc.currentRow();
    const QString choisie = rang < 0 ? QString() : LFonc.item(rang)->text();
    const int defilement = Visu.verticalScrollBar()->value();
    chemin_suivi_.clear(); // rows of the former list
    retour_.setEnabled(false);
    LFonc.blockSignals(true);
    LFonc.clear();
    lire();
    LFonc.blockSignals(false);
    Visu.show();
    const auto memes = LFonc.findItems(choisie, Qt::MatchFixedString | Qt::MatchCaseSensitive);
    choisir(memes.isEmpty() ? -1 : LFonc.row(memes.front()));
    LFonc_Click();
    Visu.verticalScrollBar()->setValue(defilement);
}

void Visualiser::choisir(int rang) {
    LFonc.setCurrentRow(rang);
}

void Visualiser::LFonc_Click() {
    const int rang = LFonc.currentRow();
    if (rang < 0 || !programme_)
        return Visu.montrer({}, 0);
    const std::string& etiquette = etiquettes_.at(std::size_t(rang)).texte;
    // Of equal labels the last one is shown.
    std::size_t ligne = 0;
    for (const Etiquette& e : etiquettes_) {
        if (e.texte == etiquette)
            ligne = e.ligne;
    }
    Visu.montrer(texte_qt(corps_de(*programme_, etiquette)), int(ligne) - 1);
}

// The jump under the pointer, else the line's first one.
void Visualiser::suivre(const QString& ligne, int colonne) {
    static const QRegularExpression saut(R"(\bgo(?:sub|to)\s+([A-Za-z_][A-Za-z0-9_]*))",
                                         QRegularExpression::CaseInsensitiveOption);
    auto trouve = saut.match(ligne);
    if (!trouve.hasMatch())
        return;
    for (const auto& autre : saut.globalMatch(ligne))
        if (autre.capturedStart() <= colonne)
            trouve = autre;
    const auto rang = chercher_etiquette(etiquettes_, trouve.captured(1).toStdString());
    if (!rang)
        return fenetres_.message("L'étiquette " + trouve.captured(1).toStdString() +
                                 " n'est pas dans ce fichier.");
    chemin_suivi_.push_back(LFonc.currentRow());
    retour_.setEnabled(true);
    choisir(int(*rang));
}

void Visualiser::revenir() {
    if (chemin_suivi_.empty())
        return;
    choisir(chemin_suivi_.back());
    chemin_suivi_.pop_back();
    retour_.setEnabled(!chemin_suivi_.empty());
}

void Visualiser::chercher() {
    const QString texte = recherche_.text();
    if (texte.isEmpty() || !programme_ || Visu.find(texte))
        return;
    // The next one in the list, the first one behind its end.
    const auto trouvees = chercher_dans_les_corps(*programme_, etiquettes_, texte.toStdString());
    if (!trouvees.empty()) {
        const auto ici = std::size_t(std::max(LFonc.currentRow(), 0));
        const auto suivante = std::upper_bound(trouvees.begin(), trouvees.end(), ici);
        choisir(int(suivante != trouvees.end() ? *suivante : trouvees.front()));
        Visu.moveCursor(QTextCursor::Start);
        Visu.find(texte);
        return;
    }
    fenetres_.message("« " + texte.toStdString() + " » ne se trouve dans aucune fonction.");
}

void Visualiser::Fermer_Click() {
    close();
    bureau_.cacher_options_et_console();
}

void Visualiser::keyPressEvent(QKeyEvent* evenement) {
    if (evenement->key() == Qt::Key_Escape)
        return Fermer.click();
    QWidget::keyPressEvent(evenement);
}
