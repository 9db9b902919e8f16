#include "ui/editeurs/foutil.h"

#include "ui/commun/touches_annulation.h"
#include "ui/editeurs/formes.h"

#include <QAction>
#include <QApplication>
#include <QDrag>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QVBoxLayout>

#include <utility>

namespace {

constexpr int cote_icone = 26;

// Two letters share each of white and black.
void dessiner_lettre(QPainter& p, const Outil& outil) {
    const bool sombre = formes::couleur(outil.cle).lightness() < 140;
    p.setPen(sombre ? Qt::white : Qt::black);
    QFont police = p.font();
    police.setPixelSize(12);
    p.setFont(police);
    p.drawText(QRectF(0, 0, cote_icone, cote_icone), Qt::AlignCenter, outil.cle);
}

void dessiner_forme(QPainter& p, const Outil& outil) {
    const QRectF r(3.5, 5.5, cote_icone - 7, cote_icone - 11);
    const bool contour = QByteArray(outil.cle).startsWith('D');
    p.setBrush(contour || outil.forme == Outil::Forme::selection ? QBrush(Qt::NoBrush)
                                                                 : formes::couleur(outil.cle));
    const QColor encre = QApplication::palette().color(QPalette::ButtonText);
    p.setPen(QPen(encre, 1, contour ? Qt::DotLine : Qt::SolidLine));
    const QPointF c = r.center();
    switch (outil.forme) {
    case Outil::Forme::boite:
        if (QByteArray(outil.cle) == "LE")
            return p.drawEllipse(r);
        p.drawRect(r);
        return contour ? void() : dessiner_lettre(p, outil);
    case Outil::Forme::cercle:
        p.drawEllipse(c, 9, 9);
        return outil.cle[1] == 0 ? dessiner_lettre(p, outil) : void();
    case Outil::Forme::horizontale:
        return p.drawLine(QPointF(3, c.y()), QPointF(cote_icone - 3, c.y()));
    case Outil::Forme::verticale:
        return p.drawLine(QPointF(c.x(), 3), QPointF(c.x(), cote_icone - 3));
    case Outil::Forme::libre:
        return p.drawLine(QPointF(4, cote_icone - 5), QPointF(cote_icone - 4, 5));
    case Outil::Forme::legende:
        return p.drawText(QRectF(0, 0, cote_icone, cote_icone), Qt::AlignCenter, "Abc");
    case Outil::Forme::selection:
        static constexpr QPointF fleche[] = {{8, 4},   {8, 21},  {12, 17}, {15, 23},
                                             {18, 22}, {15, 16}, {20, 15}};
        p.setBrush(encre);
        p.drawPolygon(fleche, 7);
    }
}

QPixmap image(const Outil& outil) {
    const double densite = qApp->devicePixelRatio();
    QPixmap pixmap(QSize(cote_icone, cote_icone) * densite);
    pixmap.setDevicePixelRatio(densite);
    pixmap.fill(Qt::transparent);
    QPainter p(&pixmap);
    p.setRenderHint(QPainter::Antialiasing);
    dessiner_forme(p, outil);
    return pixmap;
}

} // namespace

BoutonOutil::BoutonOutil(const Outil& outil, QWidget* parent) : QToolButton(parent), outil_(outil) {
    setObjectName(outil.nom);
    setToolTip(outil.texte);
    setAccessibleName(outil.texte);
    setIcon(image(outil));
    setIconSize({cote_icone, cote_icone});
    setCheckable(true);
}

// The tool in hand is seen at a glance, on a dark screen too.
void BoutonOutil::paintEvent(QPaintEvent* evenement) {
    QToolButton::paintEvent(evenement);
    if (!isChecked())
        return;
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(QPen(palette().color(QPalette::Highlight), 2));
    p.drawRoundedRect(QRectF(rect()).adjusted(1.5, 1.5, -1.5, -1.5), 3, 3);
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
    drag->setPixmap(image(outil_));
    drag->setHotSpot({cote_icone / 2, cote_icone / 2});
    drag->exec(Qt::CopyAction);
}

