#include "ui/editeurs/foutil.h"

#include "ui/commun/touches_annulation.h"
#include "ui/editeurs/formes.h"
#include "ui/editeurs/icones_dessin.h"

#include <QAction>
#include <QSettings>

#include <utility>

namespace {

constexpr auto cle_ancrage = "palette_ancree";

} // namespace

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
