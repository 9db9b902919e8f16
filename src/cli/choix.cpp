#include "cli/choix.h"

void ajouter_dossier(CLI::App& verbe, ChoixDeLigne& choix) {
    verbe
        .add_option("--dossier", choix.dossier,
                    "Dossier de l'application (celui qui contient Configuration)")
        ->type_name("DOSSIER");
}

void ajouter_projet(CLI::App& verbe, ChoixDeLigne& choix) {
    verbe.add_option("--projet", choix.projet, "Nom du projet, à la place de celui des réglages")
        ->type_name("NOM");
}

void ajouter_horizontale(CLI::App& verbe, ChoixDeLigne& choix) {
    verbe.add_flag("--horizontale", choix.horizontale, "Table tournée d'un quart de tour");
}

CLI::Validator entier_entre(int minimum, int maximum) {
    return CLI::Range(minimum, maximum).description("");
}
