#include "codegen/menu.h"

#include "codegen/lexique.h"

#include <utility>

namespace {

constexpr std::string_view constante = "const num_menu_max";
constexpr std::string_view genere = "\t'Généré automatiquement par le simulateur";

// The number behind "=", a comment after it left aside, plus one.
Entier16 nouveau_maximum(std::string_view ligne) {
    const std::size_t egal = ligne.find('=');
    if (egal == std::string_view::npos)
        throw ErreurConversion("", "un nombre entier de -32768 à 32767 après « = »");
    const std::string_view valeur = ligne.substr(egal + 1);
    return lire_entier16(valeur.substr(0, valeur.find_first_of("';"))) + 1;
}

// Looks for the anchors one after the other; `etape_` is the one that comes next.
class Passage {
public:
    Passage(std::filesystem::path fichier, std::string_view fonction, std::string_view fin)
        : fichier_(std::move(fichier)), fonction_(fonction), fin_(fin) {}

    void lire(const LigneProgramme& ligne) {
        if (resultat_.deja == 0 && montre_deja(ligne.texte))
            resultat_.deja = ligne.numero;
        if (recherche_libre() && contient_sans_casse(ligne.texte, constante)) {
            relever_constante(ligne);
            return;
        }
        // An anchor and the entry of the present maximum may share a line.
        if (etape_ == Etape::action && contient_sans_casse(ligne.texte, "action_selectionnee:"))
            etape_ = Etape::entree_action;
        else if (etape_ == Etape::affichage && contient_sans_casse(ligne.texte, "affichage_menu"))
            etape_ = Etape::entree_affichage;
        suivre(ligne);
    }

    PassageMenu resultat() && {
        resultat_.ancre_manquante = ancre_attendue();
        return std::move(resultat_);
    }

private:
    enum class Etape {
        action,
        entree_action,
        changement,
        affichage,
        entree_affichage,
        ligne_suivante,
        fini
    };

    bool recherche_libre() const { return etape_ == Etape::action || etape_ == Etape::affichage; }

    // An entry of the display: AFF_CHAR = "TRAJECTOIRE"
    bool montre_deja(std::string_view ligne) const {
        return contient_sans_casse(ligne, "aff_char") &&
               minuscules(ligne.substr(0, debut_de_commentaire(ligne)))
                       .find("\"" + minuscules(fonction_) + "\"") != std::string::npos;
    }

    void suivre(const LigneProgramme& ligne) {
        switch (etape_) {
        case Etape::entree_action:
            if (est_entree_precedente(ligne))
                etape_ = Etape::changement;
            break;
        case Etape::changement:
            if (contient_sans_casse(ligne.texte, "chgt_affichage"))
                inserer_apres(ligne, entree_action(), Etape::affichage);
            break;
        case Etape::entree_affichage:
            if (est_entree_precedente(ligne))
                etape_ = Etape::ligne_suivante;
            break;
        case Etape::ligne_suivante:
            inserer_apres(ligne, entree_affichage(), Etape::fini);
            break;
        default:
            break;
        }
    }

    void relever_constante(const LigneProgramme& ligne) {
        try {
            N_ = nouveau_maximum(ligne.texte);
        } catch (const ErreurExecution& erreur) {
            refuser_ligne(fichier_, ligne.numero, ligne.texte, erreur.what());
        }
        ++resultat_.constantes;
        resultat_.modifications.push_back(
            {ligne.debut, ligne.fin, "Const NUM_MENU_MAX = " + std::to_string(N_)});
    }

    std::string entree(int numero) const { return "i_menu = " + std::to_string(numero); }
    bool est_entree_precedente(const LigneProgramme& ligne) const {
        return ligne.texte.find(entree(N_ - 1)) != std::string_view::npos;
    }

    void inserer_apres(const LigneProgramme& ligne, std::string texte, Etape suite) {
        if (ligne.suite == ligne.fin)
            texte.insert(0, fin_);
        resultat_.modifications.push_back({ligne.suite, ligne.suite, std::move(texte)});
        ++resultat_.entrees;
        etape_ = suite;
    }

    std::string lignes(std::initializer_list<std::string_view> textes) const {
        std::string resultat;
        for (const std::string_view texte : textes)
            resultat.append(texte).append(fin_);
        return resultat;
    }
    std::string sinon_si() const { return "\tElseIf " + entree(N_) + " Then"; }
    std::string libelle() const { return "\t\tAFF_CHAR = \"" + fonction_ + "\""; }
    std::string entree_action() const {
        return lignes({genere, sinon_si(), "\t\tDemande_Affichage = AFFICHER_RESULTAT", libelle(),
                       "\t\tGosub Afficher_LCD", "\t\tGOSUB " + fonction_});
    }
    std::string entree_affichage() const {
        return lignes({genere, sinon_si(), libelle(), "\t'Fin génération automatique "});
    }

    std::string ancre_attendue() const {
        if (etape_ != Etape::fini && resultat_.constantes == 0)
            return "Const NUM_MENU_MAX";
        switch (etape_) {
        case Etape::action:
            return "action_selectionnee:";
        case Etape::changement:
            return "CHGT_AFFICHAGE";
        case Etape::affichage:
            return "affichage_menu";
        case Etape::fini:
            return {};
        default:
            return entree(N_ - 1);
        }
    }

    std::filesystem::path fichier_;
    std::string fonction_;
    std::string_view fin_;
    Entier16 N_;
    Etape etape_ = Etape::action;
    PassageMenu resultat_;
};

} // namespace

PassageMenu integrer_au_menu(const Programme& programme, const std::filesystem::path& fichier,
                             std::string_view fonction, std::string_view fin) {
    Passage passage(fichier, fonction, fin);
    LignesProgramme lignes = programme.lignes();
    while (const auto ligne = lignes.suivante())
        passage.lire(*ligne);
    return std::move(passage).resultat();
}
