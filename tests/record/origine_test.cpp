#include "record/origine.h"

#include "banc_console.h"
#include "record/generation.h"
#include "record/trajet.h"

#include <gtest/gtest.h>

namespace {

const std::string entree = "Essai PourGenerer10.ini";

// A console whose recordings are written as the program saves them, in a project "Essai".
struct BancOrigine : BancConsole {
    BancOrigine() {
        e.NomProjet = "Essai";
        debuter();
    }
    void ecrire_trajet(int i) {
        const std::string nom = "Essai Trajet" + std::to_string(i) + ".ini";
        d.ecrire(nom, texte_trajet(e, i, nom));
    }
    void ecrire_entree() { d.ecrire(entree, texte_generation(e, entree)); }
    /// The only warning, "" when there is none.
    std::string avertissement(const std::string& nom = entree) const {
        const auto liste = avertissements_d_origine(d / nom);
        EXPECT_LE(liste.size(), 1U);
        return liste.empty() ? "" : liste.front();
    }
};

} // namespace

TEST(Origine, l_entree_qui_vient_d_etre_ecrite_est_celle_de_son_trajet) {
    BancOrigine b;
    for (const actions::Action& action : actions::boutons)
        b.jouer(std::string(action.legende).c_str(), "30", "40");
    b.ecrire_entree();
    EXPECT_EQ(b.avertissement(), "") << "no trajectory beside it: nothing to compare with";
    b.ecrire_trajet(1);
    b.ecrire_trajet(2); // built in, not recorded
    EXPECT_EQ(b.avertissement(), "");
    b.d.ecrire(entree, b.d.lire(entree) + "CARREAUX:7\r\n");
    EXPECT_EQ(b.avertissement(), "") << "tile counts are no moves of a trajectory";
}

TEST(Origine, un_trajet_enregistre_de_nouveau_ne_correspond_plus) {
    BancOrigine b;
    b.jouer("Avance", "30");
    b.jouer("Droite", "0", "90");
    b.ecrire_entree();
    b.ecrire_trajet(1);
    ASSERT_EQ(b.avertissement(), "");
    // Each of these is another path; the third has the turn as the robot makes it.
    for (const char* autre : {"Avance,30\nFIN\nDroite,90\n", "Avance,31\nDroite,90\nFIN\n",
                              "Avance,30\nGauche,90\nFIN\n", "Avance,30\nDroite,90\nPause,1\nFIN\n",
                              "Avance,x\n", "FIN\n"}) {
        b.d.ecrire("Essai Trajet1.ini", autre);
        const std::string phrase = b.avertissement();
        const bool prefixe = std::string(autre).starts_with("Avance,30\nFIN");
        EXPECT_TRUE(
            phrase.starts_with(entree + (prefixe ? " contient le trajet du robot 1 et d'autres"
                                                 : " ne correspond plus à aucun trajet")))
            << autre << phrase;
    }
    b.d.ecrire("Essai Trajet9.ini", "Avance,30\nDroite,90\nFIN\n");
    EXPECT_EQ(b.avertissement(), "") << "another robot's path";
}

TEST(Origine, plusieurs_enregistrements_dans_une_entree_se_disent) {
    BancOrigine b;
    b.jouer("Avance", "30");
    b.debuter();
    b.debuter(); // "Fin Enr.", then "Début Enr." again
    b.jouer("VirAvGa", "40", "1");
    b.ecrire_entree();
    b.ecrire_trajet(1);
    EXPECT_TRUE(b.avertissement().starts_with(
        entree + " contient le trajet du robot 1 et d'autres mouvements (lignes en plus : 1)"))
        << b.avertissement();
}

TEST(Origine, seul_l_entete_fait_un_fichier_de_generation) {
    struct {
        const char* octets;
        const char* projet; ///< null: another file
    } const cas[] = {
        {"# Fichier Essai PourGenerer10.iniréalisé par x\r\n", "Essai"},
        {"\xEF\xBB\xBF# Fichier Mon essai PourGenerer7.ini\n", "Mon essai"},
        {"# Fichier \xC9t\xE9 PourGenerer10.inir\xE9"
         "alis\xE9 par x\r",
         "Été"},
        {"# Fichier  PourGenerer10.ini", ""},
        {"# Fichier Essai Trajet1.ini\n# Fichier Essai PourGenerer10.ini\n", nullptr},
        {"# Fichier Essai PourGenerer.ini\n", nullptr},
        {"# Fichier Essai PourGenerer10", nullptr},
        {"AVANCE:5\n", nullptr},
        {"# Fichier PourGenerer10.ini", nullptr},
        {"", nullptr},
    };
    for (const auto& c : cas) {
        const auto projet = projet_de_l_entree(std::string_view(c.octets));
        EXPECT_EQ(projet.has_value(), c.projet != nullptr) << c.octets;
        EXPECT_EQ(projet.value_or(""), c.projet != nullptr ? c.projet : "") << c.octets;
    }
    const DossierTemporaire d;
    EXPECT_EQ(projet_du_fichier(d.chemin()), std::nullopt) << "a directory";
    d.ecrire("vide.ini", "# Fichier Essai PourGenerer10.ini\n#\n");
    EXPECT_EQ(avertissements_d_origine(d / "vide.ini"),
              std::vector<std::string>{"vide.ini ne contient aucun mouvement"});
    EXPECT_THROW(avertissements_d_origine(d / "absent.ini"), ErreurFichier);
}
