#include "analyse/code.h"

#include "analyse/code_attendu.h"
#include "analyse/phrases.h"
#include "sim/actions.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <span>

namespace {

double angle_entre(double a, double b) {
    return std::fabs(std::remainder(a - b, 360));
}

double distance_entre(const PoseTick& a, const PoseTick& b) {
    return std::hypot(double{a.x} - b.x, double{a.y} - b.y);
}

// The simulator's action that moves as the robot's subroutine does.
const actions::Action& action_de(const MouvementRelu& mouvement, bool croises) {
    const auto meme_mot = [&](const actions::Action& a) {
        return a.genere == mouvement.regle->mot && a.genre != actions::Genre::arc;
    };
    const actions::Action& action = *std::ranges::find_if(actions::boutons, meme_mot);
    const actions::Action* const autre_cote = actions::trouver(action.miroir);
    const bool inverse = !croises && action.genre == actions::Genre::rotation;
    return inverse && autre_cote != nullptr ? *autre_cote : action;
}

void remplacer_trajet(Etat& e, int robot, std::span<const MouvementRelu> code, bool croises) {
    // A thousand moves take longer than a match does.
    code = code.first(std::min(code.size(), std::size_t{actions_max}));
    e.TrajNbActions(robot) = code.size();
    int k = 0;
    for (const MouvementRelu& mouvement : code) {
        e.TrajAction(robot, ++k) = action_de(mouvement, croises).nom;
        e.TrajParam1(robot, k) = mouvement.valeur;
        e.TrajParam2(robot, k) = 0;
    }
}

// Goes through both side by side, action by action, up to the first difference.
class Divergence {
public:
    Divergence(const Etat& e, const MatchCalcule& ecran, const EcartDeCode& ecart,
               std::span<const MouvementRelu> code, bool croises)
        : e_(e),
          robot_(ecart.robot),
          ecran_(ecran.actions(robot_)),
          jouees_(ecart.match.actions(robot_)),
          duree_(ecran.duree),
          code_(code),
          croises_(croises) {}

    std::optional<DifferenceDeCode> premiere() {
        const std::vector<MouvementAttendu> attendus = mouvements_attendus(e_, robot_);
        for (auto debut = attendus.begin(); debut != attendus.end();) {
            const int k = debut->action;
            const auto fin = std::find_if(debut, attendus.end(),
                                          [k](const MouvementAttendu& m) { return m.action != k; });
            if (auto difference = comparer(k, {debut, fin}))
                return difference;
            debut = fin;
        }
        if (suivant_ == code_.size())
            return std::nullopt;
        return difference(0, "après le trajet, le code fait encore " + dire(code_[suivant_]));
    }

private:
    std::optional<DifferenceDeCode> comparer(int k, std::span<const MouvementAttendu> attendus) {
        const std::size_t debut = suivant_;
        for (const MouvementAttendu& attendu : attendus) {
            if (suivant_ == code_.size())
                return difference(k, le_trajet(k) + " et la suite ne sont pas dans le code");
            if (!attendu.est(code_[suivant_]))
                return difference(k, le_trajet(k) + " : le code fait ici " + dire(code_[suivant_]));
            ++suivant_;
        }
        if (static_cast<std::size_t>(k) > ecran_.size() || meme_fin(k))
            return std::nullopt;
        return autre_fin(k, code_.subspan(debut, attendus.size()));
    }

    bool meme_fin(int k) const {
        constexpr double rien = 0.01; // cm or degrees
        if (suivant_ > jouees_.size())
            return false;
        const PoseTick& a = ecran_[static_cast<std::size_t>(k) - 1].apres;
        const PoseTick& b = jouees_[suivant_ - 1].apres;
        return distance_entre(a, b) <= rien && angle_entre(a.cap, b.cap) <= rien;
    }

    DifferenceDeCode autre_fin(int k, std::span<const MouvementRelu> relus) const {
        const auto genre = actions::trouver(e_.TrajAction(robot_, k))->genre;
        if (genre == actions::Genre::arc)
            return au_lieu_de_l_arc(k, relus);
        return difference(k, le_trajet(k) + (genre == actions::Genre::rotation
                                                 ? " : le code fait " + dire(relus.front())
                                                 : " ne finit pas au même endroit dans le code"));
    }

