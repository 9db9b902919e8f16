#include "cli/choix.h"

#include "config/nom_projet.h"

void ajouter_dossier(CLI::App& verbe, ChoixDeLigne& choix) {
    verbe
        .add_option("--dossier", choix.dossier,
                    "Dossier de l'application (celui qui contient Configuration)")
        ->type_name("DOSSIER");
}

void ajouter_projet(CLI::App& verbe, ChoixDeLigne& choix) {
    verbe.add_option("--projet", choix.projet, "Nom du projet, à la place de celui des réglages")
        ->check(raison_projet_impossible, "")
        ->type_name("NOM");
}

void ajouter_horizontale(CLI::App& verbe, ChoixDeLigne& choix) {
    verbe.add_flag("--horizontale", choix.horizontale, "Table tournée d'un quart de tour");
}

CLI::Validator entier_entre(int minimum, int maximum) {
    const auto verifier = [bornes = CLI::Range(minimum, maximum), minimum,
                           maximum](std::string& valeur) -> std::string {
        if (bornes(valeur).empty())
            return "";
        return "« " + valeur + " » n'est pas un nombre de " + std::to_string(minimum) + " à " +
               std::to_string(maximum);
    };
    return {verifier, ""};
}

CLI::Validator oui_ou_non() {
    const auto verifier = [](std::string& valeur) -> std::string {
        return valeur == "oui" || valeur == "non" ? "" : "répondre oui ou non";
    };
    return {verifier, ""};
}
