#include "cli/francais.h"

#include <memory>
#include <regex>

namespace {

class MiseEnForme final : public CLI::Formatter {
public:
    MiseEnForme() {
        label("Usage", "Utilisation ");
        label("SUBCOMMAND", "COMMANDE");
        label("SUBCOMMANDS", "COMMANDES");
        label("REQUIRED", "(obligatoire)");
        label("TEXT", "TEXTE");
        label("INT", "N");
    }
};

// The parser's messages name what they are about: "--robots: Value 12 not in range 1 to 9".
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
    for (CLI::App* verbe : app.get_subcommands({})) {
        verbe->group("Commandes");
        parler_francais(*verbe);
    }
}

std::string en_francais(const CLI::ParseError& erreur) {
    std::string message = erreur.what();
    const auto nature = static_cast<CLI::ExitCodes>(erreur.get_exit_code());
    std::smatch morceaux;
    if (nature == CLI::ExitCodes::ExtrasError)
        return "argument inconnu : " + suite(message);
    if (nature == CLI::ExitCodes::RequiredError) {
        const std::string quoi = message.substr(0, message.find(" is required"));
        return quoi == "A subcommand" ? "il manque la commande" : "il manque " + quoi;
    }
    if (nature == CLI::ExitCodes::ValidationError) {
        static const std::regex hors_bornes("Value (.*) not in range (.*) to (.*)");
        const std::string raison = suite(message);
        if (std::regex_match(raison, morceaux, hors_bornes))
            return sujet(message) + " : « " + morceaux[1].str() + " » n'est pas un nombre de " +
                   morceaux[2].str() + " à " + morceaux[3].str();
        return sujet(message) + " : valeur refusée (" + raison + ")";
    }
    if (nature == CLI::ExitCodes::ConversionError)
        return "valeur illisible : " + suite(message);
    if (nature == CLI::ExitCodes::ArgumentMismatch)
        return sujet(message) + " : il manque une valeur, ou il y en a trop";
    return message;
}
