#include "ui/verdict/verdict.h"

#include "analyse/verdict.h"
#include "ui/commun/boites.h"
#include "ui/commun/bureau.h"
#include "ui/commun/virages_croises.h"
#include "ui/verdict/fenetre_analyse.h"

#include <QShortcut>

#include <algorithm>
#include <iterator>

namespace {

constexpr int apres_le_dessin_ms = 20; ///< what changed is painted first
constexpr int apres_une_boite_ms = 200;

} // namespace

Verdict::Verdict(QWidget& principale, Seance& seance, Bureau& bureau)
    : principale_(principale),
      seance_(seance),
      bureau_(bureau),
      ligne_(*new LigneVerdict(&principale)),
      etat_(std::make_unique<Etat>()) {
    attente_.setSingleShot(true);
    mesure_.setSingleShot(true);
    const auto ouvrir = [this] { montrer_fenetre(); };
    QObject::connect(&attente_, &QTimer::timeout, &attente_, [this] { calculer(); });
    QObject::connect(&mesure_, &QTimer::timeout, &mesure_, [this] { mesurer(); });
    QObject::connect(&ligne_, &QAbstractButton::clicked, &attente_, ouvrir);
    auto* touche = new QShortcut(Qt::Key_F7, &principale);
    touche->setContext(Qt::ApplicationShortcut);
    QObject::connect(touche, &QShortcut::activated, &attente_, ouvrir);
    ecouter(seance.annonces());
}

Verdict::~Verdict() = default;

void Verdict::projet_change(Lecture lecture) {
    if (lecture != Lecture::table)
        enregistres_.reset();
    recalculer();
}

void Verdict::trajet_change() {
    for (std::size_t i = 1; i <= robots_max; ++i)
        if (seance_.etat().TrajetModifie(static_cast<int>(i)))
            enregistres_.set(i);
    recalculer();
}

void Verdict::recalculer() {
    attendu_ = true;
    attente_.start(apres_le_dessin_ms);
}

void Verdict::course_change() {
    if (fenetre_)
        fenetre_->signaler_la_course(seance_.en_marche());
    if (attendu_ && !seance_.en_marche())
        attente_.start(apres_le_dessin_ms);
}

void Verdict::calculer() {
    if (seance_.terminee() || seance_.en_marche())
        return;
    if (boite_ouverte())
        return attente_.start(apres_une_boite_ms);
    attendu_ = false;
    analyse_ = analyser_le_projet();
    *etat_ = seance_.etat();
    etat_->ZoneRedessin = {0, etat_->XMax, 0, etat_->YMax};
    masques_ = {seance_.projet().dossier_configuration(), analyse_.projet};
    noter_changement();
    montrer();
    prevenir();
}

void Verdict::prevenir() {
    for (const auto& suite : suites_)
        suite(analyse_);
}

std::vector<Constat> Verdict::constats_signales() const {
    std::vector<Constat> signales;
    std::ranges::copy_if(analyse_.constats, std::back_inserter(signales),
                         [this](const Constat& c) { return !masques_.contient(c.genre); });
    return signales;
}

// A recorded path stands in a file only once it is saved, and which lines it has there nobody has
// counted.
Provenance Verdict::provenance() const {
    const Projet& projet = seance_.projet();
    Provenance p = provenance_de(projet);
    if (p.code)
        p.code->virages_croises =
            virages_croises(projet.dossier_configuration(), seance_.etat().NomProjet);
    for (int i = 1; i <= robots_des_fichiers; ++i) {
        if (enregistres_.test(static_cast<std::size_t>(i)))
            p.lignes(i).clear();
        if (seance_.etat().TrajetModifie(i))
            p.fichier(i).clear();
    }
    return p;
}

Analyse Verdict::analyser_le_projet() const {
    const Etat& e = seance_.etat();
    try {
        return analyser(e, provenance(), constats_de_lecture(seance_.projet()));
    } catch (const ErreurExecution& erreur) {
        Analyse a{.projet = e.NomProjet};
        a.match.arret = ArretDeMatch{.raison = erreur.what()};
        a.constats.push_back({.genre = Genre::arret,
                              .texte = "le match ne peut pas être joué : " +
                                       std::string(erreur.what()) + ". Corrigez le projet."});
        return a;
    }
}

Analyse Verdict::analyse_a_jour() const {
    Analyse a = analyser_le_projet();
    const GenresMasques masques(seance_.projet().dossier_configuration(), a.projet);
    std::erase_if(a.constats, [&](const Constat& c) { return masques.contient(c.genre); });
    return a;
}

// What the last change did to the margin; what changes nothing leaves it in sight.
void Verdict::noter_changement() {
    const auto fin = fin_des_plans(analyse_);
    const auto marge = fin ? std::optional(duree_du_match - *fin) : std::nullopt;
    const std::string present =
        analyse_.projet + '\n' + texte_du_verdict(analyse_, {}, 0, 0).entier();
    if (present == dernier_)
        return;
    const bool meme_projet = dernier_.starts_with(analyse_.projet + '\n');
    changement_ = meme_projet && marge && marge_ ? std::optional(*marge - *marge_) : std::nullopt;
    dernier_ = present;
    marge_ = marge;
}

TexteVerdict Verdict::texte() const {
    return texte_du_verdict(analyse_, changement_, static_cast<int>(constats_signales().size()),
                            masques_.nombre());
}

void Verdict::montrer() {
    ligne_.ecrire(texte());
    if (!fenetre_ || !fenetre_->isVisible())
        return;
    fenetre_->montrer(texte_qt(texte().entier()), *etat_, analyse_, masques_);
    if (analyse_.ecarts.empty() && analyse_.robots.size() > 1)
        mesure_.start(apres_le_dessin_ms);
}

void Verdict::mesurer() {
    mesurer_ecarts(*etat_, analyse_);
    fenetre_->montrer_constats(texte_qt(texte().entier()), masques_);
}

void Verdict::montrer_fenetre() {
    if (!fenetre_)
        fenetre_ = std::make_unique<FenetreAnalyse>(
            &principale_,
            [this](Genre genre, bool masque) {
                masques_.masquer(genre, masque);
                montrer();
                prevenir();
            },
            [this](int robot, int numero) { bureau_.modifier_le_trajet(robot, numero); });
    fenetre_->signaler_la_course(seance_.en_marche());
    fenetre_->show();
    fenetre_->raise();
    fenetre_->activateWindow();
    montrer();
}
