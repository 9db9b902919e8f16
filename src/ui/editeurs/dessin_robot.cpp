#include "ui/editeurs/dessin_robot.h"

#include "base/fichiers.h"
#include "config/lecteur_trajet.h"
#include "ui/editeurs/formes.h"
#include "ui/editeurs/foutil.h"

#include <QMenu>
#include <QStatusBar>
#include <QTabWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>
#include <memory>

namespace {

/// One number of the robot that is no segment: where it is kept and how it is shown.
struct Reglage {
    const char *cle, *nom, *texte, *unite;
    std::size_t rang;
    int decimales = 0;
};
constexpr Reglage reglages[] = {
    {"A", "A1", "Référence x", " cm", 0, 3}, {"A", "A2", "Référence y", " cm", 1},
    {"A", "A3", "Entraxe", " cm", 2},        {"V", "V1", "Vitesse", " cm/s", 0},
    {"V", "V2", "Rotation", " °/s", 1},      {"E", "E1", "Extrémité x", " cm", 0},
    {"E", "E2", "Extrémité y", " cm", 1},    {"E", "E3", "Longueur", " cm", 2},
    {"I", "I1", "Départ x", " cm", 0},       {"I", "I2", "Départ y", " cm", 1},
    {"I", "I3", "Cap de départ", "°", 2},
};

Fiche deplace(Fiche f, double dx, double dy) {
    for (std::size_t k = 0; k < 4; ++k)
        f.v[k] = std::clamp(f.v[k] + static_cast<float>(k % 2 == 0 ? dx : dy), -32768.0F, 32767.0F);
    return f;
}

/// The pose that a trajectory gives its robot, none when it leaves the robot file's.
std::optional<std::array<float, 4>> pose_du_trajet(const std::filesystem::path& fichier) {
    const auto e = std::make_unique<Etat>();
    constexpr float jamais = 1e9F; // no 16-bit number
    e->XInit(1) = jamais;
    try {
        Entier16 NoLigne;
        LecteurTrajet(*e).lire(en_utf8(lire_octets(fichier)), 1, NoLigne);
    } catch (const ErreurExecution&) {
        return std::nullopt; // loading the project tells why
    }
    if (e->XInit(1) == jamais)
        return std::nullopt;
    return std::array<float, 4>{e->XInit(1), e->YInit(1), e->CapInit(1), 0};
}

} // namespace

dessinRobot::dessinRobot(QWidget* parent, Foutil& outils, Programme programme)
    : FenetreEditeur(parent, outils, std::move(programme),
                     {GenreFichier::robot, "Dessin du robot",
                      "Fichiers de robot (*?Robot?.ini);;Tous les fichiers (*)"}),
      historique_([this] { rafraichir(); }),
      vue_(historique_, outils, this),
      apercu_(this),
      segment_(this),
      reglages_(this) {
    setObjectName("dessinRobot");
    placer();
    connecter();
    preparer_menus();
    action(menu_edition(), "miroir", "Copie en &miroir", QKeySequence("Ctrl+M"),
           [this] { miroir(); });
}

void dessinRobot::placer() {
    liste_.setObjectName("listeSegments");
    liste_.setAccessibleName("Segments du robot");
    tourner_.setObjectName("tourner");
    tourner_.setText("&Tourner autour du point de référence");
    auto* contour = new QWidget;
    auto* lignes = new QVBoxLayout(contour);
    lignes->addWidget(&segment_);
    lignes->addWidget(&liste_, 1);
    auto* depart = new QWidget;
    auto* vues = new QVBoxLayout(depart);
    vues->addWidget(&apercu_, 1);
    vues->addWidget(&tourner_);
    avis_init_.setObjectName("avisInit");
    avis_init_.setWordWrap(true);
    avis_init_.setTextFormat(Qt::PlainText);
    vues->addWidget(&avis_init_);
    auto* onglets = new QTabWidget;
    onglets->setObjectName("onglets");
    onglets->setAccessibleName("Parties du robot");
    onglets->addTab(contour, "&Contour");
    onglets->addTab(&reglages_, "&Mesures");
    onglets->addTab(depart, "&Départ");
    assembler({historique_, vue_, *onglets, {600, 280}});
}

