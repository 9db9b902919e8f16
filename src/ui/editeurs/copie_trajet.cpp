#include "ui/editeurs/copie_trajet.h"

#include "base/erreurs.h"
#include "config/projet.h"
#include "ui/commun/boites.h"

#include <QFontDatabase>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QScreen>
#include <QStyle>
#include <QVBoxLayout>

#include <algorithm>

namespace {

QString noms(const std::vector<std::string>& fonctions) {
    QStringList liste;
    for (const std::string& nom : fonctions)
        liste << texte_qt(nom);
    return liste.join(" et ");
}

} // namespace

CopieTrajet::CopieTrajet(QWidget* parent, const Copie& propose, Composer composer)
    : QDialog(parent), composer_(std::move(composer)), coloration_(apercu_) {
    nommer();
    placer();
    proposer(propose);
    connecter();
    actualiser();
}

void CopieTrajet::nommer() {
    setObjectName("copieTrajet");
    setWindowTitle("Copier vers un robot");
    robot_.setObjectName("versRobot");
    for (int n = 1; n <= robots_des_fichiers; ++n)
        robot_.addItem(QString("Robot %1").arg(n));
    cote_.setObjectName("cote");
    cote_.addItems({"Tel quel", "Autre côté : miroir gauche-droite", "Autre côté : miroir haut-bas",
                    "Autre côté : demi-tour"});
    generation_.setObjectName("generationDeLaCopie");
    generation_.setText("&Préparer aussi l'entrée du générateur");
    fonctions_.setObjectName("deuxFonctions");
    fonctions_.setText("Écrire ce trajet et sa copie &dans le programme PICBASIC");
    programme_.setObjectName("programmePicbasic");
    parcourir_.setObjectName("parcourirProgramme");
    parcourir_.setText("Parcourir…");
    noms_[0].setObjectName("fonctionDuTrajet");
    noms_[1].setObjectName("fonctionDeLaCopie");
    titre_.setObjectName("titreApercuCopie");
    titre_.setBuddy(&apercu_);
    titre_.setWordWrap(true);
    apercu_.setObjectName("apercuCopie");
    apercu_.setAccessibleName("Aperçu de ce qui change dans le programme");
    avertissements_.setObjectName("avertissementsCopie");
    avertissements_.setAccessibleName("Avertissements");
    copier_.setObjectName("copierTrajet");
    copier_.setText("Copier");
    copier_.setDefault(true);
    annuler_.setObjectName("annulerCopie");
    annuler_.setText("Annuler");
}

void CopieTrajet::placer() {
    apercu_.setReadOnly(true);
    apercu_.setTabChangesFocus(true);
    apercu_.setLineWrapMode(QPlainTextEdit::NoWrap);
    apercu_.setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    apercu_.setMinimumSize(520, 140);
    avertissements_.setWordWrap(true);
    avertissements_.setMaximumHeight(84);
    auto* fichier = new QHBoxLayout;
    fichier->addWidget(&programme_, 1);
    fichier->addWidget(&parcourir_);
    auto* code = new QFormLayout(&code_);
    code->setContentsMargins(0, 0, 0, 0);
    code->addRow("Pro&gramme :", fichier);
    code->addRow("&Fonction de ce trajet :", &noms_[0]);
    code->addRow("Fonction de la cop&ie :", &noms_[1]);
    code->addRow(&titre_);
    code->addRow(&apercu_);
    code->addRow(&avertissements_);
    qobject_cast<QLabel*>(code->labelForField(fichier))->setBuddy(&programme_);
    auto* choix = new QFormLayout;
    choix->addRow("&Vers :", &robot_);
    choix->addRow("&Côté :", &cote_);
    choix->addRow(&generation_);
    choix->addRow(&fonctions_);
    auto* pied = new QHBoxLayout;
    pied->addStretch();
    pied->addWidget(&copier_);
    pied->addWidget(&annuler_);
    auto* colonne = new QVBoxLayout(this);
    colonne->addLayout(choix);
    colonne->addWidget(&code_, 1);
    colonne->addLayout(pied);
}

