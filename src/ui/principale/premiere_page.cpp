#include "ui/principale/premiere_page.h"

#include "config/projets.h"
#include "ui/commun/boites.h"

#include <QDir>
#include <QFile>
#include <QGridLayout>
#include <QKeyEvent>

namespace {

constexpr auto dossier_exemples = ":/exemples/";

enum class Contenu { vide, projet, exemple };

std::optional<std::string> lire_exemple(const std::string& nom, const std::string& suite) {
    QFile fichier(dossier_exemples + texte_qt(nom + suite));
    if (!fichier.open(QIODevice::ReadOnly))
        return std::nullopt;
    return fichier.readAll().toStdString();
}

QString en_liste(Contenu contenu, const std::string& nom) {
    return (contenu == Contenu::exemple ? "Exemple : " : "Copie de : ") + texte_qt(nom);
}

} // namespace

std::vector<std::string> exemples() {
    std::vector<std::string> noms;
    for (const QString& fichier :
         QDir(dossier_exemples).entryList({"*.bas"}, QDir::Files, QDir::Name))
        noms.push_back(fichier.chopped(4).toStdString());
    return noms;
}

PremierePage::PremierePage(std::filesystem::path configuration)
    : configuration_(std::move(configuration)) {
    nommer();
    placer();
    connect(&nom_, &QLineEdit::textChanged, this, [this] { suivre_le_nom(); });
    connect(&nom_, &QLineEdit::returnPressed, this, [this] { creer_.click(); });
    connect(&creer_, &QPushButton::clicked, this, [this] { creer(); });
    connect(&passer_, &QPushButton::clicked, this, [this] { hide(); });
}

void PremierePage::nommer() {
    setObjectName("premierePage");
    setWindowTitle("Nouveau projet");
    setMovable(false);
    titre_.setObjectName("titreNouveauProjet");
    titre_.setText("<b>Nouveau projet</b>");
    etiquette_nom_.setText("No&m");
    etiquette_nom_.setBuddy(&nom_);
    etiquette_contenu_.setText("C&ontenu");
    etiquette_contenu_.setBuddy(&contenu_);
    nom_.setObjectName("nomNouveauProjet");
    nom_.setAccessibleName("Nom du nouveau projet");
    nom_.setPlaceholderText("Finale");
    contenu_.setObjectName("contenuNouveauProjet");
    contenu_.setAccessibleName("Contenu du nouveau projet");
    creer_.setObjectName("creerProjet");
    creer_.setText("Créer");
    creer_.setToolTip("Écrit les fichiers du projet et ouvre sa table et son robot 1");
    passer_.setObjectName("passerProjet");
    passer_.setText("Passer");
    passer_.setToolTip("Dessiner sans nommer de projet");
    avis_.setObjectName("avisNouveauProjet");
    avis_.setWordWrap(true);
    avis_.setTextFormat(Qt::PlainText);
}

void PremierePage::placer() {
    auto* page = new QWidget;
    auto* grille = new QGridLayout(page);
    grille->setContentsMargins(6, 4, 6, 4);
    int colonne = 0;
    for (QWidget* controle : std::initializer_list<QWidget*>{
             &titre_, &etiquette_nom_, &nom_, &etiquette_contenu_, &contenu_, &creer_, &passer_})
        grille->addWidget(controle, 0, colonne++);
    grille->addWidget(&avis_, 1, 0, 1, colonne);
    grille->setColumnStretch(2, 2);
    grille->setColumnStretch(4, 3);
    grille->setHorizontalSpacing(10);
    nom_.setMinimumWidth(nom_.fontMetrics().averageCharWidth() * 14);
    contenu_.setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    contenu_.setMinimumContentsLength(18);
    page->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    addWidget(page);
}

void PremierePage::remplir() {
    contenu_.clear();
    contenu_.addItem("Vide", int(Contenu::vide));
    const auto ajouter = [this](Contenu contenu, const std::vector<std::string>& noms) {
        for (const std::string& nom : noms) {
            contenu_.addItem(en_liste(contenu, nom), int(contenu));
            contenu_.setItemData(contenu_.count() - 1, texte_qt(nom), Qt::UserRole + 1);
        }
    };
    ajouter(Contenu::exemple, exemples());
    ajouter(Contenu::projet, lister_projets(configuration_));
}

void PremierePage::proposer() {
    remplir();
    nom_.clear();
    suivre_le_nom();
    show();
}

void PremierePage::suivre_le_nom() {
    const std::string nom = nom_.text().trimmed().toStdString();
    const std::string refus = raison_projet_refuse(configuration_, nom);
    creer_.setEnabled(refus.empty());
    const QString n = texte_qt(nom);
    if (nom.empty())
        avis_.setText("Un nom pour la table, les robots et les trajets ensemble ; ou dessiner "
                      "d'abord et nommer en enregistrant.");
    else if (!refus.empty())
        avis_.setText(texte_qt(refus + "."));
    else
        avis_.setText(
            QString("Écrira « %1 Table », « %1 Robot1 » à 9 et « %1 Trajet1 » à 9.").arg(n));
}

void PremierePage::creer() {
    const std::string nom = nom_.text().trimmed().toStdString();
    const std::string source = contenu_.currentData(Qt::UserRole + 1).toString().toStdString();
    const auto contenu = Contenu(contenu_.currentData().toInt());
    Demande demande{nom, {}, contenu == Contenu::exemple};
    if (contenu == Contenu::vide)
        demande.fichiers = projet_vide(nom);
    else if (contenu == Contenu::projet)
        demande.fichiers = copie_de_projet(configuration_, source, nom);
    else
        demande.fichiers = copie_de_projet(
            source, nom, [&](const std::string& suite) { return lire_exemple(source, suite); });
    a_la_creation(demande);
}

void PremierePage::keyPressEvent(QKeyEvent* evenement) {
    if (evenement->key() == Qt::Key_Escape)
        hide();
    else
        QToolBar::keyPressEvent(evenement);
}
