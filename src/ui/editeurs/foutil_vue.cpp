// The palette's buttons and fields, and where they lie.
#include "ui/editeurs/foutil.h"
#include "ui/editeurs/icones_dessin.h"

#include <QApplication>
#include <QDrag>
#include <QFormLayout>
#include <QGridLayout>
#include <QLabel>
#include <QMimeData>
#include <QMouseEvent>
#include <QVBoxLayout>

#include <string_view>

namespace {

QLabel* titre(const char* texte) {
    auto* label = new QLabel(texte);
    label->setForegroundRole(QPalette::PlaceholderText);
    return label;
}

} // namespace

BoutonOutil::BoutonOutil(const Outil& outil, QWidget* parent) : QToolButton(parent), outil_(outil) {
    setObjectName(outil.nom);
    setText(outil.legende);
    setToolTip(outil.texte);
    setAccessibleName(outil.texte);
    setIcon(icone_outil(outil));
    setIconSize({cote_icone, cote_icone});
    setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setMaximumHeight(cote_icone + 5);
    setAutoRaise(true);
    setCheckable(true);
}

void BoutonOutil::mousePressEvent(QMouseEvent* evenement) {
    prise_ = evenement->pos();
    QToolButton::mousePressEvent(evenement);
}

void BoutonOutil::mouseMoveEvent(QMouseEvent* evenement) {
    const bool loin =
        (evenement->pos() - prise_).manhattanLength() >= QApplication::startDragDistance();
    if (!loin || !evenement->buttons().testFlag(Qt::LeftButton) ||
        outil_.forme == Outil::Forme::selection)
        return;
    setDown(false);
    prendre_la_saisie(*window()); // the size that is being typed
    auto* drag = new QDrag(this); // Qt deletes it
    auto* donnees = new QMimeData;
    donnees->setData(format, outil_.nom);
    drag->setMimeData(donnees);
    drag->setPixmap(icone_outil(outil_).pixmap(iconSize(), devicePixelRatio()));
    drag->setHotSpot({cote_icone / 2, cote_icone / 2});
    drag->exec(Qt::CopyAction);
}

void Foutil::nommer() {
    setObjectName("Foutil");
    setAccessibleName("Outils");
    setWindowTitle("Outils");
    chx_dessinTable.setObjectName("chx_dessinTable");
    chx_dessinTable.setText("Dessin de la table");
    chx_dessinTable.setToolTip("Ouvre l'éditeur de table.");
    chx_dessinRobot.setObjectName("chx_dessinRobot");
    chx_dessinRobot.setText("Dessin du robot");
    chx_dessinRobot.setToolTip("Ouvre l'éditeur de robot.");
    ancrage_.setObjectName("ancrage");
    ancrage_.setAutoRaise(true);
    struct Taille {
        NombreEntier& champ;
        const char *nom, *unite, *bulle;
        int mini, maxi, valeur;
    };
    for (const Taille& t : std::initializer_list<Taille>{
             {largeur, "largeur", " cm", "Largeur des rectangles et des ellipses", 1, 9999, 40},
             {hauteur, "hauteur", " cm", "Hauteur des rectangles et des ellipses", 1, 9999, 40},
             {rayon, "rayon", " cm", "Rayon des cercles et des balises", 1, 9999, 5},
             {longueur, "longueur", " cm", "Longueur des lignes", 1, 9999, 60},
             {incidence, "incidence", "°", "Angle des lignes libres avec l'axe des x", -180, 180,
              45}}) {
        t.champ.setObjectName(t.nom);
        t.champ.setRange(t.mini, t.maxi);
        t.champ.setValue(t.valeur);
        t.champ.setSuffix(t.unite);
        t.champ.setToolTip(t.bulle);
        t.champ.setAccessibleName(t.bulle);
    }
}

QWidget* Foutil::placer_outils() {
    auto* boite = new QWidget;
    auto* grille = new QGridLayout(boite);
    grille->setContentsMargins({});
    grille->setSpacing(1);
    constexpr int par_rangee = 2;
    std::string_view groupe;
    int rang = 0;
    for (const Outil& o : outils()) {
        const bool aux_robots =
            o.forme == Outil::Forme::selection || o.cle == std::string_view("LN");
        if (o.groupe != groupe) {
            groupe = o.groupe;
            rang += (par_rangee - rang % par_rangee) % par_rangee;
            QLabel* au_dessus = titre(o.groupe);
            grille->addWidget(au_dessus, rang / par_rangee, 0, 1, par_rangee);
            rang += par_rangee;
            if (!aux_robots)
                de_la_table_.push_back(au_dessus);
        }
        auto* bouton = new BoutonOutil(o, boite);
        groupe_.addButton(bouton);
        if (!aux_robots)
            de_la_table_.push_back(bouton);
        grille->addWidget(bouton, rang / par_rangee, rang % par_rangee);
        ++rang;
    }
    boite->setToolTip("Cliquer un outil puis la table, ou tirer l'outil sur la table");
    return boite;
}

QWidget* Foutil::placer_tailles() {
    auto* boite = new QWidget;
    auto* lignes = new QFormLayout(boite);
    lignes->setContentsMargins({});
    lignes->setVerticalSpacing(3);
    lignes->addRow(titre("Tailles"));
    lignes->addRow("&Largeur", &largeur);
    lignes->addRow("&Hauteur", &hauteur);
    lignes->addRow("&Rayon", &rayon);
    for (QWidget* champ : {&largeur, &hauteur, &rayon}) {
        de_la_table_.push_back(champ);
        de_la_table_.push_back(lignes->labelForField(champ));
    }
    lignes->addRow("L&ongueur", &longueur);
    lignes->addRow("&Incidence", &incidence);
    return boite;
}

void Foutil::placer() {
    auto* colonne = new QVBoxLayout(this);
    colonne->setSizeConstraint(QLayout::SetFixedSize);
    auto* tete = new QGridLayout;
    tete->addWidget(&chx_dessinTable, 0, 0);
    tete->addWidget(&chx_dessinRobot, 1, 0);
    tete->addWidget(&ancrage_, 0, 1, Qt::AlignTop | Qt::AlignRight);
    colonne->addLayout(tete);
    colonne->addWidget(placer_outils());
    colonne->addWidget(placer_tailles());
    colonne->addStrut(colonne->minimumSize().width()); // as wide with a robot's few tools
}
