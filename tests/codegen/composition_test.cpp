#include "codegen/composition.h"

#include "base/fichiers.h"
#include "codegen/outils_generation.h"

#include <gtest/gtest.h>

namespace fs = std::filesystem;

namespace {

std::string remplacer(std::string texte, std::string_view motif, std::string_view par) {
    for (std::size_t i = 0; (i = texte.find(motif, i)) != std::string::npos; i += par.size())
        texte.replace(i, motif.size(), par);
    return texte;
}

// A folder of tests/donnees/codegen: starting file, input, demand -> target, starting file
// afterwards (the same if absent), message (none if absent).
struct Cas {
    explicit Cas(const fs::path& dossier_) : dossier(dossier_) {
        const std::string octets = lire("demande.txt");
        Lignes lignes(octets);
        fonction = *lignes.suivante();
        menu = *lignes.suivante() == "menu";
        while (const auto ligne = lignes.suivante()) {
            reponses.push_back(ligne->starts_with("oui "));
            questions.emplace_back(ligne->substr(4));
        }
    }

    std::string lire(const char* nom) const {
        return remplacer(lire_octets(dossier / nom), "@SITE@", TAVOLMEX_SITE);
    }
    std::string lire_ou(const char* nom, const std::string& sinon) const {
        return fs::exists(dossier / nom) ? lire(nom) : sinon;
    }

    fs::path dossier;
    std::string fonction;
    bool menu = false;
    std::deque<bool> reponses;
    std::vector<std::string> questions;
};

std::vector<std::string> dossiers_de_cas() {
    std::vector<std::string> noms;
    for (const auto& entree : fs::directory_iterator(DONNEES "/codegen")) {
        if (entree.is_directory())
            noms.push_back(entree.path().filename().string());
    }
    std::sort(noms.begin(), noms.end());
    return noms;
}

class GenerationExemplaire : public testing::TestWithParam<std::string> {};

} // namespace

TEST_P(GenerationExemplaire, donne_les_octets_attendus) {
    const Cas cas(fs::path(DONNEES "/codegen") / GetParam());
    Atelier atelier(cas.lire("depart.bas"), cas.lire("entree.ini"));
    atelier.demande.fonction = cas.fonction;
    atelier.demande.menu = cas.menu;
    Repondeur repondeur;
    repondeur.reponses = cas.reponses;

    const std::string message = message_de([&] { atelier.generer(repondeur.repondre()); });

    const std::string attendu =
        remplacer(cas.lire_ou("message.txt", ""), "@ENTREE@", atelier.demande.entree.string());
    EXPECT_EQ(message, attendu);
    EXPECT_EQ(repondeur.questions, cas.questions);
    EXPECT_EQ(atelier.dossier.lire("cible.bas"), cas.lire("cible.bas"));
    const std::string apres = cas.lire_ou("depart_apres.bas", cas.lire("depart.bas"));
    EXPECT_EQ(atelier.dossier.lire("depart.bas"), apres);
    EXPECT_EQ(atelier.copies("depart.bas.").size(), apres == cas.lire("depart.bas") ? 0U : 1U);

    const bool un_non = std::count(cas.reponses.begin(), cas.reponses.end(), false) > 0;
    if (un_non || !message.empty())
        return;
    atelier.demande.depart = atelier.demande.cible;
    atelier.generer(toujours(true));
    EXPECT_EQ(atelier.dossier.lire("cible.bas"), cas.lire("cible.bas")) << "generated again";
}

INSTANTIATE_TEST_SUITE_P(Codegen, GenerationExemplaire, testing::ValuesIn(dossiers_de_cas()),
                         [](const auto& cas) { return cas.param; });

