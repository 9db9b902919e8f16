#include "cli/francais.h"

#include <memory>
#include <vector>

namespace {

class MiseEnForme final : public CLI::Formatter {
public:
    MiseEnForme() {
        label("Usage", "Utilisation ");
        label("Positionals", "Arguments ");
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

bool contient(const std::string& message, const char* morceau) {
    return message.find(morceau) != std::string::npos;
}

std::string arguments_inconnus(const CLI::App& app) {
    const std::vector<std::string> restes = app.remaining(true);
    std::string texte = restes.size() > 1 ? "arguments inconnus :" : "argument inconnu :";
    for (const std::string& reste : restes)
        texte.append(" ").append(reste.empty() ? "''" : reste);
    return texte;
}

std::string manquant(const std::string& message) {
    const std::string quoi = message.substr(0, message.rfind(" is required"));
    return quoi == "A subcommand" ? "il manque la commande" : "il manque " + quoi;
}

/// "--json requires --match"
std::string exigee(const std::string& message) {
    constexpr std::string_view exige = " requires ";
    const std::size_t place = message.find(exige);
    if (place == std::string::npos)
        return message;
    return message.substr(0, place) + " demande " + message.substr(place + exige.size());
}

std::string nombre_de_valeurs(const std::string& message) {
    if (contient(message, "At Most"))
        return sujet(message) + " : donné plusieurs fois";
    return sujet(message) + " : il manque sa valeur";
}

} // namespace

void parler_francais(CLI::App& app) {
    app.formatter(std::make_shared<MiseEnForme>());
    app.set_help_flag("-h,--help", "Affiche cette aide");
    for (CLI::Option* option :
         app.get_options([](const CLI::Option* o) { return !o->get_positional(); }))
        option->group("Options ");
    for (CLI::App* verbe : app.get_subcommands({})) {
        verbe->group("Commandes ");
        parler_francais(*verbe);
    }
}

std::string en_francais(const CLI::ParseError& erreur, const CLI::App& app) {
    std::string message = erreur.what();
    switch (static_cast<CLI::ExitCodes>(erreur.get_exit_code())) {
    case CLI::ExitCodes::ExtrasError:
        return arguments_inconnus(app);
    case CLI::ExitCodes::RequiredError:
        return manquant(message);
    case CLI::ExitCodes::ValidationError: // our own checks speak French
        return sujet(message) + " : " + suite(message);
    case CLI::ExitCodes::ConversionError:
        return "valeur illisible : " + suite(message);
    case CLI::ExitCodes::ArgumentMismatch:
        return nombre_de_valeurs(message);
    case CLI::ExitCodes::RequiresError:
        return exigee(message);
    case CLI::ExitCodes::BaseClass: // ErreurUsage
        return message;
    default:
        return "commande mal écrite";
    }
}
