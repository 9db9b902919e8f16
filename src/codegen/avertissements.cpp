#include "codegen/avertissements.h"

#include "codegen/examen_entree.h"
#include "codegen/lexique.h"

#include <unordered_map>
#include <unordered_set>

namespace {

std::string ligne_n(std::size_t numero) {
    return "ligne " + std::to_string(numero);
}

// What a program defines, and the labels it defines more than once.
struct Inventaire {
    explicit Inventaire(const Programme& programme) {
        LignesProgramme lignes = programme.lignes();
        while (const auto ligne = lignes.suivante())
            lire(*ligne);
    }

    void lire(const LigneProgramme& ligne) {
        const std::string_view nom = etiquette_definie(ligne.texte);
        if (!nom.empty()) {
            const auto [place, nouvelle] = etiquettes.try_emplace(minuscules(nom), ligne.numero);
            if (!nouvelle)
                doublons.push_back(std::string(nom) + ": est en double (lignes " +
                                   std::to_string(place->second) + " et " +
                                   std::to_string(ligne.numero) + " du fichier généré)");
            return;
        }
        for (std::string& declare : noms_declares(ligne.texte))
            noms.insert(std::move(declare));
        inclut = inclut || est_inclusion(ligne.texte);
    }

    std::unordered_map<std::string, std::size_t> etiquettes; ///< with their line
    std::unordered_set<std::string> noms;                    ///< variables and constants
    std::vector<std::string> doublons;
    bool inclut = false;
};

void ajouter_besoins_du_menu(Besoins& besoins) {
    besoins.sous_programmes.insert("Afficher_LCD");
    besoins.noms.insert(
        {"NUM_MENU_MAX", "i_menu", "Demande_Affichage", "AFFICHER_RESULTAT", "AFF_CHAR"});
}

void signaler_manques(const Besoins& besoins, const Inventaire& inventaire,
                      std::vector<std::string>& liste) {
    const std::string ou =
        inventaire.inclut ? " (sauf dans un fichier que le programme inclut)" : "";
    const auto signaler = [&](std::string debut, const std::string& nom, const char* suite) {
        liste.push_back(debut.append(nom).append(suite).append(ou));
    };
    for (const std::string& nom : besoins.sous_programmes) {
        if (!inventaire.etiquettes.contains(minuscules(nom)))
            signaler("Le sous-programme ", nom, " n'existe pas dans le programme");
    }
    for (const std::string& nom : besoins.noms) {
        if (!inventaire.noms.contains(minuscules(nom)))
            signaler("La variable ou constante ", nom, " n'est pas déclarée dans le programme");
    }
}

// The removal ends at the first "return": other labels before it go too.
void signaler_retrait(const Demande& demande, const Programme& depart, const Composition& c,
                      std::vector<std::string>& liste) {
    if (c.retrait.remplacee)
        liste.push_back("La fonction " + demande.fonction +
                        " existe déjà : la garder (Non) laisserait deux étiquettes du même nom");
    if (c.retrait.sans_return)
        liste.emplace_back("L'ancienne fonction n'a pas de « return » : tout ce qui la suit est "
                           "retiré du fichier de départ");
    Sorte emportees(liste);
    const std::string fonction = minuscules(demande.fonction);
    auto m = c.retrait.modifications.begin();
    LignesProgramme lignes = depart.lignes();
    while (const auto ligne = lignes.suivante()) {
        while (m != c.retrait.modifications.end() && ligne->debut >= m->fin)
            ++m;
        if (m == c.retrait.modifications.end())
            break;
        const std::string_view nom = etiquette_definie(ligne->texte);
        if (ligne->debut >= m->debut && !nom.empty() && minuscules(nom) != fonction)
            emportees.ajouter("Le retrait emporte aussi l'étiquette " + std::string(nom) + ": (" +
                              ligne_n(ligne->numero) + ")");
    }
    emportees.clore();
}

void signaler_menu(const Demande& demande, const PassageMenu& menu,
                   std::vector<std::string>& liste) {
    if (menu.deja > 0)
        liste.push_back("Menu : « " + demande.fonction + " » y est déjà (" + ligne_n(menu.deja) +
                        " du fichier de départ)" +
                        (menu.entrees == 2 ? " ; l'intégrer encore ajoute une seconde entrée et "
                                             "augmente NUM_MENU_MAX"
                                           : ""));
    if (!menu.ancre_manquante.empty()) {
        std::string phrase = "Menu : « " + menu.ancre_manquante + " » est introuvable, ";
        if (menu.constantes == 0)
            phrase += "l'entrée de menu sera absente";
        else if (menu.entrees == 0)
            phrase += "NUM_MENU_MAX augmente sans qu'aucune entrée soit ajoutée";
        else
            phrase += "NUM_MENU_MAX augmente, mais l'entrée de menu sera sans affichage";
        liste.push_back(std::move(phrase));
    }
    if (menu.constantes > 1)
        liste.push_back("Menu : NUM_MENU_MAX est défini " + std::to_string(menu.constantes) +
                        " fois (lignes en commentaire comprises) et changé à chaque fois");
}

} // namespace

std::string refus_du_nom(const std::string& fonction) {
    if (est_nom(fonction))
        return {};
    return (fonction.empty() ? "Le nom de la fonction est vide"
                             : "« " + fonction + " » n'est pas un nom de fonction PICBASIC") +
           " : il faut une lettre, puis des lettres sans accent, des chiffres ou des « _ »";
}

std::vector<std::string> avertissements(const Demande& demande, const Programme& depart,
                                        const Composition& composition, std::string_view entree) {
    std::vector<std::string> liste;
    if (!composition.erreur.empty())
        liste.push_back("La génération s'arrêtera avant la fin : " + composition.erreur);
    if (std::string refus = refus_du_nom(demande.fonction); !refus.empty())
        liste.push_back(std::move(refus));
    if (depart.octets().find('\0') != std::string_view::npos)
        liste.emplace_back("Le fichier de départ contient des octets nuls : est-ce un programme ?");
    signaler_retrait(demande, depart, composition, liste);

    const Programme cible(composition.cible);
    const Inventaire inventaire(cible);
    Sorte doublons(liste);
    for (const std::string& doublon : inventaire.doublons)
        doublons.ajouter(doublon);
    doublons.clore();
    Besoins besoins = examiner_entree(demande, entree, liste);
    if (composition.menu) {
        signaler_menu(demande, *composition.menu, liste);
        ajouter_besoins_du_menu(besoins);
    }
    signaler_manques(besoins, inventaire, liste);
    return liste;
}
