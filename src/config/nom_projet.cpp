#include "config/nom_projet.h"

#include "base/erreurs.h"
#include "base/fichiers.h"
#include "base/texte.h"

#include <algorithm>

namespace {

// What the team's other systems do not take in a file's name, and "#", which begins a comment.
constexpr std::string_view interdits = "/\\:*?\"<>|#";

constexpr std::size_t octets_max = 190; ///< of a project's name
constexpr std::size_t nom_de_fichier_max = 255;
constexpr std::string_view plus_long_suffixe = " Reprise99.ini.illisible";
static_assert(octets_max + plus_long_suffixe.size() + octets_de_version <= nom_de_fichier_max);

bool est_controle(char c) {
    const auto octet = static_cast<unsigned char>(c);
    return octet < 32 || octet == 127;
}
bool est_interdit(char c) {
    return interdits.find(c) != std::string_view::npos || est_controle(c);
}

bool est_controle_c1(std::string_view texte) {
    return texte.size() > 1 && texte[0] == '\xC2' && static_cast<unsigned char>(texte[1]) < 0xA0;
}
// Of the second set too, U+0080 to U+009F, which terminals obey.
bool a_un_controle(std::string_view nom) {
    for (std::size_t i = 0; i < nom.size(); ++i)
        if (est_controle(nom[i]) || est_controle_c1(nom.substr(i)))
            return true;
    return false;
}

// Never what a terminal would obey.
std::string phrase_de_refus(std::string_view nom, const std::string& raison) {
    constexpr std::size_t montres = 60;
    std::string sujet = "Ce nom";
    if (est_utf8(nom) && !a_un_controle(nom)) {
        const std::string_view debut = premiers_caracteres(nom, montres);
        sujet = "« " + std::string(debut) + (debut.size() < nom.size() ? "…" : "") + " »";
    }
    return sujet + " ne peut pas être celui d'un projet : " + raison;
}

constexpr std::string_view fin_de(GenreFichier genre) {
    switch (genre) {
    case GenreFichier::table:
        return " Table";
    case GenreFichier::robot:
        return " Robot";
    default:
        return " Trajet";
    }
}

/// Bytes of " Table" or " Robot3" at the end of a name, 0 without.
std::size_t fin_reconnue(std::string_view nom, GenreFichier genre) {
    const std::string grand = majuscules(nom);
    const std::string fin = majuscules(fin_de(genre));
    std::string_view vue = grand;
    std::size_t chiffre = 0;
    if (genre != GenreFichier::table) {
        if (vue.empty() || vue.back() < '1' || vue.back() > '9')
            return 0;
        vue.remove_suffix(1);
        chiffre = 1;
    }
    return vue.ends_with(fin) ? fin.size() + chiffre : 0;
}

// What stands before such an end, the whole name without one.
std::string_view sans_fin(std::string_view nom) {
    return nom.substr(0, nom.size() - std::max({fin_reconnue(nom, GenreFichier::table),
                                                fin_reconnue(nom, GenreFichier::robot),
                                                fin_reconnue(nom, GenreFichier::trajet)}));
}

} // namespace

std::string suite_robot(int n) {
    return " Robot" + std::to_string(n) + ".ini";
}

std::string suite_trajet(int n) {
    return " Trajet" + std::to_string(n) + ".ini";
}

std::string raison_projet_impossible(std::string_view nom) {
    if (!est_utf8(nom))
        return "ses accents ne sont pas codés en UTF-8";
    if (a_un_controle(nom))
        return "il contient un caractère de contrôle";
    if (nom.find_first_of("/\\") != std::string_view::npos)
        return "il contient un séparateur de dossiers, / ou \\";
    if (nom == "." || nom == "..")
        return "c'est le nom d'un dossier";
    if (nom.find('#') != std::string_view::npos)
        return "il contient #, qui commence un commentaire dans les réglages";
    if (rogner(nom) != nom)
        return "un blanc le commence ou le finit";
    if (nom.size() > octets_max)
        return "il est trop long";
    return "";
}

void exiger_projet_possible(std::string_view nom) {
    if (const std::string raison = raison_projet_impossible(nom); !raison.empty())
        throw ErreurExecution(phrase_de_refus(nom, raison));
}

std::string nom_de_fichier(std::string_view projet, std::string_view suffixe) {
    exiger_projet_possible(projet);
    return std::string(projet).append(suffixe);
}

// Put together as text: whatever the suffix, the file lies below the directory.
std::filesystem::path chemin_de_projet(const std::filesystem::path& configuration,
                                       std::string_view projet, std::string_view suffixe) {
    return {configuration.string() + "/" + nom_de_fichier(projet, suffixe)};
}

std::filesystem::path fichier_de_projet(const std::filesystem::path& configuration,
                                        std::string_view projet, std::string_view suffixe) {
    return trouver_fichier(configuration, nom_de_fichier(projet, suffixe));
}

std::string raison_nom_impossible(std::string_view nom) {
    if (rogner(nom).empty())
        return "Un nom de fichier ne peut pas être vide";
    if (std::any_of(nom.begin(), nom.end(), est_interdit))
        return "Un nom de fichier ne peut pas contenir / \\ : * ? \" < > | #";
    const std::string_view projet = sans_fin(nom);
    if (const std::string raison = raison_projet_impossible(projet); !raison.empty())
        return phrase_de_refus(projet, raison);
    return "";
}

std::filesystem::path fichier_d_editeur(const std::filesystem::path& configuration,
                                        std::string_view nom) {
    if (const std::string raison = raison_nom_impossible(nom); !raison.empty())
        throw ErreurExecution(raison);
    const std::string_view projet = sans_fin(nom);
    return fichier_de_projet(configuration, projet,
                             std::string(nom.substr(projet.size())) + ".ini");
}

std::string projet_du_nom(std::string_view nom, GenreFichier genre) {
    const std::size_t fin = fin_reconnue(nom, genre);
    if (fin == 0 || !raison_nom_impossible(nom).empty())
        return "";
    return std::string(nom.substr(0, nom.size() - fin));
}

std::string projet_nomme_par(std::string_view fichier) {
    constexpr std::string_view fin = ".INI";
    constexpr std::string_view generation = " POURGENERER10";
    if (!majuscules(fichier).ends_with(fin))
        return "";
    const std::string_view nom = fichier.substr(0, fichier.size() - fin.size());
    for (const auto genre : {GenreFichier::table, GenreFichier::robot, GenreFichier::trajet})
        if (std::string projet = projet_du_nom(nom, genre); !projet.empty())
            return projet;
    if (!majuscules(nom).ends_with(generation))
        return "";
    const std::string_view projet = nom.substr(0, nom.size() - generation.size());
    return raison_projet_impossible(projet).empty() ? std::string(projet) : "";
}

std::string proposer_nom(std::string_view nom, GenreFichier genre) {
    std::string propre(nom);
    std::erase_if(propre, est_interdit);
    std::string_view vue = rogner(propre);
    if (majuscules(vue).ends_with(".INI"))
        vue = rogner(vue.substr(0, vue.size() - 4));
    std::string fin = std::string(fin_de(genre)) + (genre == GenreFichier::table ? "" : "1");
    if (const std::size_t n = fin_reconnue(vue, genre); n != 0) {
        fin = vue.substr(vue.size() - n);
        vue = rogner(vue.substr(0, vue.size() - n));
    }
    std::string projet(vue.empty() || vue == rogner(fin) ? "Projet" : vue);
    while (projet.size() > octets_max)
        projet = premiers_caracteres(projet, projet.size() / 2);
    return projet + fin;
}