void CopieTrajet::proposer(const Copie& propose) {
    robot_.setCurrentIndex(propose.vers - 1);
    // The sides stand behind "as it is", in the order of the mirrors.
    cote_.setCurrentIndex(propose.cote ? static_cast<int>(*propose.cote) + 1 : 0);
    generation_.setChecked(propose.generation);
    fonctions_.setChecked(propose.fonctions);
    programme_.setText(texte_qt(propose.programme.string()));
    for (std::size_t i = 0; i < noms_.size(); ++i)
        noms_.at(i).setText(texte_qt(propose.noms.at(i)));
    nom_propose_ = propose.noms[1].empty();
    proposer_un_nom();
}

void CopieTrajet::connecter() {
    connect(&copier_, &QPushButton::clicked, this, [this] { accept(); });
    connect(&annuler_, &QPushButton::clicked, this, [this] { reject(); });
    connect(&parcourir_, &QPushButton::clicked, this, [this] { choisir_un_programme(); });
    for (QComboBox* choix : {&robot_, &cote_})
        connect(choix, &QComboBox::currentIndexChanged, this, [this] { actualiser(); });
    connect(&fonctions_, &QCheckBox::toggled, this, [this] {
        actualiser();
        agrandir();
    });
    connect(&programme_, &QLineEdit::textChanged, this, [this] { actualiser(); });
    connect(&noms_[1], &QLineEdit::textEdited, this, [this] { nom_propose_ = false; });
    connect(&noms_[0], &QLineEdit::textEdited, this, [this] { proposer_un_nom(); });
    for (QLineEdit& nom : noms_)
        connect(&nom, &QLineEdit::textChanged, this, [this] { actualiser(); });
}

// As tall as what is shown, and still on the screen.
void CopieTrajet::agrandir() {
    adjustSize();
    const QRect ecran = screen()->availableGeometry();
    move(x(), std::max(ecran.top(), std::min(y(), ecran.bottom() - frameGeometry().height())));
}

void CopieTrajet::proposer_un_nom() {
    if (nom_propose_)
        noms_[1].setText(noms_[0].text() + "_AUTRE");
}

void CopieTrajet::choisir_un_programme() {
    const QString ici =
        texte_qt(std::filesystem::path(programme_.text().toStdString()).parent_path().string());
    const QString nom = Boites(*this).choisir_fichier(
        "Programme PICBASIC", ici, "Programmes PICBASIC (*.bas *.BAS);;Tous les fichiers (*)");
    if (!nom.isEmpty())
        programme_.setText(nom);
}

Copie CopieTrajet::copie() const {
    Copie c{.vers = robot_.currentIndex() + 1,
            .generation = generation_.isChecked(),
            .fonctions = fonctions_.isChecked(),
            .programme = programme_.text().toStdString(),
            .noms = {noms_[0].text().toStdString(), noms_[1].text().toStdString()}};
    if (const int rang = cote_.currentIndex(); rang > 0)
        c.cote = static_cast<Retournement>(rang - 1);
    return c;
}

void CopieTrajet::actualiser() {
    code_.setVisible(fonctions_.isChecked());
    apercu_.clear();
    avertissements_.clear();
    copier_.setEnabled(true);
    if (fonctions_.isChecked())
        composer();
    avertissements_.setVisible(avertissements_.count() > 0);
}

void CopieTrajet::composer() {
    try {
        const Ensemble e = composer_(copie());
        apercu_.setPlainText(texte_qt(e.apercu));
        titre_.setText(
            "Aperçu de ce qui sera retiré (-) et ajouté (+)" +
            (e.remplacees.empty() ? QString() : ", en remplaçant " + noms(e.remplacees)) + " :");
        for (const std::string& phrase : e.avertissements)
            new QListWidgetItem(style()->standardIcon(QStyle::SP_MessageBoxWarning),
                                texte_qt(phrase), &avertissements_);
    } catch (const ErreurExecution& erreur) {
        titre_.setText("Rien ne peut encore être écrit : " + texte_qt(erreur.what()));
        copier_.setEnabled(false);
    }
}
