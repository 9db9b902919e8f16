#include "ui/editeurs/nouveau_projet.h"

#include "ui/commun/boites.h"

#include <QGridLayout>

nouveauProjet::nouveauProjet(QWidget* parent, GenreFichier genre,
                             std::filesystem::path configuration)
    : QDialog(parent), genre_(genre), configuration_(std::move(configuration)) {
    setObjectName("nouveauProjet");
    setWindowTitle("Création d'un projet");
    Label1.setObjectName("Label1");
    Label1.setText("Nom du projet:");
    Label1.setBuddy(&nomProjet);
    nomProjet.setObjectName("nomProjet");
    nomProjet.setAccessibleName("Nom du projet");
    nomProjet.setText("Defaut");
    avis.setObjectName("avis");
    avis.setWordWrap(true);
    avis.setTextFormat(Qt::PlainText);
    corriger.setObjectName("corriger");
    corriger.setAutoDefault(false);
    OKButton.setObjectName("OKButton");
    OKButton.setText("Enregistrer");
    OKButton.setDefault(true);
    CancelButton.setObjectName("CancelButton");
    CancelButton.setText("Annuler");
    placer();
    connect(&nomProjet, &QLineEdit::textChanged, this, [this] { nomProjet_Change(); });
    connect(&corriger, &QPushButton::clicked, this, [this] {
        nomProjet.setText(texte_qt(proposer_nom(nomProjet.text().toStdString(), genre_)));
    });
    connect(&OKButton, &QPushButton::clicked, this, [this] { OKButton_Click(); });
    connect(&CancelButton, &QPushButton::clicked, this, [this] { reject(); });
    nomProjet_Change();
    nomProjet.selectAll();
}

void nouveauProjet::proposer(const std::string& nom) {
    nomProjet.setText(texte_qt(nom));
    nomProjet.selectAll();
}

void nouveauProjet::placer() {
    auto* grille = new QGridLayout(this);
    grille->addWidget(&Label1, 0, 0);
    grille->addWidget(&nomProjet, 0, 1, 1, 2);
    grille->addWidget(&avis, 1, 0, 1, 3);
    grille->addWidget(&corriger, 2, 0, 1, 3);
    grille->addWidget(&OKButton, 3, 1);
    grille->addWidget(&CancelButton, 3, 2);
    avis.setMinimumHeight(4 * avis.fontMetrics().lineSpacing());
    setMinimumWidth(420);
}

void nouveauProjet::nomProjet_Change() {
    const std::string nom = nomProjet.text().toStdString();
    const std::string impossible = raison_nom_impossible(nom);
    const std::string projet = projet_du_nom(nom, genre_);
    const std::string propose = proposer_nom(nom, genre_);
    std::string texte;
    if (!impossible.empty())
        texte = impossible + ".";
    else if (!projet.empty())
        texte = "Fichier du projet « " + projet + " ».";
    else if (genre_ == GenreFichier::table)
        texte = "« " + nom +
                ".ini » ne sera la table d'aucun projet : « Charger » ne propose que "
                "les noms qui finissent par « Table » après un blanc.";
    else if (genre_ == GenreFichier::trajet)
        texte = "« " + nom +
                ".ini » ne sera le trajet d'aucun robot : le nom doit finir par un "
                "blanc, « Trajet » et le numéro du robot, de 1 à 9.";
    else
        texte = "« " + nom +
                ".ini » ne sera le robot d'aucun projet : le nom doit finir par un "
                "blanc, « Robot » et le numéro, de 1 à 9.";
    avis.setText(texte_qt(texte));
    corriger.setText(texte_qt("Utiliser « " + propose + " »"));
    corriger.setVisible(projet.empty());
    OKButton.setEnabled(impossible.empty());
}

void nouveauProjet::OKButton_Click() {
    const std::filesystem::path chemin =
        fichier_d_editeur(configuration_, nomProjet.text().toStdString());
    if (generer(chemin))
        accept();
}
