#include "codegen/etiquettes.h"
#include "base/fichiers.h"
#include "cli/verbes.h"

#include <iostream>
#include <memory>

namespace {

struct ChoixEtiquettes {
    std::string fichier;
    std::optional<std::string> etiquette;
};

void afficher_liste(const std::vector<Etiquette>& etiquettes) {
    for (const Etiquette& etiquette : etiquettes)
        std::cout << etiquette.texte << '\n';
}

// The body begins with a line end, which a terminal does not need.
void afficher_corps(const std::string& corps) {
    Lignes lignes(corps);
    lignes.suivante();
    while (const auto ligne = lignes.suivante())
        std::cout << *ligne << '\n';
}

int executer(const ChoixEtiquettes& choix) {
    std::optional<Programme> programme;
    try {
        programme.emplace(lire_octets(choix.fichier));
    } catch (const ErreurFichier& erreur) {
        std::cerr << "Erreur lors de la lecture du fichier " << erreur.what() << '\n';
        return 1;
    }
    const std::vector<Etiquette> etiquettes = lister_etiquettes(*programme);
    if (!choix.etiquette) {
        afficher_liste(etiquettes);
        return 0;
    }
    const auto rang = chercher_etiquette(etiquettes, *choix.etiquette);
    if (!rang) {
        std::cerr << choix.fichier << " : aucune étiquette « " << *choix.etiquette << " »\n";
        return 1;
    }
    afficher_corps(corps_de(*programme, etiquettes[*rang].texte));
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
