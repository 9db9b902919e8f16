#include "cli/sortie.h"

#include "base/fichiers.h"

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
        std::cout << octets << std::flush;
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
