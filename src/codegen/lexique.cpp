#include "codegen/lexique.h"

#include "base/texte.h"

#include <algorithm>
#include <array>

namespace {

bool est_lettre(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_';
}
bool est_lettre_ou_chiffre(char c) {
    return est_lettre(c) || (c >= '0' && c <= '9');
}

std::string_view premier_nom(std::string_view texte) {
    const auto fin = std::find_if_not(texte.begin(), texte.end(), est_lettre_ou_chiffre);
    const std::string_view nom(texte.begin(), fin);
    return est_nom(nom) ? nom : std::string_view();
}

// The first name of `reste`, in lower case; `reste` then begins behind it and its blanks.
std::string prendre_nom(std::string_view& reste) {
    const std::string_view nom = premier_nom(reste);
    reste = rogner(reste.substr(nom.size()));
    return minuscules(nom);
}

std::string_view instruction(std::string_view ligne) {
    return rogner(ligne.substr(0, debut_de_commentaire(ligne)));
}

template <std::size_t N>
bool figure(const std::array<std::string_view, N>& mots, std::string_view mot) {
    return std::find(mots.begin(), mots.end(), mot) != mots.end();
}

} // namespace

bool est_nom(std::string_view texte) {
    return !texte.empty() && est_lettre(texte.front()) &&
           std::all_of(texte.begin(), texte.end(), est_lettre_ou_chiffre);
}

std::size_t debut_de_commentaire(std::string_view ligne) {
    const std::string_view nue = rogner(ligne);
    if (minuscules(premier_nom(nue)) == "rem")
        return static_cast<std::size_t>(nue.data() - ligne.data());
    bool dans_un_texte = false;
    for (std::size_t i = 0; i < ligne.size(); ++i) {
        if (ligne[i] == '"')
            dans_un_texte = !dans_un_texte;
        else if (!dans_un_texte && (ligne[i] == '\'' || ligne[i] == ';'))
            return i;
    }
    return ligne.size();
}

std::string_view etiquette_definie(std::string_view ligne) {
    // Statements of one word that another statement may follow on the line.
    static constexpr std::array<std::string_view, 8> instructions{"else", "return", "end",  "endif",
                                                                  "next", "wend",   "loop", "do"};
    const std::string_view nue = rogner(ligne);
    const std::string_view nom = premier_nom(nue);
    if (nom.empty() || !nue.substr(nom.size()).starts_with(':') ||
        figure(instructions, minuscules(nom)))
        return {};
    return nom;
}

std::vector<std::string> noms_declares(std::string_view ligne) {
    static constexpr std::array<std::string_view, 3> devant{"dim", "const", "symbol"};
    static constexpr std::array<std::string_view, 3> derriere{"var", "con", "equ"};
    std::string_view reste = instruction(ligne);
    std::string premier = prendre_nom(reste);
    if (premier.empty())
        return {};
    if (!figure(devant, premier)) {
        const bool declare = figure(derriere, prendre_nom(reste));
        return declare ? std::vector{std::move(premier)} : std::vector<std::string>{};
    }
    std::vector<std::string> noms{prendre_nom(reste)};
    while (reste.starts_with(',')) {
        reste = rogner(reste.substr(1));
        noms.push_back(prendre_nom(reste));
    }
    return noms;
}

bool est_inclusion(std::string_view ligne) {
    std::string_view reste = instruction(ligne);
    return prendre_nom(reste) == "include";
}
