#include "analyse/resume_table.h"

#include "analyse/phrases.h"
#include "base/texte.h"

namespace {

std::string resume_du_robot(const Etat& e, int i) {
    std::string texte = "Robot " + std::to_string(i) + " : x " + dixiemes(e.XRobot(i)) + " cm, y " +
                        dixiemes(e.YRobot(i)) + " cm, cap " + dixiemes(e.CapRobot(i)) + "°";
    const std::string_view action = e.ActionEnCours(i).sans_blancs();
    return texte + (action.empty() ? "" : ", ") + std::string(action) + ".";
}

} // namespace

std::string resume_de_la_table(const Etat& e) {
    std::string texte = "Projet " + e.NomProjet + ", " + secondes(e.TempsEcoule) + ", " +
                        compte(e.NbRobot, "robot") + ".";
    for (int i = 1; i <= e.NbRobot; ++i)
        texte += " " + resume_du_robot(e, i);
    return texte;
}
