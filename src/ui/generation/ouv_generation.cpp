#include "ui/generation/ouv_generation.h"

#include "ui/commun/boites.h"
#include "ui/commun/place.h"

#include <QGridLayout>

OuvGeneration::OuvGeneration(QWidget* parent, const std::filesystem::path& dossier,
                             std::function<void(const std::string& chemin)> choisi)
    : QWidget(parent, Qt::Dialog | Qt::WindowCloseButtonHint), choisi_(std::move(choisi)) {
    nommer();
    placer();
    Lect_Gen.au_choix = [this](const std::filesystem::path& racine) { Rep_Gen.aller(racine); };
    Rep_Gen.au_changement = [this] { Lect_Gen.suivre(Rep_Gen.chemin()); };
    const auto relier = [this](QPushButton& bouton, void (OuvGeneration::*procedure)()) {
        connect(&bouton, &QPushButton::clicked, this, procedure);
    };
    relier(Nouveau, &OuvGeneration::Nouveau_Click);
    relier(Fermer, &OuvGeneration::Fermer_Click);
    relier(parcourir_, &OuvGeneration::parcourir_Click);
    Rep_Gen.aller(dossier);
    retenir_place(*this);
}

void OuvGeneration::nommer() {
    setObjectName("OuvGeneration");
    setWindowTitle("Boîte de dialogue");
    Lect_Gen.setObjectName("Lect_Gen");
    Lect_Gen.setAccessibleName("Lecteur du fichier généré");
    Lect_Gen.setAccessibleDescription(Lect_Gen.accessibleName()); // its name is its present choice
    Rep_Gen.setObjectName("Rep_Gen");
    Rep_Gen.setAccessibleName("Répertoire du fichier généré");
    NomFicGenere.setObjectName("NomFicGenere");
    NomFicGenere.setText("generation.bas");
    nom_.setText("Nom du fichier :");
    nom_.setBuddy(&NomFicGenere);
    NomFicGenere.setAccessibleName("Nom du fichier généré");
    parcourir_.setObjectName("parcourir_Gen");
    parcourir_.setText("Parcourir…");
    Nouveau.setObjectName("Nouveau");
    Nouveau.setText("Ouvrir");
    Fermer.setObjectName("Fermer");
    Fermer.setText("Fermer");
}

void OuvGeneration::placer() {
    auto* grille = new QGridLayout(this);
    grille->addWidget(&Lect_Gen, 0, 0, 1, 4);
    grille->addWidget(&Rep_Gen, 1, 0, 1, 4);
    grille->addWidget(&nom_, 2, 0);
    grille->addWidget(&NomFicGenere, 2, 1, 1, 3);
    grille->addWidget(&parcourir_, 3, 0);
    grille->addWidget(&Nouveau, 3, 2);
    grille->addWidget(&Fermer, 3, 3);
    grille->setColumnStretch(1, 1);
    resize(380, 360);
}

void OuvGeneration::parcourir_Click() {
    const QString choix = Boites(*this).choisir_destination(
        "Fichier à générer",
        texte_qt((Rep_Gen.chemin() / NomFicGenere.text().toStdString()).string()),
        "PICBASIC (*.bas)");
    if (choix.isEmpty())
        return;
    const std::filesystem::path fichier = choix.toStdString();
    Rep_Gen.aller(fichier.parent_path());
    NomFicGenere.setText(texte_qt(fichier.filename().string()));
}

void OuvGeneration::Nouveau_Click() {
    std::string chemin = Rep_Gen.chemin().string();
    if (!chemin.ends_with('/'))
        chemin += '/';
    hide();
    choisi_(chemin + NomFicGenere.text().toStdString());
}
