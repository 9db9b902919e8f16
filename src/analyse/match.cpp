#include "analyse/match.h"

#include "base/registres.h"

#include "draw/a_vide.h"
#include "sim/actions.h"
#include "sim/fenetres_muettes.h"
#include "sim/moteur.h"

#include <algorithm>

namespace {

std::string_view raison_seule(std::string_view texte) {
    constexpr std::string_view annonce = "Raison : ";
    if (texte.starts_with(annonce))
        texte.remove_prefix(annonce.size());
    if (texte.ends_with('.'))
        texte.remove_suffix(1);
    return texte;
}

/// Nobody looks: the drawing's arithmetic is done for its errors, messages end the match.
class FenetresAbsentes final : public FenetresMuettes {
public:
    explicit FenetresAbsentes(Etat& etat) : etat_(etat) {}

    void message(std::string_view texte, std::string_view explication) override {
        raison = raison_seule(explication.empty() ? texte : explication);
        arrete = true;
    }
    void Dessine_Table() override { dessin_.table(etat_, *this); }
    void Dessine_Robot() override { dessin_.robots(etat_, *this); }
    void fin_du_programme() override { arrete = true; }

    bool arrete = false;
    std::string raison;

private:
    Etat& etat_;
    DessinAVide dessin_;
};

class Joueur {
public:
    explicit Joueur(Etat& etat) : etat_(etat), fenetres_(etat), moteur_(etat, fenetres_) {
        m_.PasTemps = etat_.PasTemps;
        m_.NbRobot = etat_.NbRobot;
    }

    MatchCalcule jouer() {
        reserver();
        etat_.RobotTele = 0;
        moteur_.Run_Jeu();
        noter_poses();
        while (!fenetres_.arrete && etat_.TempsEcoule <= duree_du_match && tick()) {
        }
        if (fenetres_.arrete)
            noter_arret();
        m_.duree = m_.temps(m_.nb_ticks());
        finir_les_actions();
        return std::move(m_);
    }

private:
    void reserver() {
        const auto ticks =
            static_cast<std::size_t>(dernier_tick(etat_.PasTemps) / etat_.PasTemps) + 1;
        m_.Incidence.reserve(ticks);
        m_.NbreCarreaux.reserve(ticks);
        for (int i = 1; i <= m_.NbRobot; ++i)
            m_.poses(i).reserve(ticks);
    }

    bool tick() {
        etat_.TempsEcoule += etat_.PasTemps;
        if (!moteur_.Executer_Actions())
            return false;
        fenetres_.Dessine_Table();
        fenetres_.Dessine_Robot();
        if (fenetres_.arrete)
            return false;
        noter_poses();
        for (int i = 1; i <= m_.NbRobot; ++i)
            suivre_action(i);
        return true;
    }

    void noter_poses() {
        for (int i = 1; i <= m_.NbRobot; ++i)
            m_.poses(i).push_back({etat_.XRobot(i), etat_.YRobot(i), etat_.CapRobot(i)});
        m_.Incidence.push_back(etat_.Incidence);
        m_.NbreCarreaux.push_back(etat_.NbreCarreaux);
    }

    void suivre_action(int i) {
        const bool en_action = etat_.ActionEnCours(i) != actions::AUCUNE;
        if (etat_.NumAction(i) != chargees_(i))
            charger(i);
        else if (!en_action && en_action_(i))
            terminer(i);
        en_action_(i) = en_action;
    }

    void charger(int i) {
        chargees_(i) = etat_.NumAction(i);
        const Nom10& action = etat_.TrajAction(i, chargees_(i));
        if (action == actions::FIN)
            return;
        const PoseTick& pose = m_.poses(i).back();
        const int abandons = moteur_.predictions_abandonnees(i);
        m_.actions(i).push_back(
            {chargees_(i), action, etat_.TempsEcoule, 0, pose, pose, abandons != abandons_(i)});
        abandons_(i) = abandons;
    }

    void terminer(int i) {
        ActionJouee& action = m_.actions(i).back();
        action.fin = etat_.TempsEcoule;
        action.apres = m_.poses(i).back();
    }

    void noter_arret() {
        const int robot = moteur_.robot_en_cause();
        m_.arret = ArretDeMatch{robot, etat_.NumAction(robot), fenetres_.raison};
    }

    void finir_les_actions() {
        for (int i = 1; i <= m_.NbRobot; ++i) {
            if (!m_.actions(i).empty() && !m_.actions(i).back().finie())
                m_.actions(i).back().apres = m_.poses(i).back();
        }
    }

    Etat& etat_;
    FenetresAbsentes fenetres_;
    Moteur moteur_;
    MatchCalcule m_;
    Tableau<Entier16, robots_max> chargees_; ///< number of the action loaded last
    Tableau<bool, robots_max> en_action_;
    Tableau<int, robots_max> abandons_;
};

} // namespace

std::size_t MatchCalcule::tick(std::int32_t t) const {
    return std::min(static_cast<std::size_t>((t + PasTemps - 1) / PasTemps), nb_ticks());
}

MatchCalcule calculer_match(Etat& e) {
    liberer_registres(); // a window may just have painted
    return Joueur(e).jouer();
}

int actions_du_plan(const Trajectoires& t, int robot) {
    int n = 0;
    while (n < t.TrajNbActions(robot) && t.TrajAction(robot, n + 1) != actions::FIN)
        ++n;
    return n;
}