const std::vector<Outil>& Foutil::outils() {
    using F = Outil::Forme;
    static const std::vector<Outil> liste{
        {"outil_Selection", "Choisir et déplacer", "", F::selection},
        {"outil_M", "Légende", "M", F::legende},
        {"outil_L", "Zone L (blanc)", "L", F::boite},
        {"outil_O", "Zone O (rouge)", "O", F::boite},
        {"outil_V", "Zone V (noir)", "V", F::boite},
        {"outil_T", "Zone T (vert)", "T", F::boite},
        {"outil_U", "Zone U (blanc)", "U", F::boite},
        {"outil_W", "Zone W (noir)", "W", F::boite},
        {"outil_PB", "Pièce PB (blanc)", "PB", F::cercle},
        {"outil_PN", "Pièce PN (noir)", "PN", F::cercle},
        {"outil_BJ", "Pièce BJ (jaune)", "BJ", F::cercle},
        {"outil_BB", "Pièce BB (bleu)", "BB", F::cercle},
        {"outil_X", "Balise gauche", "X", F::cercle},
        {"outil_Y", "Balise droite", "Y", F::cercle},
        {"outil_Horizontale", "Ligne horizontale", "LN", F::horizontale},
        {"outil_Verticale", "Ligne verticale", "LN", F::verticale},
        {"outil_Ligne", "Ligne libre, selon l'incidence", "LN", F::libre},
        {"outil_DC", "Bloc rectangulaire", "DC", F::boite},
        {"outil_DR", "Bloc disque", "DR", F::cercle},
        {"outil_LE", "Ellipse", "LE", F::boite},
    };
    return liste;
}

const Outil* Foutil::outil(const QString& nom) {
    for (const Outil& o : outils())
        if (nom == o.nom)
            return &o;
    return nullptr;
}

Foutil::Foutil(QWidget* parent) : QWidget(parent, Qt::Tool) {
    nommer();
    placer();
    connecter();
    connecter_touches();
    reposer();
}

void Foutil::nommer() {
    setObjectName("Foutil");
    setWindowTitle("Outils");
    chx_dessinTable.setObjectName("chx_dessinTable");
    chx_dessinTable.setText("Dessin de la table");
    chx_dessinTable.setToolTip("Ouvre l'éditeur de table.");
    chx_dessinRobot.setObjectName("chx_dessinRobot");
    chx_dessinRobot.setText("Dessin du robot");
    chx_dessinRobot.setToolTip("Ouvre l'éditeur de robot.");
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
    auto* boite = new QGroupBox("Outils");
    auto* grille = new QGridLayout(boite);
    grille->setSpacing(3);
    // What chooses and writes, then a row of zones, of circles, and of lines and the rest.
    constexpr int par_rangee = 6;
    int rang = 0;
    for (const Outil& o : outils()) {
        auto* bouton = new BoutonOutil(o, boite);
        groupe_.addButton(bouton);
        if (o.forme != Outil::Forme::selection && o.cle != std::string_view("LN"))
            de_la_table_.push_back(bouton);
        if (o.forme == Outil::Forme::boite && rang == 2)
            rang = par_rangee;
        grille->addWidget(bouton, rang / par_rangee, rang % par_rangee);
        ++rang;
    }
    boite->setToolTip("Cliquer un outil puis la table, ou tirer l'outil sur la table");
    return boite;
}

QWidget* Foutil::placer_tailles() {
    auto* boite = new QGroupBox("Tailles");
    auto* lignes = new QFormLayout(boite);
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
    colonne->addWidget(&chx_dessinTable);
    colonne->addWidget(&chx_dessinRobot);
    colonne->addWidget(placer_outils());
    colonne->addWidget(placer_tailles());
}

// The palette has nothing to undo: the drawing it belongs to has.
void Foutil::connecter_touches() {
    const auto relier = [this](const char* commande, const QList<QKeySequence>& touches) {
        auto* action = new QAction(this);
        action->setShortcuts(touches);
        connect(action, &QAction::triggered, this, [this, commande] { a_l_annulation(commande); });
        addAction(action);
    };
    relier("annuler", touches_d_annulation());
    relier("retablir", touches_de_retablissement());
    annuler_de_partout(*this);
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
