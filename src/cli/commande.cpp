#include "cli/commande.h"

#include "base/texte.h"
#include "base/visible.h"
#include "record/actions_console.h"
#include "record/champs.h"

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

std::size_t nombre_de_valeurs(const ActionConsole& action) {
    return std::size_t{action.utilise_Text1()} + std::size_t{action.utilise_Text4()};
}

std::string usage(const ActionConsole& action) {
    const char* valeurs = "";
    switch (action.parametres) {
    case Parametres::aucun:
        break;
    case Parametres::longueur:
        valeurs = action.code == Code::pause ? " DUREE (centièmes de seconde)" : " DISTANCE (cm)";
        break;
    case Parametres::angle:
        valeurs = " ANGLE (degrés)";
        break;
    case Parametres::rayon_et_angle:
        valeurs = " ANGLE RAYON (degrés, cm)";
        break;
    }
    return std::string(action.legende) + valeurs;
}

// The action whose name the first words make, in capitals.
const ActionConsole* reconnaitre(const std::vector<std::string_view>& mots, std::size_t& pris) {
    std::string nom = majuscules(mots.front());
    pris = 1;
    if (nom == "BALISE" && mots.size() > 1) {
        nom += " " + majuscules(mots[1]);
        pris = 2;
    }
    return action_de_nom(nom);
}

} // namespace

std::optional<Commande> lire_commande(std::string_view ligne) {
    const std::vector<std::string_view> mots = mots_de(ligne.substr(0, ligne.find('#')));
    if (mots.empty())
        return std::nullopt;
    std::size_t pris = 0;
    const ActionConsole* const action = reconnaitre(mots, pris);
    if (action == nullptr) {
        std::string attendues;
        for (const ActionConsole& possible : actions_console)
            attendues.append(attendues.empty() ? "" : ", ").append(possible.legende);
        throw ErreurExecution("« " + abrege(mots.front()) + " » est inconnue, il faut " +
                              attendues);
    }
    const std::vector<std::string_view> valeurs(mots.begin() + static_cast<std::ptrdiff_t>(pris),
                                                mots.end());
    if (valeurs.size() != nombre_de_valeurs(*action))
        throw ErreurExecution("il faut « " + usage(*action) + " »");
    Commande commande{std::string(action->legende)};
    std::size_t suivante = 0;
    if (action->utilise_Text4())
        commande.Text4 = valeurs[suivante++];
    if (action->utilise_Text1())
        commande.Text1 = valeurs[suivante++];
    lire_champ({usage(*action), commande.Text4});
    lire_champ({usage(*action), commande.Text1});
    return commande;
}

std::string aide_des_commandes() {
    std::string texte;
    for (const ActionConsole& action : actions_console)
        texte += "  " + usage(action) + "\n";
    return texte;
}
