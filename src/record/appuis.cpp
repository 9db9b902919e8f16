#include "record/appuis.h"

#include "record/champs.h"
#include "sim/actions.h"

namespace {

std::string nombre(const Fiche& action, std::size_t i) {
    return std::string(texte_entier(action.entier(i)));
}

void exiger_octets(const Appui& appui) {
    lire_champ_octet({nom_Text4, appui.Text4});
    lire_champ_octet({nom_Text1, appui.Text1});
}

} // namespace

std::optional<Appui> appui_de(const Fiche& action) {
    const actions::Action* const bouton = actions::trouver_bouton(Nom10(cle_jouee(action.cle)));
    if (bouton == nullptr)
        return std::nullopt;
    Appui appui{bouton->legende};
    // The trajectory has an arc's angle first, its radius second.
    std::size_t suivant = 0;
    if (bouton->a_un_angle())
        appui.Text4 = nombre(action, suivant++);
    if (bouton->a_une_longueur())
        appui.Text1 = nombre(action, suivant++);
    return appui;
}

std::optional<RefusLecture> refus_de_generation(const DocumentTrajet& trajet) {
    bool finie = false;
    for (std::size_t i = 0; i < trajet.nombre(); ++i) {
        finie = finie || trajet[i].cle == "FIN";
        const auto appui = appui_de(trajet[i]);
        if (!appui)
            continue;
        if (finie)
            return RefusLecture{trajet.ligne(i), "cette action suit « FIN » : le robot ne la "
                                                 "jouerait jamais"};
        try {
            exiger_octets(*appui);
        } catch (const ErreurExecution& erreur) {
            return RefusLecture{trajet.ligne(i), erreur.what()};
        }
    }
    return std::nullopt;
}

std::optional<RefusLecture> rejouer(const DocumentTrajet& trajet, Console& console,
                                    const std::function<bool()>& laisser_tourner) {
    for (std::size_t i = 0; i < trajet.nombre(); ++i) {
        const auto appui = appui_de(trajet[i]);
        if (!appui)
            continue;
        try {
            console.Command4_Click(appui->legende, appui->Text1, appui->Text4);
        } catch (const ErreurExecution& erreur) {
            return RefusLecture{trajet.ligne(i), erreur.what()};
        }
        if (!laisser_tourner())
            return RefusLecture{trajet.ligne(i), "cette action ne peut pas être jouée"};
    }
    return std::nullopt;
}
