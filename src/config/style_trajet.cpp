#include "config/style_trajet.h"

#include "config/ligne.h"
#include "config/ligne_trajet.h"
#include "sim/actions.h"

#include <algorithm>
#include <array>
#include <vector>

namespace {

constexpr std::string_view blancs = " \t";
using Casse = StyleTrajet::Casse;
constexpr std::size_t colonnes = 10;

/// "Balise droite": the word goes on behind the ten characters that count.
bool deborde(std::string_view cle) {
    const actions::Action* const action = actions::trouver(cle);
    return action != nullptr && action->mot.size() > colonnes;
}

/// The pieces of one line, in order; put together they are the line.
struct Morceaux {
    std::string_view mot;                  ///< the keyword, ten characters at most
    std::string_view suite;                ///< what else stands before the numbers
    std::vector<std::string_view> nombres; ///< fields with their blanks
    std::string_view commentaire;
};

Morceaux decouper(std::string_view octets, const Fiche& fiche) {
    Morceaux m;
    const std::string_view utile = sans_commentaire(octets);
    m.commentaire = octets.substr(utile.size());
    m.mot = utile.substr(0, fiche.cle.size());
    const int n = parametres_de_trajet(Nom10(fiche.cle)).value_or(0);
    std::size_t debut = n == 0 ? utile.size() : utile.find(',');
    m.suite = utile.substr(m.mot.size(), debut - m.mot.size());
    for (int i = 1; i <= n; ++i) {
        const std::size_t fin = i == n ? utile.size() : utile.find(',', debut + 1);
        m.nombres.push_back(utile.substr(debut + 1, fin - debut - 1));
        debut = fin;
    }
    return m;
}

bool est_blanc(std::string_view texte) {
    return texte.find_first_not_of(blancs) == std::string_view::npos;
}
std::string_view blancs_du_debut(std::string_view texte) {
    return texte.substr(0, std::min(texte.find_first_not_of(blancs), texte.size()));
}
std::string_view blancs_de_la_fin(std::string_view texte) {
    return texte.substr(std::min(texte.find_last_not_of(blancs) + 1, texte.size()));
}

/// `mot` in the case of `modele`, letter by letter.
std::string meme_casse(std::string_view mot, std::string_view modele) {
    std::string texte(mot);
    for (std::size_t i = 0; i < texte.size() && i < modele.size(); ++i) {
        const bool petite = modele[i] >= 'a' && modele[i] <= 'z';
        const std::string_view lettre = mot.substr(i, 1);
        texte[i] = (petite ? minuscules(lettre) : majuscules(lettre)).front();
    }
    return texte;
}

Casse casse_de(std::string_view mot) {
    if (majuscules(mot) == mot)
        return Casse::majuscules;
    return minuscules(mot) == mot ? Casse::minuscules : Casse::usuelle;
}

std::string mot_en(Casse casse, std::string_view cle) {
    const actions::Action* const action = actions::trouver(cle);
    std::string mot(action == nullptr || action->mot.empty() ? cle : action->mot);
    if (casse == Casse::usuelle)
        return mot;
    return casse == Casse::majuscules ? majuscules(mot) : minuscules(mot);
}

/// The ten characters of a beacon's keyword end within "droite" or "gauche": what is left of that
/// word changes side with them. Both ways at once, so that changing twice gives the same text.
std::string autre_cote(std::string_view suite) {
    const std::string fin = majuscules(suite.substr(0, 3));
    if (fin == "ITE")
        return meme_casse("CHE", suite).append(suite.substr(3));
    if (fin == "CHE")
        return meme_casse("ITE", suite).append(suite.substr(3));
    return std::string(suite);
}

/// A number in the place of another: its blanks stay, and decimals that are all zero.
std::string remplacer_nombre(std::string_view champ, int valeur) {
    const std::string_view nombre = rogner(champ);
    const std::size_t point = std::min(nombre.find('.'), nombre.size());
    const std::string_view decimales = nombre.substr(point);
    std::string texte(blancs_du_debut(champ));
    texte.append(texte_entier(valeur));
    if (!decimales.empty() && decimales.find_first_not_of(".0") == std::string_view::npos)
        texte.append(decimales);
    return texte.append(blancs_de_la_fin(champ));
}

std::string mot_et_suite(const Morceaux& m, const Fiche& lue, const Fiche& voulue) {
    if (voulue.cle == lue.cle)
        return std::string(m.mot).append(m.suite);
    const bool meme_longueur = voulue.cle.size() == lue.cle.size();
    std::string texte =
        meme_longueur ? meme_casse(voulue.cle, m.mot) : mot_en(casse_de(m.mot), voulue.cle);
    if (deborde(lue.cle) && deborde(voulue.cle))
        return texte + autre_cote(m.suite);
    if (deborde(lue.cle)) // the rest of its word goes with it
        return texte.append(blancs_de_la_fin(m.suite));
    if (!est_blanc(m.suite) || m.mot.size() + m.suite.size() != colonnes)
        return texte.append(m.suite);
    texte.resize(colonnes, ' ');
    return texte;
}

} // namespace

std::optional<StyleTrajet> StyleTrajet::de(std::string_view octets, const Fiche& fiche) {
    const Morceaux m = decouper(octets, fiche);
    if (m.nombres.empty())
        return std::nullopt;
    StyleTrajet style;
    style.casse_ = casse_de(m.mot);
    if (est_blanc(m.suite) && !m.suite.empty()) {
        style.dix_colonnes_ = m.mot.size() + m.suite.size() == colonnes;
        if (!style.dix_colonnes_)
            style.apres_mot_ = m.suite;
    }
    style.avant_nombre_ = blancs_du_debut(m.nombres.front());
    if (m.commentaire.empty()) // else they part it from the comment
        style.apres_nombre_ = blancs_de_la_fin(m.nombres.back());
    return style;
}

std::string StyleTrajet::ecrire(const Fiche& fiche) const {
    std::string mot = mot_en(casse_, fiche.cle);
    const int n = parametres_de_trajet(Nom10(fiche.cle)).value_or(0);
    // A start pose is never padded, a word without numbers is cut but not padded.
    if (dix_colonnes_ && n < 3)
        mot.resize(n > 0 ? colonnes : std::min(mot.size(), colonnes), ' ');
    std::string texte = n > 0 ? mot + apres_mot_ : mot;
    for (int i = 0; i < n; ++i)
        texte.append("," + avant_nombre_)
            .append(texte_entier(fiche.entier(static_cast<std::size_t>(i))))
            .append(apres_nombre_);
    return texte;
}

std::string retoucher_ligne_trajet(std::string_view octets, const Fiche& lue, const Fiche& voulue) {
    const Morceaux m = decouper(octets, lue);
    const auto nombres = parametres_de_trajet(Nom10(voulue.cle)).value_or(0);
    if (m.nombres.size() != static_cast<std::size_t>(nombres)) {
        const std::string ligne =
            StyleTrajet::de(octets, lue).value_or(StyleTrajet()).ecrire(voulue);
        const std::string_view ecart = blancs_de_la_fin(sans_commentaire(octets));
        return m.commentaire.empty() ? ligne : ligne + std::string(ecart).append(m.commentaire);
    }
    std::string texte = mot_et_suite(m, lue, voulue);
    for (std::size_t i = 0; i < m.nombres.size(); ++i) {
        const bool pareil = lue.entier(i) == voulue.entier(i);
        texte.append(",").append(pareil ? std::string(m.nombres[i])
                                        : remplacer_nombre(m.nombres[i], voulue.entier(i)));
    }
    return texte.append(m.commentaire);
}