TEST(Traduction, une_mauvaise_valeur_nomme_fichier_ligne_et_texte) {
    const std::string nombre = "n'est pas un nombre entier de -32768 à 32767";
    const std::vector<std::pair<std::string, std::string>> cas = {
        {"AVANCE", "«  » " + nombre},
        {"DELAY ", "«  » " + nombre},
        {"GAUCHE:", "«  » " + nombre},
        {"CARREAUX", "«  » " + nombre},
        {"AVANCEMENT:5", "« ENT:5 » " + nombre},
        {"DROITE:12,5", "« 12,5 » " + nombre},
        {"DELAY :32767.5", "« 32767.5 » " + nombre},
        {"RECULE:-32769", "« -32769 » " + nombre},
        {"CARREAUX:1e999", "« 1e999 » " + nombre},
        {"avance:nan", "« nan » " + nombre},
    };
    const Programme depart("");
    for (const auto& [ligne, raison] : cas) {
        Demande demande;
        demande.entree = "projet.ini";
        std::string attendue = "projet.ini Ligne 4 : « ";
        attendue.append(ligne).append(" » : ").append(raison);
        const Composition c =
            composer(demande, depart, "#\rAVANCE:1\r\n\n" + ligne, toujours(false));
        EXPECT_EQ(c.erreur, attendue);
    }
}

TEST(Menu, rien_n_est_insere_apres_une_ancre_manquante) {
    const std::vector<std::string> lignes = {
        "Const NUM_MENU_MAX = 5", "action_selectionnee:", "i_menu = 4", "i_menu = 5",
        "CHGT_AFFICHAGE",         "affichage_menu",       "i_menu = 5", "suite"};
    struct {
        std::size_t retiree;
        const char* ancre;
        int insertions;
    } const cas[] = {{0, "Const NUM_MENU_MAX", 0}, {1, "action_selectionnee:", 0},
                     {3, "CHGT_AFFICHAGE", 0},     {4, "CHGT_AFFICHAGE", 0},
                     {5, "affichage_menu", 1},     {6, "i_menu = 5", 1},
                     {7, "i_menu = 5", 1},         {8, "", 2}};
    for (const auto& [retiree, ancre, insertions] : cas) {
        std::string texte;
        for (std::size_t i = 0; i < lignes.size(); ++i)
            texte.append(i == retiree ? "" : lignes[i]).append(i == retiree ? "" : "\n");
        const Programme programme(texte);
        const PassageMenu menu = integrer_au_menu(programme, "p.bas", "F", "\n");
        EXPECT_EQ(menu.ancre_manquante, ancre) << retiree;
        const std::string resultat = appliquer(programme, menu.modifications);
        const std::string marque = "'Généré automatiquement";
        int trouvees = 0;
        for (std::size_t i = 0; (i = resultat.find(marque, i)) != std::string::npos; ++i)
            ++trouvees;
        EXPECT_EQ(trouvees, insertions) << retiree;
        EXPECT_EQ(resultat.find("'Fin génération") != std::string::npos, insertions == 2);
    }
}

TEST(Menu, une_ouverture_de_ligne_est_completee_avant_l_insertion) {
    const Programme programme("Const NUM_MENU_MAX=1\raction_selectionnee: i_menu = 1\r"
                              "CHGT_AFFICHAGE\raffichage_menu i_menu = 1\rdernière");
    const PassageMenu menu = integrer_au_menu(programme, "p.bas", "F", "\r");
    EXPECT_TRUE(appliquer(programme, menu.modifications)
                    .ends_with("\rdernière\r\t'Généré automatiquement par le simulateur\r\tElseIf "
                               "i_menu = 2 Then\r\t\tAFF_CHAR = \"F\"\r\t'Fin génération "
                               "automatique \r"));
}

TEST(Menu, une_constante_illisible_arrete_avant_toute_ecriture) {
    for (const std::string ligne : {"Const NUM_MENU_MAX", "const num_menu_max = ",
                                    "Const NUM_MENU_MAX = 2 + 1", "CONST NUM_MENU_MAX = 32767"}) {
        Atelier atelier("' menu\n" + ligne + "\n", "#\n");
        atelier.demande.menu = true;
        const std::string message = message_de([&] { atelier.generer(toujours(true)); });
        EXPECT_TRUE(message.starts_with(atelier.demande.depart.string() + " Ligne 2 : « " + ligne +
                                        " » : "))
            << message;
        EXPECT_FALSE(fs::exists(atelier.demande.cible));
    }
}
