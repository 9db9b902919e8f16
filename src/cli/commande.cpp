#include "cli/commande.h"

#include "base/texte.h"
#include "base/visible.h"
#include "config/ligne.h"
#include "config/ligne_trajet.h"
#include "record/appuis.h"
#include "record/champs.h"
#include "sim/actions.h"

#include <vector>

namespace {

std::vector<std::string_view> mots_de(std::string_view ligne) {
    constexpr std::string_view blancs = " \t\r";
    std::vector<std::string_view> mots;
    std::size_t debut = ligne.find_first_not_of(blancs);
    while (debut != std::string_view::npos) {
        const std::size_t fin = ligne.find_first_of(blancs, debut);
        mots.push_back(ligne.substr(debut, fin - debut));
        debut = ligne.find_first_not_of(blancs, fin);
    }
    return mots;
}

std::string usage(const actions::Action& action) {
    const char* valeurs = "";
    if (action.genre == actions::Genre::droit)
        valeurs = " DISTANCE (cm)";
    else if (action.genre == actions::Genre::pause)
        valeurs = " DUREE (centièmes de seconde)";
    else if (action.genre == actions::Genre::rotation)
        valeurs = " ANGLE (degrés)";
    else if (action.genre == actions::Genre::arc)
        valeurs = " ANGLE RAYON (degrés, cm)";
    return std::string(action.legende) + valeurs;
}

// The action whose name the first words make, in capitals.
const actions::Action* reconnaitre(const std::vector<std::string_view>& mots, std::size_t& pris) {
    std::string nom = majuscules(mots.front());
    pris = 1;
    if (nom == "BALISE" && mots.size() > 1) {
        nom += " " + majuscules(mots[1]);
        pris = 2;
    }
    return actions::trouver_legende(nom);
}

Commande commande_de(const Fiche& fiche) {
    Commande commande;
    const auto nombre = [&](std::size_t i) { return std::string(texte_entier(fiche.entier(i))); };
    commande.fin = fiche.cle == "FIN";
    if (fiche.cle == "INIT")
        commande.depart = ChampsPose{nombre(0), nombre(1), nombre(2)};
    if (const auto appui = appui_de(fiche)) {
        commande.legende = appui->legende;
        commande.Text1 = appui->Text1;
        commande.Text4 = appui->Text4;
    }
    return commande;
}

bool contient_chiffre(std::string_view texte) {
    return texte.find_first_of("0123456789") != std::string_view::npos;
}

// A line of a trajectory file, the recorder's own included. A beacon with numbers is none: that is
// a command with a value too many.
std::optional<Commande> lire_ligne_de_fichier(std::string_view ligne) {
    const std::string_view utile = rogner(sans_commentaire(ligne.substr(0, ligne.find('\r'))));
    if (utile.find(',') == std::string_view::npos) {
        const auto fiche = eventuelle(fiche_trajet(utile));
        const bool sans_nombre = fiche && !contient_chiffre(utile);
        return sans_nombre ? std::optional(commande_de(*fiche)) : std::nullopt;
    }
    if (!parametres_de_trajet(code_de_trajet(utile)))
        return std::nullopt;
    return commande_de(exiger(fiche_trajet(utile))); // or says what is wrong with its numbers
}

} // namespace

std::optional<Commande> lire_commande(std::string_view ligne) {
    if (!compte_dans_un_trajet(sans_commentaire(ligne)))
        return std::nullopt; // "-----", or the byte-order mark in front of a comment
    if (auto commande = lire_ligne_de_fichier(ligne))
        return commande;
    const std::vector<std::string_view> mots = mots_de(ligne.substr(0, ligne.find('#')));
    if (mots.empty())
        return std::nullopt;
    std::size_t pris = 0;
    const actions::Action* const action = reconnaitre(mots, pris);
    if (action == nullptr) {
        std::string attendues;
        for (const actions::Action& possible : actions::boutons)
            attendues.append(attendues.empty() ? "" : ", ").append(possible.legende);
        throw ErreurExecution("« " + abrege(mots.front()) + " » est inconnue, il faut " +
                              attendues);
    }
    const std::vector<std::string_view> valeurs(mots.begin() + static_cast<std::ptrdiff_t>(pris),
                                                mots.end());
    if (static_cast<int>(valeurs.size()) != action->nb_parametres())
        throw ErreurExecution("il faut « " + usage(*action) + " »");
    Commande commande{std::string(action->legende)};
    std::size_t suivante = 0;
    if (action->a_un_angle())
        commande.Text4 = valeurs[suivante++];
    if (action->a_une_longueur())
        commande.Text1 = valeurs[suivante++];
    lire_champ({usage(*action), commande.Text4});
    lire_champ({usage(*action), commande.Text1});
    return commande;
}

std::string aide_des_commandes() {
    std::string texte;
    for (const actions::Action& action : actions::boutons)
        texte += "  " + usage(action) + "\n";
    return texte;
}
