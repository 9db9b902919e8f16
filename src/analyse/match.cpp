#include "analyse/match.h"

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
    explicit FenetresAbsentes(Etat& etat) : e(etat) {}

    void message(std::string_view texte, std::string_view explication) override {
        raison = raison_seule(explication.empty() ? texte : explication);
        arrete = true;
    }
    void Dessine_Table() override { dessin_.table(e, *this); }
    void Dessine_Robot() override { dessin_.robots(e, *this); }
    void fin_du_programme() override { arrete = true; }

    bool arrete = false;
    std::string raison;

private:
    Etat& e;
    DessinAVide dessin_;
};

class Joueur {
public:
    explicit Joueur(Etat& etat) : e(etat), f_(etat), moteur_(etat, f_) {
        m_.PasTemps = e.PasTemps;
        m_.NbRobot = e.NbRobot;
    }

    MatchCalcule jouer() {
        reserver();
        e.RobotTele = 0;
        moteur_.Run_Jeu();
        noter_poses();
        while (!f_.arrete && e.TempsEcoule <= duree_du_match && tick()) {
        }
        if (f_.arrete)
            noter_arret();
        m_.duree = m_.temps(m_.nb_ticks());
        finir_les_actions();
        return std::move(m_);
    }

private:
    void reserver() {
        const auto ticks = static_cast<std::size_t>(dernier_tick(e.PasTemps) / e.PasTemps) + 1;
        m_.Incidence.reserve(ticks);
        m_.NbreCarreaux.reserve(ticks);
        for (int i = 1; i <= m_.NbRobot; ++i)
            m_.poses(i).reserve(ticks);
    }

    bool tick() {
        e.TempsEcoule += e.PasTemps;
        if (!moteur_.Executer_Actions())
            return false;
        f_.Dessine_Table();
        f_.Dessine_Robot();
        if (f_.arrete)
            return false;
        noter_poses();
        for (int i = 1; i <= m_.NbRobot; ++i)
            suivre_action(i);
        return true;
    }

    void noter_poses() {
        for (int i = 1; i <= m_.NbRobot; ++i)
            m_.poses(i).push_back({e.XRobot(i), e.YRobot(i), e.CapRobot(i)});
        m_.Incidence.push_back(e.Incidence);
        m_.NbreCarreaux.push_back(e.NbreCarreaux);
    }

    void suivre_action(int i) {
        const bool en_action = e.ActionEnCours(i) != actions::AUCUNE;
        if (e.NumAction(i) != chargees_(i))
            charger(i);
        else if (!en_action && en_action_(i))
            terminer(i);
        en_action_(i) = en_action;
    }

    void charger(int i) {
        chargees_(i) = e.NumAction(i);
        const Nom10& action = e.TrajAction(i, chargees_(i));
        if (action == actions::FIN)
            return;
        const PoseTick& pose = m_.poses(i).back();
        const int abandons = moteur_.predictions_abandonnees(i);
        m_.actions(i).push_back(
            {chargees_(i), action, e.TempsEcoule, 0, pose, pose, abandons != abandons_(i)});
        abandons_(i) = abandons;
    }

    void terminer(int i) {
        ActionJouee& action = m_.actions(i).back();
        action.fin = e.TempsEcoule;
        action.apres = m_.poses(i).back();
    }

    void noter_arret() {
        const int robot = moteur_.robot_en_cause();
        m_.arret = ArretDeMatch{robot, e.NumAction(robot), f_.raison};
    }

    void finir_les_actions() {
        for (int i = 1; i <= m_.NbRobot; ++i) {
            if (!m_.actions(i).empty() && !m_.actions(i).back().finie())
                m_.actions(i).back().apres = m_.poses(i).back();
        }
    }

    Etat& e;
    FenetresAbsentes f_;
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
    return Joueur(e).jouer();
}