void dessinRobot::connecter() {
    const auto montrer_position = [this](QPointF cm) {
        position_.setText(
            QString("x = %1  y = %2 cm").arg(std::lround(cm.x())).arg(std::lround(cm.y())));
    };
    vue_.au_deplacement = apercu_.au_deplacement = montrer_position;
    vue_.au_refus = [this](const std::string& raison) { boites_.message(raison); };
    vue_.au_glissement = [this] {
        apercu_.montrer(vue_.montre());
        montrer_reglages();
    };
    apercu_.a_la_pose = [this](const ApercuRobot::Pose& pose, const QString& nom) {
        DocumentRobot d = historique_.doc();
        d.regler("I", {pose.x, pose.y, pose.cap, 0});
        historique_.changer(nom, std::move(d), historique_.selection());
    };
    segment_.au_nombre = [this](std::size_t i, double valeur) { changer_segment(i, valeur); };
    reglages_.au_nombre = [this](std::size_t i, double valeur) { changer_reglage(i, valeur); };
    connect(&tourner_, &QCheckBox::toggled, this, [this](bool oui) { apercu_.tourner(oui); });
    liste_.au_choix = [this](const Selection& s) { historique_.choisir(s); };
}

void dessinRobot::regler_table(const Etat& table) {
    apercu_.regler_table(table);
    apercu_.montrer(historique_.doc());
}

void dessinRobot::rafraichir() {
    vue_.rafraichir();
    apercu_.montrer(historique_.doc());
    montrer_segment();
    montrer_reglages();
    montrer_liste();
    montrer_avis_init();
    const int n = historique_.doc().compter({"R"});
    comptes_.setText(QString("segments %1/%2").arg(n).arg(DocumentRobot::segments_max));
}

void dessinRobot::fichier_change() {
    init_.reset();
    const std::string nom = chemin().stem().string();
    if (const std::string projet = projet_du_nom(nom, GenreFichier::robot); !projet.empty()) {
        trajet_ = texte_qt(projet + " Trajet" + nom.back() + ".ini");
        init_ = pose_du_trajet(trouver_fichier(chemin().parent_path(), trajet_.toStdString()));
    }
    montrer_avis_init();
}

void dessinRobot::montrer_avis_init() {
    const bool autre = init_ && *init_ != historique_.doc().valeurs("I");
    avis_init_.setVisible(autre);
    if (autre)
        avis_init_.setText(
            QString("Ce départ ne sert pas : « Init » de %1 place le robot à x = %2, "
                    "y = %3, cap %4°.")
                .arg(trajet_)
                .arg((*init_)[0])
                .arg((*init_)[1])
                .arg((*init_)[2]));
}

void dessinRobot::montrer_segment() {
    const Selection s = segments_choisis();
    if (s.empty())
        return segment_.conseiller("Rien n'est choisi",
                                   "Cliquer un segment montre ses mesures ; tirer sur le fond en "
                                   "choisit plusieurs. Une ligne de la palette en ajoute.");
    if (s.size() > 1)
        return segment_.conseiller(QString("%1 segments choisis").arg(s.size()),
                                   "Ils se déplacent et se copient en miroir ensemble.");
    std::vector<PanneauProprietes::Champ> champs;
    constexpr const char* noms[] = {"X1", "Y1", "X2", "Y2"};
    for (std::size_t i = 0; i < 4; ++i)
        champs.push_back(
            {noms[i], noms[i], " cm", -32768, 32767, historique_.doc()[s.front()].v[i]});
    segment_.montrer("Segment", champs);
}

void dessinRobot::montrer_reglages() {
    std::vector<PanneauProprietes::Champ> champs;
    for (const Reglage& r : reglages)
        champs.push_back({r.nom, r.texte, r.unite, -32768, 32767,
                          vue_.montre().valeurs(r.cle)[r.rang], r.decimales});
    reglages_.montrer("", champs);
}

