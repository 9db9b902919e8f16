#include "ui/editeurs/dessin_robot.h"

#include "base/fichiers.h"
#include "config/document_trajet.h"
#include "edition/segments_robot.h"
#include "ui/editeurs/formes.h"
#include "ui/editeurs/foutil.h"

#include <QMenu>
#include <QScrollArea>
#include <QStatusBar>
#include <QTabWidget>
#include <QVBoxLayout>

#include <cmath>
#include <span>
#include <vector>

namespace {

constexpr auto repere = "Point de référence et roues";
constexpr auto allure = "Vitesses";
constexpr auto capteur = "Ligne du capteur";

/// One number of the robot that is no segment: where it is kept and how it is shown.
struct Reglage {
    const char *cle, *nom, *texte, *unite;
    std::size_t rang;
    const char *groupe, *aide;
    int decimales = 0;
};
constexpr Reglage reglages[] = {
    {"A", "A1", "Référence x", " cm", 0, repere,
     "Le point autour duquel le robot tourne, milieu de la ligne du capteur", 3},
    {"A", "A2", "Référence y", " cm", 1, repere,
     "Le point autour duquel le robot tourne, milieu de la ligne du capteur"},
    {"A", "A3", "Entraxe", " cm", 2, repere, "D'une roue à l'autre"},
    {"V", "V1", "Vitesse", " cm/s", 0, allure, "En ligne droite"},
    {"V", "V2", "Rotation", " °/s", 1, allure, "Sur place"},
    {"E", "E1", "Extrémité x", " cm", 0, capteur, "L'extrémité de la ligne du capteur"},
    {"E", "E2", "Extrémité y", " cm", 1, capteur, "L'extrémité de la ligne du capteur"},
    {"E", "E3", "Longueur", " cm", 2, capteur, "Longueur de la ligne du capteur"},
};
constexpr Reglage poses[] = {
    {"I", "I1", "Départ x", " cm", 0, "", "Le point de référence sur la table"},
    {"I", "I2", "Départ y", " cm", 1, "", "Le point de référence sur la table"},
    {"I", "I3", "Cap de départ", "°", 2, "", "0 vers la droite, 90 vers le haut de la table"},
};

std::vector<PanneauProprietes::Champ> champs_de(const DocumentRobot& d,
                                                std::span<const Reglage> nombres) {
    std::vector<PanneauProprietes::Champ> champs;
    for (const Reglage& r : nombres)
        champs.push_back({r.nom, r.texte, r.unite, -32768, 32767, d.valeurs(r.cle)[r.rang],
                          r.decimales, r.groupe, r.aide});
    return champs;
}

/// The pose that a trajectory gives its robot, none when it leaves the robot file's.
std::optional<std::array<float, 4>> pose_du_trajet(const std::filesystem::path& fichier) {
    try {
        const std::string octets = lire_octets(fichier);
        const auto pose = DocumentTrajet::depuis(octets).depart();
        if (!pose || DocumentTrajet::relire(octets))
            return std::nullopt; // loading the project tells why
        const auto nombre = [&](std::size_t i) { return static_cast<float>((*pose)[i]); };
        return std::array<float, 4>{nombre(0), nombre(1), nombre(2), 0};
    } catch (const ErreurExecution&) {
        return std::nullopt;
    }
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
      reglages_(this),
      depart_(this) {
    setObjectName("dessinRobot");
    placer();
    connecter();
    preparer_menus();
    preparer_presse_papiers();
    action(menu_edition(), "miroir", "Copie en &miroir", QKeySequence("Ctrl+M"),
           [this] { miroir(); });
    preparer_alignement();
    preparer_menu_contextuel({"couper", "copier", "coller", "dupliquer", "supprimer", "", "miroir",
                              "aligner", "", "tout"});
    preparer_barre({"annuler", "retablir", "", "zoom_plus", "zoom_moins", "ajuster", "", "grille",
                    "accrocher", "", "aligner"});
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
    vues->addWidget(&depart_);
    avis_init_.setObjectName("avisInit");
    avis_init_.setWordWrap(true);
    avis_init_.setTextFormat(Qt::PlainText);
    vues->addWidget(&avis_init_);
    auto* onglets = new QTabWidget;
    onglets->setObjectName("onglets");
    onglets->setAccessibleName("Parties du robot");
    onglets->addTab(contour, "&Contour");
    auto* mesures = new QWidget;
    auto* en_haut = new QVBoxLayout(mesures);
    en_haut->addWidget(&reglages_);
    en_haut->addStretch(1);
    auto* defile = new QScrollArea; // on a low screen
    defile->setFrameShape(QFrame::NoFrame);
    defile->setFocusPolicy(Qt::NoFocus);
    defile->setWidgetResizable(true);
    defile->setWidget(mesures);
    onglets->addTab(defile, "&Mesures");
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
    vue_.au_menu = [this](QPoint ecran) { montrer_menu_contextuel(ecran); };
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
    reglages_.au_nombre = [this](std::size_t i, double valeur) {
        const Reglage& r = reglages[i];
        changer_nombre(r.cle, r.rang, r.texte, valeur);
    };
    reglages_.au_champ = [this](const QString& nom) { vue_.expliquer(nom); };
    depart_.au_nombre = [this](std::size_t i, double valeur) {
        const Reglage& r = poses[i];
        changer_nombre(r.cle, r.rang, r.texte, valeur);
    };
    connect(&tourner_, &QCheckBox::toggled, this, [this](bool oui) { apercu_.tourner(oui); });
    liste_.au_choix = [this](const Selection& s) { historique_.choisir(s); };
}

void dessinRobot::commencer() {
    historique_.repartir(robot_neuf(apercu_.largeur_table()));
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
        trajet_ = texte_qt(nom_de_fichier(projet, suite_trajet(nom.back() - '0')));
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
    std::vector<PanneauProprietes::Champ> champs;
    for (const Grandeur g : grandeurs(historique_.doc(), s, true))
        champs.push_back(formes::champ(historique_.doc(), s, g));
    segment_.montrer(s.size() == 1 ? "Segment" : QString("%1 segments choisis").arg(s.size()),
                     champs);
}

void dessinRobot::montrer_reglages() {
    reglages_.montrer("", champs_de(vue_.montre(), reglages));
    depart_.montrer("", champs_de(vue_.montre(), poses));
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
    return segments(historique_.doc(), historique_.selection());
}

void dessinRobot::retirer() {
    DocumentRobot d = historique_.doc();
    const Selection s = segments_choisis();
    ::retirer(d, s);
    if (!s.empty())
        historique_.changer("Supprimer", std::move(d), {});
}

void dessinRobot::dupliquer() {
    DocumentRobot d = historique_.doc();
    const Selection s = ::dupliquer(d, historique_.selection(), vue_.grille());
    if (!s.empty())
        historique_.changer("Dupliquer", std::move(d), s);
}

std::string dessinRobot::copier() const {
    return ::copier(historique_.doc(), historique_.selection());
}

void dessinRobot::coller(const std::string& lignes) {
    DocumentRobot d = historique_.doc();
    const Selection s = ::coller(d, lignes, vue_.grille());
    if (!s.empty())
        historique_.changer("Coller", std::move(d), s);
}

void dessinRobot::miroir() {
    DocumentRobot d = historique_.doc();
    const Selection s = copier_en_miroir(d, historique_.selection());
    if (!s.empty())
        historique_.changer("Copie en miroir", std::move(d), s);
}

void dessinRobot::tout_choisir() {
    historique_.choisir(segments(historique_.doc()));
}

void dessinRobot::deplacer(double dx, double dy) {
    DocumentRobot d = historique_.doc();
    const Selection s = segments_choisis();
    ::deplacer(d, s, {dx, dy});
    if (!s.empty())
        historique_.changer("Déplacer", std::move(d), s, fusion_des_pas);
}

void dessinRobot::aligner(Bord bord) {
    DocumentRobot d = historique_.doc();
    const Selection s = segments_choisis();
    ::aligner(d, s, bord);
    historique_.changer("Aligner", std::move(d), s);
}

void dessinRobot::changer_segment(std::size_t champ, double valeur) {
    const Selection s = segments_choisis();
    DocumentRobot d = historique_.doc();
    if (!changer_segments(d, s, champ, valeur)) {
        statusBar()->showMessage("Refusé : un segment sans longueur ne se verrait pas");
        return montrer_segment();
    }
    historique_.changer("Changer un segment", std::move(d), s);
}

void dessinRobot::changer_nombre(const char* cle, std::size_t rang, const QString& nom,
                                 double valeur) {
    DocumentRobot d = historique_.doc();
    regler_nombre(d, cle, rang, valeur);
    historique_.changer("Changer : " + nom, std::move(d), {});
}
