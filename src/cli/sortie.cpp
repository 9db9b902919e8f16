#include "cli/sortie.h"

#include "base/fichiers.h"
#include "base/systeme.h"
#include "base/texte.h"
#include "base/visible.h"

#include <cerrno>
#include <fstream>
#include <iostream>

std::filesystem::path place_demandee(const std::string& chemin) {
    if (chemin.empty() || chemin == "-")
        return chemin;
    return std::filesystem::absolute(chemin);
}

void ecrire_resultat(const std::filesystem::path& chemin, std::string_view octets) {
    if (chemin == "-") {
        if (systeme::est_un_terminal(systeme::Flux::sortie))
            std::cout << visible(octets, "\t\n");
        else
            std::cout << octets;
        return;
    }
    std::error_code erreur;
    const auto etat = std::filesystem::status(chemin, erreur);
    if (!std::filesystem::exists(etat) || std::filesystem::is_regular_file(etat) ||
        std::filesystem::is_directory(etat))
        return remplacer_fichier(chemin, octets);
    std::ofstream flux(chemin, std::ios::binary);
    flux << octets << std::flush;
    if (!flux)
        throw ErreurFichier(chemin, errno);
}

void ecrire_ligne(std::ostream& flux, std::string_view texte) {
    flux << visible(texte) << '\n' << std::flush;
}

void ecrire_lignes(std::ostream& flux, std::string_view texte) {
    Lignes lignes(texte);
    while (const auto ligne = lignes.suivante())
        ecrire_ligne(flux, *ligne);
}

SortieDeLignes::SortieDeLignes() : terminal_(systeme::est_un_terminal(systeme::Flux::sortie)) {}

void SortieDeLignes::ligne(std::string_view texte) const {
    if (terminal_)
        std::cout << visible(texte) << '\n';
    else
        std::cout << texte << '\n';
}
