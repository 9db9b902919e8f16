#include "ui/verdict/fenetre_analyse.h"

#include "analyse/phrases.h"
#include "ui/commun/boites.h"
#include "ui/commun/place.h"

#include <QKeyEvent>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace {

constexpr QSize taille_habituelle{1060, 620};
constexpr int largeur_de_la_table = 420;
constexpr int une_image_ms = 16;

std::vector<MarqueFrise> marques_de(const Analyse& a, const GenresMasques& masques) {
    std::vector<MarqueFrise> marques;
    for (const Constat& c : a.constats) {
        const auto temps = instant_de(a, c);
        if (!temps || masques.contient(c.genre))
            continue;
        marques.push_back({c.robot.value_or(0), *temps, texte_qt(c.texte)});
        if (c.genre == Genre::contact_robot && c.autre)
            marques.push_back({*c.autre, *temps, texte_qt(c.texte)});
    }
    return marques;
}

} // namespace

FenetreAnalyse::FenetreAnalyse(QWidget* parent,
                               std::function<void(Genre, bool)> au_choix_d_un_genre,
                               std::function<void(int robot, int numero)> au_segment)
    : QWidget(parent, Qt::Window),
      instant_(this),
      constats_(this, std::move(au_choix_d_un_genre)),
      transport_(this),
      lecture_(LigneTexte::Sorte::capteur, this),
      frise_(d_, this) {
    frise_.au_segment = std::move(au_segment);
    nommer();
    composer_commandes();
    placer();
    connecter();
    resize(taille_habituelle);
    retenir_place(*this);
}

void FenetreAnalyse::nommer() {
    setObjectName("Analyse");
    setWindowTitle("Analyse du match");
    course_.setObjectName("course");
    course_.setText("Un match est en cours : cette fenêtre montre le match prévu, pas celui-là.");
    course_.setAutoFillBackground(true);
    course_.setBackgroundRole(QPalette::ToolTipBase);
    course_.setForegroundRole(QPalette::ToolTipText);
    course_.setMargin(4);
    course_.hide();
    lecture_.setObjectName("lecture_instant");
    lecture_.setAccessibleName("Instant, action et place");
    horloge_.setTimerType(Qt::PreciseTimer);
}

void FenetreAnalyse::placer() {
    auto* en_haut = new QSplitter(Qt::Horizontal);
    en_haut->addWidget(&instant_);
    en_haut->addWidget(&constats_);
    en_haut->setSizes({largeur_de_la_table, taille_habituelle.width() - largeur_de_la_table});
    en_haut->setStretchFactor(1, 1);
    auto* en_bas = new QWidget;
    auto* colonne = new QVBoxLayout(en_bas);
    colonne->setContentsMargins(0, 0, 0, 0);
    colonne->setSpacing(4);
    lecture_.setFixedHeight(lecture_.hauteur(taille_habituelle.width()));
    colonne->addWidget(&transport_);
    colonne->addWidget(&lecture_);
    colonne->addWidget(&frise_, 1);
    auto* tout = new QSplitter(Qt::Vertical);
    for (QWidget* partie : {static_cast<QWidget*>(en_haut), en_bas})
        tout->addWidget(partie);
    tout->setStretchFactor(0, 1);
    tout->setChildrenCollapsible(false);
    en_haut->setChildrenCollapsible(false);
    auto* fenetre = new QVBoxLayout(this);
    fenetre->addWidget(&course_);
    fenetre->addWidget(tout, 1);
    frise_.setFocus();
}

void FenetreAnalyse::connecter() {
    connect(&horloge_, &QTimer::timeout, this, [this] { passer_le_temps(); });
    frise_.au_curseur = [this](std::int32_t temps) { aller(temps); };
    frise_.au_robot = [this](int robot) { choisir_robot(robot); };
    constats_.au_constat = [this](std::size_t rang) { aller_au_constat(analyse_->constats[rang]); };
    constats_.au_rapprochement = [this](int robot, std::int32_t temps) {
        aller_au_rapprochement(robot, temps);
    };
    transport_.a_la_vitesse = [this](double vitesse) {
        d_.regler_vitesse(vitesse);
        horloge_.setInterval(vitesse == Deroulement::au_plus_vite ? 0 : une_image_ms);
    };
    transport_.a_la_recherche = [this](const QString& texte) { chercher(texte); };
    transport_.montrer_vitesse(d_.vitesse());
}

