// How the generation window looks: names, captions, tool tips and places of its controls.
#include "ui/generation/dialog.h"
#include "ui/generation/ouv_generation.h"

#include <QFontDatabase>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QStyle>
#include <QVBoxLayout>

void Dialog::nommer() {
    struct Nom {
        QWidget& controle;
        const char *nom, *texte, *bulle;
    };
    setObjectName("Dialog");
    setWindowTitle("Ouvrir");
    for (const Nom& n : std::initializer_list<Nom>{
             {Label1, "Label1", "Fichier PICBASIC de Départ", ""},
             {Label2, "Label2", "Fichier trajectoire du Projet Simulé", ""},
             {Label3, "Label3", "Nom et chemin du fichier généré:", ""},
             {lb_nomFoncionGeneration, "lb_nomFoncionGeneration",
              "Nom de la fonction contenant le code généré:", ""},
             {fichier_a_generer, "fichier_a_generer", "",
              "Contient le nom et le chemin de répertoire du fichier de génération"},
             {Txt_NomFctGen, "Txt_NomFctGen", "TRAJECTOIRE",
              "Donne le nom de la fonction où sera généré le code concernant la Trajectoire"},
             {rep_defaut, "rep_defaut", "Répertoire du projet", ""},
             {menu, "menu", "Intégrer dans le menu PICBASIC", ""},
             {generer, "generer", "Générer", "Génère le fichier sélectionné dans l'entrée texte "},
             {Choisir, "Choisir", "Fichier de génération...",
              "Sélectionne un fichier de génération"},
             {visu_gene, "visu_gene", "Visu. Fichier génération",
              "Visualise un fichier de génération"},
             {restaurer_, "restaurer_version", "Restaurer une version…",
              "Montre les versions précédentes des programmes et des fichiers du projet"},
             {Fermer, "Fermer", "Fermer", "Ferme la fenêtre"}}) {
        n.controle.setObjectName(n.nom);
        n.controle.setToolTip(n.bulle);
        n.controle.setProperty("text", QString(n.texte));
    }
    Label1.setBuddy(&depart_.fichiers);
    Label2.setBuddy(&entree_.fichiers);
    Label3.setBuddy(&fichier_a_generer);
    lb_nomFoncionGeneration.setBuddy(&Txt_NomFctGen);
    fichier_a_generer.setAccessibleName("Nom et chemin du fichier généré");
    Txt_NomFctGen.setAccessibleName("Nom de la fonction contenant le code généré");
    apercu_.setObjectName("apercu");
    apercu_.setAccessibleName("Aperçu");
    avertissements_.setObjectName("avertissements");
    avertissements_.setAccessibleName("Avertissements");
    titre_apercu_.setObjectName("titre_apercu");
    titre_apercu_.setText("Aperçu :");
    titre_apercu_.setBuddy(&apercu_);
}

void Dialog::placer() {
    auto* haut = new QGridLayout;
    haut->setHorizontalSpacing(16);
    QFont gras = font();
    gras.setBold(true);
    for (QLabel* titre : {&Label1, &Label2})
        titre->setFont(gras);
    haut->addWidget(&Label1, 0, 0);
    haut->addWidget(&Label2, 0, 1);
    haut->addLayout(depart_.disposer(), 1, 0);
    haut->addLayout(entree_.disposer("En gras : fichiers de génération"), 1, 1);

    apercu_.setReadOnly(true);
    apercu_.setLineWrapMode(QPlainTextEdit::NoWrap);
    apercu_.setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    apercu_.setMinimumHeight(72);
    titre_apercu_.setWordWrap(true);
    compte_rendu_.setObjectName("compte_rendu");
    compte_rendu_.setWordWrap(true);
    compte_rendu_.setTextInteractionFlags(Qt::TextSelectableByMouse);
    compte_rendu_.hide();
    avertissements_.setMaximumHeight(112);
    const int icone = style()->pixelMetric(QStyle::PM_SmallIconSize);
    avertissements_.setIconSize({icone, icone});
    avertissements_.setWordWrap(true);
    avertissements_.hide();

    auto* colonne = new QVBoxLayout(this);
    colonne->addLayout(haut, 2);
    colonne->addWidget(&fraicheur_);
    colonne->addLayout(placer_cible());
    colonne->addWidget(&titre_apercu_);
    colonne->addLayout(placer_apercu(), 3);
    colonne->addWidget(&avertissements_);
    colonne->addWidget(&compte_rendu_);
    colonne->addLayout(placer_boutons());
    resize(840, 640);
}

QLayout* Dialog::placer_cible() {
    auto* grille = new QGridLayout;
    grille->addWidget(&Label3, 0, 0);
    grille->addWidget(&fichier_a_generer, 0, 1);
    grille->addWidget(&rep_defaut, 0, 2);
    grille->addWidget(&Choisir, 0, 3);
    grille->addWidget(&lb_nomFoncionGeneration, 1, 0);
    grille->addWidget(&Txt_NomFctGen, 1, 1);
    grille->addWidget(&menu, 1, 2, 1, 2);
    grille->setColumnStretch(1, 1);
    return grille;
}

QLayout* Dialog::placer_apercu() {
    auto* rangee = new QHBoxLayout;
    rangee->addWidget(&apercu_, 1);
    rangee->addSpacing(8);
    rangee->addWidget(&rejeu_, 1);
    return rangee;
}

QLayout* Dialog::placer_boutons() {
    auto* rangee = new QHBoxLayout;
    rangee->addWidget(&generer);
    rangee->addWidget(&visu_gene);
    rangee->addWidget(&restaurer_);
    rangee->addStretch();
    rangee->addWidget(&Fermer);
    return rangee;
}
