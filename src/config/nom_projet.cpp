#include "config/nom_projet.h"

#include "base/texte.h"

#include <algorithm>

namespace {

constexpr std::string_view interdits = "/\\:*?\"<>|#"; // "#" begins a comment in the settings
constexpr std::size_t octets_max = 200; ///< leaves room for the date in a backup's name

bool est_interdit(char c) {
    return interdits.find(c) != std::string_view::npos || static_cast<unsigned char>(c) < 32;
}

/// Bytes of " Table" or " Robot3" at the end of a name, 0 without.
std::size_t fin_reconnue(std::string_view nom, GenreFichier genre) {
    const std::string grand = majuscules(nom);
    const std::string_view fin = genre == GenreFichier::table ? " TABLE" : " ROBOT";
    std::string_view vue = grand;
    std::size_t chiffre = 0;
    if (genre == GenreFichier::robot) {
        if (vue.empty() || vue.back() < '1' || vue.back() > '9')
            return 0;
        vue.remove_suffix(1);
        chiffre = 1;
    }
    return vue.ends_with(fin) ? fin.size() + chiffre : 0;
}

} // namespace

std::string raison_nom_impossible(std::string_view nom) {
    if (rogner(nom).empty())
        return "Un nom de fichier ne peut pas être vide";
    if (std::any_of(nom.begin(), nom.end(), est_interdit))
        return "Un nom de fichier ne peut pas contenir / \\ : * ? \" < > | #";
    if (nom.size() > octets_max)
        return "Ce nom de fichier est trop long";
    return "";
}

std::string projet_du_nom(std::string_view nom, GenreFichier genre) {
    const std::size_t fin = fin_reconnue(nom, genre);
    if (fin == 0 || !raison_nom_impossible(nom).empty())
        return "";
    const std::string_view projet = nom.substr(0, nom.size() - fin);
    return rogner(projet) == projet ? std::string(projet) : "";
}

std::string proposer_nom(std::string_view nom, GenreFichier genre) {
    std::string propre(nom);
    std::erase_if(propre, est_interdit);
    std::string_view vue = rogner(propre);
    if (majuscules(vue).ends_with(".INI"))
        vue = rogner(vue.substr(0, vue.size() - 4));
    std::string fin = genre == GenreFichier::table ? " Table" : " Robot1";
    if (const std::size_t n = fin_reconnue(vue, genre); n != 0) {
        fin = vue.substr(vue.size() - n);
        vue = rogner(vue.substr(0, vue.size() - n));
    }
    std::string projet(vue.empty() || vue == rogner(fin) ? "Projet" : vue);
    while (projet.size() + fin.size() > octets_max)
        projet = premiers_caracteres(projet, projet.size() / 2);
    return projet + fin;
}