void dessinRobot::montrer_liste() {
    std::vector<ListeChoix::Rangee> rangees;
    const DocumentRobot& d = historique_.doc();
    for (std::size_t i = 0; i < d.nombre(); ++i)
        if (d[i].cle == "R")
            rangees.push_back({i, QString("%1, %2 – %3, %4")
                                      .arg(d[i].entier(0))
                                      .arg(d[i].entier(1))
                                      .arg(d[i].entier(2))
                                      .arg(d[i].entier(3))});
    liste_.montrer(rangees, historique_.selection());
}

Selection dessinRobot::segments_choisis() const {
    Selection s;
    for (const std::size_t i : historique_.selection())
        if (historique_.doc()[i].cle == "R")
            s.push_back(i);
    return s;
}

void dessinRobot::retirer() {
    DocumentRobot d = historique_.doc();
    const Selection s = segments_choisis();
    for (std::size_t k = s.size(); k-- > 0;)
        d.retirer(s[k]);
    if (!s.empty())
        historique_.changer("Supprimer", std::move(d), {});
}

void dessinRobot::ajouter(const std::vector<Fiche>& segments, const QString& nom) {
    DocumentRobot d = historique_.doc();
    Selection s;
    for (const Fiche& f : segments)
        s.push_back(d.ajouter(f)); // each behind the one before
    if (!s.empty())
        historique_.changer(nom, std::move(d), s);
}

void dessinRobot::dupliquer() {
    std::vector<Fiche> copies;
    for (const std::size_t i : segments_choisis())
        copies.push_back(deplace(historique_.doc()[i], vue_.grille(), vue_.grille()));
    ajouter(copies, "Dupliquer");
}

// About the axis through the reference point: the chosen segments, or all. What lies on the axis or
// has its image already is not doubled.
void dessinRobot::miroir() {
    const DocumentRobot& d = historique_.doc();
    const double axe = 2.0 * d.valeurs("A")[0];
    Selection s = segments_choisis();
    std::vector<std::array<float, 4>> presents;
    for (std::size_t i = 0; i < d.nombre(); ++i)
        if (d[i].cle == "R") {
            const auto& v = d[i].v;
            presents.push_back(v);
            presents.push_back({v[2], v[3], v[0], v[1]});
            if (segments_choisis().empty())
                s.push_back(i);
        }
    std::vector<Fiche> images;
    for (const std::size_t i : s) {
        Fiche f = d[i];
        for (const std::size_t k : {0U, 2U})
            f.v[k] = static_cast<float>(std::clamp(std::round(axe - f.v[k]), -32768.0, 32767.0));
        if (std::find(presents.begin(), presents.end(), f.v) == presents.end())
            images.push_back(f);
    }
    ajouter(images, "Copie en miroir");
}

void dessinRobot::tout_choisir() {
    Selection s;
    for (std::size_t i = 0; i < historique_.doc().nombre(); ++i)
        if (historique_.doc()[i].cle == "R")
            s.push_back(i);
    historique_.choisir(s);
}

void dessinRobot::deplacer(double dx, double dy) {
    DocumentRobot d = historique_.doc();
    const Selection s = segments_choisis();
    for (const std::size_t i : s)
        d.remplacer(i, deplace(d[i], dx, dy));
    if (!s.empty())
        historique_.changer("Déplacer", std::move(d), s, fusion_des_pas);
}

void dessinRobot::changer_segment(std::size_t champ, double valeur) {
    const Selection s = segments_choisis();
    if (s.size() != 1)
        return;
    DocumentRobot d = historique_.doc();
    Fiche f = d[s.front()];
    f.v[champ] = static_cast<float>(valeur);
    if (formes::sans_etendue(f) && !formes::sans_etendue(d[s.front()])) {
        statusBar()->showMessage("Refusé : un segment sans longueur ne se verrait pas");
        return montrer_segment();
    }
    d.remplacer(s.front(), f);
    historique_.changer("Changer un segment", std::move(d), s);
}

void dessinRobot::changer_reglage(std::size_t champ, double valeur) {
    const Reglage& r = reglages[champ];
    DocumentRobot d = historique_.doc();
    auto v = d.valeurs(r.cle);
    v[r.rang] = static_cast<float>(valeur);
    d.regler(r.cle, v);
    historique_.changer(QString("Changer : ") + r.texte, std::move(d), {});
}
