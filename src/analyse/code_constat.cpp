#include "analyse/code_attendu.h"
#include "analyse/lecture.h"
#include "analyse/phrases.h"
#include "analyse/releve.h"
#include "base/fichiers.h"
#include "sim/actions.h"

#include <algorithm>

namespace {

// Move for move the trajectory, of which nothing is translated: playing it would show nothing new.
bool identique(const Etat& e, int robot, const CodeDuRobot& code) {
    const std::vector<MouvementAttendu> attendus = mouvements_attendus(e, robot);
    return code.virages_croises &&
           attendus.size() == static_cast<std::size_t>(actions_du_plan(e, robot)) &&
           std::ranges::equal(attendus, deplacements(code.relu), &MouvementAttendu::est) &&
           std::ranges::none_of(attendus, [&](const MouvementAttendu& m) {
               return actions::est(e.TrajAction(robot, m.action), actions::Genre::arc);
           });
}

std::string conseil(const EcartDeCode& ecart) {
    if (ecart.premiere && ecart.premiere->par_un_arc)
        return "Remplacez les virages par des lignes droites et des tours, que le code rend "
               "exactement.";
    return "Préparez de nouveau la génération d'après ce trajet, ou vérifiez le sens des virages "
           "du robot.";
}

std::string incomprises(const CodeRelu& code) {
    if (code.incomprises.empty())
        return "";
    const int n = static_cast<int>(code.incomprises.size());
    return compte(n, "ligne") + " du code non " + (n > 1 ? "comprises" : "comprise") +
           ", à partir de la ligne " + std::to_string(code.incomprises.front().ligne) + ". ";
}

} // namespace

void constater_code(const Enquete& q) {
    const auto& code = q.provenance.code;
    const int robot = code ? robot_du_code(q.e, code->relu) : 0;
    // A path that is being recorded gets its code when it is saved.
    if (robot == 0 || q.e.TrajetModifie(robot) || identique(q.e, robot, *code))
        return;
    const EcartDeCode ecart = comparer_au_code(q.e, q.m, robot, *code);
    if (!ecart.notable())
        return;
    Constat& c =
        q.au_moment(Genre::code, robot, ecart.premiere ? ecart.premiere->temps : q.m.duree);
    c.ecart = ecart.distance;
    c.texte = "le code de " + code->fichier + " mène le robot " + a_distance(ecart) + ". " +
              (ecart.premiere ? "Première différence : " + ecart.premiere->texte + ". " : "") +
              incomprises(code->relu) + conseil(ecart);
}

std::optional<CodeDuRobot> code_du_projet(const Projet& projet) {
    try {
        const auto fichier = projet.chemin(" PourGenerer10.ini");
        return CodeDuRobot{relire_entree(lire_octets(fichier), fichier),
                           fichier.lexically_relative(projet.dossier_application()).string()};
    } catch (const ErreurExecution&) {
        return std::nullopt; // none, or the generator says why it cannot be read
    }
}
