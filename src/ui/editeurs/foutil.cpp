#include "ui/editeurs/foutil.h"

#include "ui/commun/touches_annulation.h"
#include "ui/editeurs/formes.h"
#include "ui/editeurs/icones_dessin.h"

#include <QAction>
#include <QApplication>
#include <QDrag>
#include <QFormLayout>
#include <QGridLayout>
#include <QLabel>
#include <QMimeData>
#include <QMouseEvent>
#include <QSettings>
#include <QVBoxLayout>

#include <string_view>
#include <utility>

namespace {

constexpr auto cle_ancrage = "palette_ancree";

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

const std::vector<Outil>& Foutil::outils() {
    using F = Outil::Forme;
    static const std::vector<Outil> liste{
        {"outil_Selection", "Choisir et déplacer", "Choisir", "", "", F::selection},
        {"outil_M", "Légende", "Légende", "", "M", F::legende},
        {"outil_L", "Zone L (blanc)", "L blanc", "Zones", "L", F::boite},
        {"outil_O", "Zone O (rouge)", "O rouge", "Zones", "O", F::boite},
        {"outil_V", "Zone V (noir)", "V noir", "Zones", "V", F::boite},
        {"outil_T", "Zone T (vert)", "T vert", "Zones", "T", F::boite},
        {"outil_U", "Zone U (blanc)", "U blanc", "Zones", "U", F::boite},
        {"outil_W", "Zone W (noir)", "W noir", "Zones", "W", F::boite},
        {"outil_PB", "Pièce PB (blanc)", "PB blanc", "Pièces et balises", "PB", F::cercle},
        {"outil_PN", "Pièce PN (noir)", "PN noir", "Pièces et balises", "PN", F::cercle},
        {"outil_BJ", "Pièce BJ (jaune)", "BJ jaune", "Pièces et balises", "BJ", F::cercle},
        {"outil_BB", "Pièce BB (bleu)", "BB bleu", "Pièces et balises", "BB", F::cercle},
        {"outil_X", "Balise gauche", "X gauche", "Pièces et balises", "X", F::cercle},
        {"outil_Y", "Balise droite", "Y droite", "Pièces et balises", "Y", F::cercle},
        {"outil_Horizontale", "Ligne horizontale", "Horizontale", "Lignes", "LN", F::horizontale},
        {"outil_Verticale", "Ligne verticale", "Verticale", "Lignes", "LN", F::verticale},
        {"outil_Ligne", "Ligne libre, selon l'incidence", "Libre", "Lignes", "LN", F::libre},
        {"outil_LigneBrisee", "Ligne brisée, de clic en clic", "Brisée", "Lignes", "LN", F::brisee},
        {"outil_DC", "Bloc rectangulaire", "Rectangle", "Blocs et ellipses", "DC", F::boite},
        {"outil_DR", "Bloc disque", "Disque", "Blocs et ellipses", "DR", F::cercle},
        {"outil_LE", "Ellipse", "Ellipse", "Blocs et ellipses", "LE", F::boite},
    };
    return liste;
}

const Outil* Foutil::outil(const QString& nom) {
    for (const Outil& o : outils())
        if (nom == o.nom)
            return &o;
    return nullptr;
}

Foutil::Foutil(QWidget* parent)
    : QWidget(parent, Qt::Tool),
      bureau_(parent),
      ancree_(QSettings().value(cle_ancrage, true).toBool()) {
    nommer();
    placer();
    connecter();
    connecter_touches();
    montrer_ancrage();
    reposer();
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

// The palette has nothing to undo: the drawing it belongs to has.
void Foutil::connecter_touches() {
    const auto relier = [this](const char* commande, const QList<QKeySequence>& touches) {
        auto* action = new QAction(this);
        action->setShortcuts(touches);
        connect(action, &QAction::triggered, this, [this, commande] { a_l_annulation(commande); });
        addAction(action);
        touches_ << action;
    };
    relier("annuler", touches_d_annulation());
    relier("retablir", touches_de_retablissement());
    annuler_de_partout(*this);
}

void Foutil::montrer_ancrage() {
    const QString quoi =
        ancree_ ? "Détacher la palette de l'éditeur" : "Ancrer la palette dans l'éditeur";
    ancrage_.setIcon(icone_commande(ancree_ ? "detacher" : "ancrer"));
    ancrage_.setToolTip(quoi);
    ancrage_.setAccessibleName(quoi);
    for (QAction* a : touches_) // docked, the window it lies in has them
        a->setEnabled(!ancree_);
}

void Foutil::ancrer(bool oui) {
    ancree_ = oui;
    QSettings().setValue(cle_ancrage, oui);
    montrer_ancrage();
    if (!oui) {
        const QPoint ici = mapToGlobal(QPoint());
        if (QScrollArea* place = std::exchange(place_, nullptr))
            place->takeWidget();
        setParent(bureau_, Qt::Tool);
        move(ici);
        show();
    }
    if (au_demenagement)
        au_demenagement();
}

void Foutil::loger(QScrollArea& place) {
    if (!ancree_ || place_ == &place)
        return;
    if (place_ != nullptr)
        place_->takeWidget();
    place_ = &place;
    place.setWidget(this);
    show();
    if (au_demenagement)
        au_demenagement();
}

// A robot's outline is made of lines alone.
void Foutil::montrer_outils(bool table) {
    for (QWidget* w : de_la_table_)
        w->setVisible(table);
    const int courante = longueur.value(); // a robot is smaller than a table
    longueur.setValue(std::exchange(autre_longueur_, courante));
    reposer();
}

void Foutil::connecter() {
    chx_dessinTable.setChecked(true);
    connect(&ancrage_, &QToolButton::clicked, this, [this] { ancrer(!ancree_); });
    connect(&chx_dessinTable, &QRadioButton::toggled, this, [this](bool table) {
        montrer_outils(table);
        if (!suit_ && au_choix_du_dessin)
            au_choix_du_dessin();
    });
    // Also what an assistive tool does, which toggles without a click.
    connect(&groupe_, &QButtonGroup::buttonToggled, this,
            [this](QAbstractButton* bouton, bool enfonce) {
                if (enfonce && bouton->objectName() != en_main_->nom)
                    prendre(*outil(bouton->objectName()));
            });
}

void Foutil::suivre(GenreFichier genre) {
    if (genre == GenreFichier::trajet) // no tool draws it
        return;
    suit_ = true;
    (genre == GenreFichier::robot ? chx_dessinRobot : chx_dessinTable).setChecked(true);
    suit_ = false;
}

void Foutil::prendre(const Outil& outil) {
    prendre_la_saisie(*this);
    en_main_ = &outil;
    for (QAbstractButton* bouton : groupe_.buttons())
        bouton->setChecked(bouton->objectName() == outil.nom);
    if (au_choix_d_outil)
        au_choix_d_outil();
}

Fiche Foutil::creer(const Outil& outil, QPointF c) const {
    const Tailles tailles{double(largeur.value()), double(hauteur.value()), double(rayon.value()),
                          double(longueur.value()), double(incidence.value())};
    return posee(outil.cle, outil.forme, en_vecteur(c), tailles, chx_dessinTable.isChecked());
}

Fiche Foutil::tracer(const Outil& outil, QPointF a, QPointF b) {
    return tracee(outil.cle, outil.forme, en_vecteur(a), en_vecteur(b));
}
