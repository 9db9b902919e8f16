#include "analyse/code_attendu.h"
#include "analyse/lecture.h"
#include "analyse/phrases.h"
#include "analyse/releve.h"
#include "base/fichiers.h"

#include <algorithm>

namespace {

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
    if (robot == 0 || q.e.TrajetModifie(robot))
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
                           fichier.lexically_relative(projet.dossier_application())};
    } catch (const ErreurExecution&) {
        return std::nullopt; // none, or the generator says why it cannot be read
    }
}
