#include "cli/francais.h"

#include <memory>

namespace {

class MiseEnForme final : public CLI::Formatter {
public:
    MiseEnForme() {
        label("Usage", "Utilisation ");
        label("OPTIONS", "[OPTIONS]");
        label("SUBCOMMAND", "COMMANDE");
        label("SUBCOMMANDS", "COMMANDES");
        label("Subcommands", "Commandes");
        label("REQUIRED", "(obligatoire)");
        label("TEXT", "TEXTE");
        label("INT", "N");
    }
};

// The parser's messages begin with what they are about: "--robots: Value 12 not in range 1 to 9".
std::string sujet(const std::string& message) {
    return message.substr(0, message.find(": "));
}

std::string suite(const std::string& message) {
    const auto deux_points = message.find(": ");
    return deux_points == std::string::npos ? message : message.substr(deux_points + 2);
}

} // namespace

void parler_francais(CLI::App& app) {
    app.formatter(std::make_shared<MiseEnForme>());
    app.set_help_flag("-h,--help", "Affiche cette aide");
}

std::string en_francais(const CLI::ParseError& erreur) {
    const std::string message = erreur.what();
    const std::string nom = erreur.get_name();
    if (nom == "ExtrasError")
        return "argument inconnu : " + suite(message);
    if (nom == "RequiredError") {
        const std::string quoi = message.substr(0, message.find(" is required"));
        return quoi == "A subcommand" ? "il manque la commande" : "il manque " + quoi;
    }
    if (nom == "ValidationError")
        return sujet(message) + " : valeur refusée (" + suite(message) + ")";
    if (nom == "ConversionError")
        return "valeur illisible : " + message;
    if (nom == "ArgumentMismatch")
        return sujet(message) + " : il manque une valeur, ou il y en a trop";
    return message;
}