void FenetreAnalyse::montrer(const QString& verdict, const Etat& e, const Analyse& a,
                             const GenresMasques& masques) {
    etat_ = &e;
    analyse_ = &a;
    setWindowTitle("Analyse du match – " + texte_qt(a.projet).replace("[*]", "[*][*]"));
    d_.regler(a.match.duree, a.match.PasTemps);
    instant_.montrer(e, a, masques);
    instant_.montrer_place({});
    frise_.montrer(e, a, marques_de(a, masques));
    instant_.choisir_robot(frise_.robot());
    constats_.remplir(verdict, a, masques);
    suivre();
}

void FenetreAnalyse::montrer_constats(const QString& verdict, const GenresMasques& masques) {
    constats_.remplir(verdict, *analyse_, masques);
}

void FenetreAnalyse::signaler_la_course(bool oui) {
    course_.setVisible(oui);
}

void FenetreAnalyse::aller(std::int32_t temps) {
    d_.aller(temps);
    suivre();
}

// The same, and the timeline shows the place.
void FenetreAnalyse::deplacer(std::int32_t temps) {
    aller(temps);
    frise_.faire_voir_le_curseur();
}

void FenetreAnalyse::avancer(int sens) {
    d_.avancer(sens);
    deplacer(d_.temps());
}

void FenetreAnalyse::aller_au_rapprochement(int robot, std::int32_t temps) {
    choisir_robot(robot);
    const PoseTick& p = match().pose(robot, temps);
    instant_.montrer_place(QPointF(p.x, p.y));
    deplacer(temps);
}

void FenetreAnalyse::aller_au_constat(const Constat& constat) {
    if (constat.robot && *constat.robot <= match().NbRobot)
        choisir_robot(*constat.robot);
    instant_.montrer_place(constat.lieu ? std::optional(QPointF(constat.lieu->x, constat.lieu->y))
                                        : std::nullopt);
    deplacer(instant_de(*analyse_, constat).value_or(d_.temps()));
}

void FenetreAnalyse::choisir_robot(int robot) {
    frise_.choisir_robot(robot);
    instant_.choisir_robot(robot);
    ecrire_lecture();
}

void FenetreAnalyse::chercher(const QString& texte) {
    if (vide() || texte.trimmed().isEmpty())
        return;
    const auto trouvee = chercher_action(match(), texte.toStdString(), frise_.robot(), d_.temps());
    transport_.dire_introuvable(!trouvee);
    if (!trouvee)
        return;
    choisir_robot(trouvee->robot);
    deplacer(trouvee->action->debut);
}

void FenetreAnalyse::lire_ou_arreter() {
    if (vide())
        return;
    if (d_.en_lecture())
        d_.arreter();
    else
        d_.lire();
    depuis_.start();
    suivre();
}

// Under a box time stands still, as everywhere.
void FenetreAnalyse::passer_le_temps() {
    const double secondes = static_cast<double>(depuis_.nsecsElapsed()) / 1e9;
    depuis_.start();
    if (boite_ouverte())
        return;
    d_.passer(secondes);
    deplacer(d_.temps());
}

// All that shows the cursor.
void FenetreAnalyse::suivre() {
    const bool joue = d_.en_lecture();
    if (joue != horloge_.isActive()) {
        joue ? horloge_.start() : horloge_.stop();
        lecture_ou_pause_->setIcon(icone(joue ? Symbole::pause : Symbole::lecture));
    }
    instant_.montrer_instant(d_.temps());
    frise_.suivre_le_curseur();
    ecrire_lecture();
}

void FenetreAnalyse::ecrire_lecture() {
    if (vide())
        return lecture_.ecrire("Le match ne peut pas être joué.");
    const int robot = frise_.robot();
    const std::string texte = secondes(d_.temps()) + " · robot " + std::to_string(robot) + ", " +
                              description(*etat_, match(), robot, d_.temps()) + " · " +
                              texte_pose(match().pose(robot, d_.temps()));
    lecture_.ecrire(texte);
    frise_.dire(texte_qt(texte));
}

void FenetreAnalyse::hideEvent(QHideEvent* evenement) {
    d_.arreter();
    if (analyse_ != nullptr)
        suivre();
    QWidget::hideEvent(evenement);
}

// It leads out of the search first.
void FenetreAnalyse::keyPressEvent(QKeyEvent* evenement) {
    if (evenement->key() != Qt::Key_Escape)
        return QWidget::keyPressEvent(evenement);
    if (transport_.cherche())
        frise_.setFocus();
    else
        close();
}
