#include "base/systeme.h"
#include "base/visible.h"
#include "ui/feuille/exporter_sans_affichage.h"
#include "ui/principale/arguments.h"

#include <cstdlib>
#include <iostream>

namespace {

bool sans_affichage() {
    const auto vide = [](const char* nom) {
        const char* valeur = std::getenv(nom);
        return valeur == nullptr || *valeur == '\0';
    };
    return vide("QT_QPA_PLATFORM") && vide("DISPLAY") && vide("WAYLAND_DISPLAY");
}

int echouer(std::string_view texte) {
    std::cerr << "tavolmex : " << visible(texte) << '\n';
    return EXIT_FAILURE;
}

int executer(int argc, char** argv) {
    if (argc > 1 && std::string_view(argv[1]) == "exporter")
        return exporter_sans_affichage(argc, argv);
    const auto lus = lire_arguments(argc, argv, std::cout, std::cerr);
    if (const int* const code = std::get_if<int>(&lus))
        return *code;
    if (sans_affichage())
        return echouer("aucun affichage (ni DISPLAY ni WAYLAND_DISPLAY) ; tavolmex-cli s'en passe");
    return executer_application(argc, argv, std::get<Demarrage>(lus));
}

} // namespace

int main(int argc, char** argv) {
    systeme::preparer_le_processus();
    try {
        return executer(argc, argv);
    } catch (const std::exception& erreur) {
        return echouer(erreur.what());
    }
}