    DifferenceDeCode au_lieu_de_l_arc(int k, std::span<const MouvementRelu> relus) const {
        std::string texte = le_trajet(k) + " : le code remplace l'arc par ";
        for (const MouvementRelu& m : relus)
            texte += (&m == &relus.front() ? "" : ", ") + m.texte();
        texte += " (lignes " + std::to_string(relus.front().ligne) + " à " +
                 std::to_string(relus.back().ligne) + ")";
        // The quarter turn bears the arc's own side; in a crossed robot it goes to the other one.
        if (croises_)
            texte += " et tourne de l'autre côté";
        DifferenceDeCode d = difference(k, std::move(texte));
        d.par_un_arc = true;
        return d;
    }

    DifferenceDeCode difference(int k, std::string texte) const {
        const auto rang = k == 0 ? ecran_.size() : static_cast<std::size_t>(k);
        const bool finie = rang > 0 && rang <= ecran_.size() && ecran_[rang - 1].finie();
        return {k, finie ? ecran_[rang - 1].fin : duree_, false, std::move(texte)};
    }

    /// "l'action 3 (VIRAVGA 90, 30)"
    std::string le_trajet(int k) const {
        const Nom10& nom = e_.TrajAction(robot_, k);
        const int parametres = actions::trouver(nom)->nb_parametres();
        std::string texte = "l'action " + std::to_string(k) + " (" + std::string(nom.sans_blancs());
        if (parametres > 0)
            texte += " " + std::to_string(e_.TrajParam1(robot_, k));
        if (parametres > 1)
            texte += ", " + std::to_string(e_.TrajParam2(robot_, k));
        return texte + ")";
    }

    /// "GAUCHE 90, qui tourne à droite (ligne 8)"
    std::string dire(const MouvementRelu& mouvement) const {
        const actions::Action& action = action_de(mouvement, croises_);
        const char* const sens =
            action.sens < 0 ? ", qui tourne à droite" : ", qui tourne à gauche";
        return mouvement.texte() + (action.genre == actions::Genre::rotation ? sens : "") +
               " (ligne " + std::to_string(mouvement.ligne) + ")";
    }

    const Etat& e_;
    int robot_;
    const std::vector<ActionJouee>& ecran_;
    const std::vector<ActionJouee>& jouees_;
    std::int32_t duree_;
    std::span<const MouvementRelu> code_;
    bool croises_;
    std::size_t suivant_ = 0; ///< first move of the code that no action has taken
};

} // namespace

EcartDeCode comparer_au_code(const Etat& e, const MatchCalcule& ecran, int robot,
                             const CodeDuRobot& code) {
    const std::vector<MouvementRelu> mouvements = deplacements(code.relu);
    const auto copie = std::make_unique<Etat>(e);
    remplacer_trajet(*copie, robot, mouvements, code.virages_croises);
    EcartDeCode ecart;
    ecart.robot = robot;
    ecart.match = calculer_match(*copie);
    ecart.ecran = ecran.poses(robot).back();
    ecart.code = ecart.match.poses(robot).back();
    ecart.distance = distance_entre(ecart.ecran, ecart.code);
    ecart.angle = angle_entre(ecart.ecran.cap, ecart.code.cap);
    ecart.premiere = Divergence(e, ecran, ecart, mouvements, code.virages_croises).premiere();
    return ecart;
}

std::vector<std::string> phrases(const EcartDeCode& ecart, const CodeRelu& relu) {
    const auto fin = [](const PoseTick& p) {
        return "fin en (" + dixiemes(p.x) + " ; " + dixiemes(p.y) + "), cap " + dixiemes(p.cap) +
               "°";
    };
    const std::string robot = "robot " + std::to_string(ecart.robot);
    std::vector<std::string> phrases{"Le code du " + robot + " finit " + a_distance(ecart),
                                     ecart.premiere
                                         ? "Première différence : " + ecart.premiere->texte
                                         : "Aucune action ne diffère",
                                     "Écran : " + fin(ecart.ecran), "Code : " + fin(ecart.code)};
    for (const CodeRelu::Incomprise& i : relu.incomprises)
        phrases.push_back("Ligne " + std::to_string(i.ligne) + " non comprise : " + i.raison);
    return phrases;
}

std::string a_distance(const EcartDeCode& ecart) {
    return "à " + dixiemes(ecart.distance) + " cm et " + dixiemes(ecart.angle) + "° de l'écran";
}
