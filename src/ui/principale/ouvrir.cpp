#include "ui/principale/ouvrir.h"

#include "base/texte.h"
#include "config/nom_projet.h"
#include "config/projets.h"
#include "seance/seance.h"
#include "ui/commun/boites.h"
#include "ui/commun/place.h"

#include <QDialogButtonBox>
#include <QVBoxLayout>

#include <algorithm>

Ouvrir::Ouvrir(QWidget* proprietaire, Seance& seance,
               std::function<void(const std::string& projet)> choisi)
    : QDialog(proprietaire), seance_(seance), choisi_(std::move(choisi)) {
    nommer();
    placer();
    connecter();
    Form_Load();
    retenir_place(*this);
}

void Ouvrir::nommer() {
    setObjectName("Ouvrir");
    setWindowTitle("Ouvrir ...");
    constexpr std::array<const char*, 3> legendes{
        "Lecture des fichiers de configuration :", "Table.ini Robot(n).ini Trajet(n).ini",
        "du Projet :"};
    for (std::size_t i = 0; i < legendes.size(); ++i) {
        Label1.at(i).setObjectName("Label1");
        Label1.at(i).setProperty("index", int(i));
        Label1.at(i).setText(legendes.at(i));
    }
    Label2.setObjectName("Label2");
    Label3.setObjectName("Label3");
    Label3.setTextFormat(Qt::PlainText); // a path may look like markup
    Label3.setTextInteractionFlags(Qt::TextSelectableByMouse);
    Combo1.setObjectName("Combo1");
    Combo1.setAccessibleName("Projet");
    Command1.setObjectName("Command1");
    Command1.setText("Ouvrir");
    Command1.setDefault(true);
    Command2.setObjectName("Command2");
    Command2.setText("Annuler");
}

void Ouvrir::placer() {
    auto* colonne = new QVBoxLayout(this);
    for (QWidget* controle :
         std::initializer_list<QWidget*>{&Label1[0], &Label1[1], &Label2, &Label1[2], &Combo1})
        colonne->addWidget(controle);
    Label1[2].setBuddy(&Combo1);
    Label1[1].setIndent(fontMetrics().averageCharWidth() * 2);
    Label2.setIndent(Label1[1].indent());
    Combo1.setMinimumWidth(fontMetrics().averageCharWidth() * 40);
    Combo1.setFocus();
    colonne->addSpacing(6);
    colonne->addWidget(&Label3);
    colonne->addStretch();
    auto* boutons = new QDialogButtonBox;
    boutons->addButton(&Command1, QDialogButtonBox::AcceptRole);
    boutons->addButton(&Command2, QDialogButtonBox::RejectRole);
    colonne->addWidget(boutons);
}

void Ouvrir::connecter() {
    connect(&Command1, &QPushButton::clicked, this, [this] { Command1_Click(); });
    connect(&Command2, &QPushButton::clicked, this, [this] { Command2_Click(); });
}

void Ouvrir::Form_Load() {
    const std::filesystem::path dossier = seance_.projet().dossier_configuration();
    Label2.setText("( Avec n  de 1 à 9 )");
    Label3.setText(texte_qt(" Répertoire : " + std::string(RetourLigne) + dossier.string()));
    projets_ = lister_projets(dossier);
    for (const std::string& nom : projets_)
        Combo1.addItem(texte_qt(nom));
    const auto courant = std::find(projets_.begin(), projets_.end(), seance_.etat().NomProjet);
    Combo1.setCurrentIndex(courant != projets_.end() ? int(courant - projets_.begin()) : 0);
}

// An empty list makes the empty name the current project: the loading then says what is missing.
void Ouvrir::Command1_Click() {
    const int choix = Combo1.currentIndex();
    const std::string nom = choix >= 0 ? projets_.at(static_cast<std::size_t>(choix)) : "";
    try {
        exiger_projet_possible(nom);
    } catch (const ErreurExecution& erreur) {
        return seance_.fenetres().message("Ce projet ne peut pas être chargé.", erreur.what());
    }
    choisi_(nom);
    accept();
}
