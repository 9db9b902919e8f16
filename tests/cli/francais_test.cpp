#include "outils/commande.h"
#include "outils/dossier_temporaire.h"

#include <gtest/gtest.h>

#include <regex>

namespace {

TEST(Francais, chaque_faute_de_frappe_a_sa_phrase) {
    const DossierTemporaire d;
    const std::pair<std::vector<std::string>, const char*> cas[] = {
        {{}, "il manque la commande"},
        {{"dan\x1B[31mser"}, R"(commande inconnue : dan\x1B[31mser)"},
        {{"simuler", "a: b", "--vite", ""}, "arguments inconnus : a: b --vite ''"},
        {{"piloter", "x", "--projet", "P"}, "arguments inconnus : x --projet P"},
        {{"verifier", "x", "--projet"}, "--projet : il manque sa valeur"},
        {{"simuler", "--trace"}, "--trace : il manque sa valeur"},
        {{"simuler", "--robots="}, "--robots : il manque sa valeur"},
        {{"simuler", "--duree", "1", "--duree", "2"}, "--duree : donné plusieurs fois"},
        {{"simuler", "--robots", "10"}, "--robots : « 10 » n'est pas un nombre de 1 à 9"},
        {{"piloter", "--robot", "a"}, "--robot : « a » n'est pas un nombre de 1 à 9"},
        {{"piloter", "--sauver", "si"}, "--sauver : répondre oui ou non"},
        {{"simuler", "--allege=si"}, "valeur illisible : --allege = si"},
        {{"dessiner"}, "il manque --sortie"},
        {{"etiquettes"}, "il manque fichier"},
    };
    for (const auto& [arguments, phrase] : cas) {
        const Resultat r = lancer(arguments);
        EXPECT_EQ(r.code, 2) << phrase;
        EXPECT_EQ(r.erreurs,
                  std::string("tavolmex-cli : ") + phrase + "\nEssayez « tavolmex-cli --help ».\n");
        EXPECT_EQ(r.sortie, "");
    }
}

TEST(Francais, aucun_mot_de_l_analyseur_ne_reste_en_anglais_dans_l_aide) {
    const std::regex anglais("INT|TEXT\\b| in \\[|\\{|REQUIRED|Usage|Positionals|\\S:\n");
    for (const char* verbe : {"installer", "verifier", "simuler", "dessiner", "piloter", "generer",
                              "rejouer", "etiquettes", "exporter", "--help"}) {
        const Resultat r = lancer({verbe, "--help"});
        EXPECT_EQ(r.code, 0);
        EXPECT_TRUE(contient(r.sortie, "Options :"));
        std::smatch trouve;
        EXPECT_FALSE(std::regex_search(r.sortie, trouve, anglais)) << trouve.str() << r.sortie;
    }
}

TEST(Francais, ce_que_le_systeme_refuse_est_dit_en_francais) {
    const DossierTemporaire d;
    std::filesystem::current_path(d.chemin());
    const std::pair<std::vector<std::string>, const char*> cas[] = {
        {{"generer", "--depart", "", "--entree", "", "--cible", ""}, "refusés par le système"},
        {{"simuler", "--dossier", std::string(300, 'a')}, "le nom est trop long"},
        {{"installer", "--dossier", "/dev/null/x"}, "n'est pas un dossier"},
    };
    for (const auto& [arguments, raison] : cas) {
        const Resultat r = lancer(arguments);
        EXPECT_EQ(r.code, 1);
        EXPECT_TRUE(r.erreurs.starts_with("Erreur d'exécution : ")) << r.erreurs;
        EXPECT_TRUE(contient(r.erreurs, raison));
    }
}

TEST(Francais, un_nom_venu_d_un_fichier_ne_commande_pas_le_terminal) {
    const DossierTemporaire d;
    d.ecrire("Configuration/Tavolmex.ini", "Défaut , \x1B]0;pris\x07\r\n");
    d.ecrire("p.bas", "");
    const std::vector<std::string> cas[] = {
        {"simuler", "--dossier", d.chemin(), "--duree", "1"},
        {"verifier", "--dossier", d.chemin()},
        {"verifier", "--dossier", d.chemin(), "--projet", "\x1B[2J\n\xFF"},
        {"etiquettes", d / "p.bas", "\x1B[2J"},
        {"etiquettes", "\x1B[2J"},
        {"simuler", "--dossier", d / "\x1B[2J\xC2\x9B/../../x", "--trace", "\x1B[2J/a/b"},
    };
    for (const auto& arguments : cas) {
        const Resultat r = lancer(arguments);
        EXPECT_EQ((r.erreurs + r.sortie).find_first_of("\x1B\x07\xFF\x9B"), std::string::npos)
            << testing::PrintToString(arguments);
    }
}

} // namespace
