#include "codegen/etiquettes.h"
#include "base/fichiers.h"
#include "cli/sortie.h"
#include "cli/verbes.h"

#include <iostream>
#include <memory>

namespace {

struct ChoixEtiquettes {
    std::string fichier;
    std::optional<std::string> etiquette;
};

// A line at a time: a list of millions would take many times the file's own size.
void afficher_liste(const Programme& programme) {
    const SortieDeLignes sortie;
    pour_chaque_etiquette(programme, [&](const Etiquette& e) { sortie.ligne(e.texte); });
}

// The body begins with a line end, which a terminal does not need.
void afficher_corps(const std::string& corps) {
    const SortieDeLignes sortie;
    Lignes lignes(corps);
    lignes.suivante();
    while (const auto ligne = lignes.suivante())
        sortie.ligne(*ligne);
}

int executer(const ChoixEtiquettes& choix) {
    std::optional<Programme> programme;
    try {
        programme.emplace(lire_octets(choix.fichier));
    } catch (const ErreurFichier& erreur) {
        ecrire_ligne(std::cerr,
                     std::string("Erreur lors de la lecture du fichier ") + erreur.what());
        return 1;
    }
    if (!choix.etiquette) {
        afficher_liste(*programme);
        return 0;
    }
    const auto trouvee = chercher_etiquette(*programme, *choix.etiquette);
    if (!trouvee) {
        ecrire_ligne(std::cerr, choix.fichier + " : aucune étiquette « " + *choix.etiquette + " »");
        return 1;
    }
    afficher_corps(corps_de(*programme, trouvee->texte));
    return 0;
}

} // namespace

void declarer_etiquettes(CLI::App& app, int& code_de_sortie) {
    const auto choix = std::make_shared<ChoixEtiquettes>();
    CLI::App* verbe = app.add_subcommand(
        "etiquettes", "Liste les étiquettes d'un fichier PICBASIC ou affiche le code de l'une");
    verbe->add_option("fichier", choix->fichier, "Fichier PICBASIC")
        ->required()
        ->type_name("FICHIER");
    verbe->add_option("etiquette", choix->etiquette, "Étiquette dont le code est affiché")
        ->type_name("ETIQUETTE");
    verbe->callback([choix, &code_de_sortie] { code_de_sortie = executer(*choix); });
}
