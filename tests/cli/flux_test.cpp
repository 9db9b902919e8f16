// The program behind a shell: closed, full and unreadable streams.
#include "outils/dossier_temporaire.h"
#include "outils/textes.h"

#include <gtest/gtest.h>

#include <sys/wait.h>

#include <cstdlib>

namespace {

struct Fin {
    int code;
    std::string erreurs;
};

// Runs a line of the shell in which "tcli" is the program, in a directory of its own.
Fin shell(const DossierTemporaire& d, const std::string& ligne) {
    const std::string commande = "cd '" + d.chemin().string() +
                                 "' && export TAVOLMEX_DOSSIER=. && " +
                                 "tcli() { '" PROGRAMME "' \"$@\" 2>erreurs; }; " + ligne;
    const int etat = std::system(commande.c_str());
    return {WIFEXITED(etat) ? WEXITSTATUS(etat) : -1, d.lire("erreurs")};
}

TEST(Flux, une_sortie_perdue_ne_finit_jamais_par_0) {
    const DossierTemporaire d;
    d.ecrire("p.bas", "debut:\r\n\tReturn\r\n");
    d.ecrire("e.ini", "#\r\nAVANCE:1\r\n");
    const char* const generer = "generer --depart p.bas --entree e.ini --cible c.bas";
    for (const std::string verbe :
         {"--help", "--version", "generer --help", "etiquettes p.bas", "etiquettes p.bas debut",
          "simuler --duree 9 --trace -", "simuler --duree 1 --etat -", "dessiner --sortie -",
          generer, "generer --depart p.bas --entree e.ini --cible c.bas --apercu"}) {
        EXPECT_EQ(shell(d, "tcli " + verbe + " >sortie").code, 0) << verbe;
        for (const std::string perdue : {" >/dev/full", " >&-"}) {
            const Fin fin = shell(d, std::string("tcli ").append(verbe).append(perdue));
            EXPECT_EQ(fin.code, 1) << verbe << perdue;
            EXPECT_TRUE(contient(fin.erreurs, "Erreur d'exécution : sortie standard : "))
                << verbe << perdue;
        }
    }
    EXPECT_TRUE(contient(shell(d, "tcli --help >/dev/full").erreurs, "le disque est plein"));
    EXPECT_EQ(shell(d, "tcli --vite >/dev/full").code, 2) << "the first fault counts";
}

TEST(Flux, un_fichier_ne_prend_pas_la_place_d_un_flux_ferme) {
    const DossierTemporaire d;
    EXPECT_EQ(shell(d, "tcli simuler --duree 2 --trace t.csv --etat - <&- >&-").code, 1);
    EXPECT_TRUE(d.lire("t.csv").starts_with("temps,robot,"));
    EXPECT_FALSE(contient(d.lire("t.csv"), "Action"));
    EXPECT_EQ(shell(d, "tcli simuler --duree 2 --trace t.csv <&- >&-").code, 0);
}

TEST(Flux, une_entree_illisible_n_est_pas_un_trajet_vide) {
    const DossierTemporaire d;
    for (const std::string entree : {" </", " <&-"}) {
        const Fin fin = shell(d, "tcli piloter --sauver oui" + entree);
        EXPECT_EQ(fin.code, 1) << entree;
        EXPECT_TRUE(contient(fin.erreurs, "entrée standard : "));
        EXPECT_TRUE(contient(fin.erreurs, "rien n'a été enregistré"));
    }
    EXPECT_EQ(shell(d, "tcli piloter </dev/null").code, 0);
    EXPECT_FALSE(std::filesystem::exists(d / "Configuration/Defaut PourGenerer10.ini"));
}

TEST(Flux, une_ligne_sans_fin_est_refusee_ou_elle_commence) {
    const DossierTemporaire d;
    const Fin fin = shell(d, "{ echo Avance 5; head -c 9000000 /dev/zero | tr '\\0' x; } | "
                             "tcli piloter --sauver oui");
    EXPECT_EQ(fin.code, 2);
    EXPECT_TRUE(contient(fin.erreurs, "Ligne 2 : la ligne dépasse 4096 octets"));
    EXPECT_TRUE(contient(d.lire("Configuration/Defaut Trajet1.ini"), "AVANCE    ,5"));
}

TEST(Flux, deux_resultats_ne_vont_pas_dans_un_fichier) {
    const DossierTemporaire d;
    d.ecrire("a", "avant");
    std::filesystem::create_symlink("a", d / "lien");
    std::filesystem::create_directory(d / "sous");
    for (const std::string meme : {"--trace a --etat ./a", "--trace lien --etat a",
                                   "--trace - --etat -", "--trace neuf --etat sous/../neuf"}) {
        const Fin fin = shell(d, "tcli simuler --duree 1 " + meme);
        EXPECT_EQ(fin.code, 2) << meme;
        EXPECT_TRUE(contient(fin.erreurs, "le même fichier"));
    }
    EXPECT_EQ(d.lire("a"), "avant");
    EXPECT_EQ(shell(d, "tcli simuler --duree 1 --trace /dev/null --etat /dev/null").code, 0);
    d.ecrire("e.bas", "#\r\nAVANCE:1\r\n");
    EXPECT_EQ(shell(d, "tcli generer --depart a --entree ./e.bas --cible e.bas").code, 2);
    EXPECT_EQ(d.lire("e.bas"), "#\r\nAVANCE:1\r\n");
}

TEST(Flux, une_limite_de_taille_est_une_erreur_et_pas_la_fin) {
    const DossierTemporaire d;
    const Fin fin = shell(d, "ulimit -f 1; tcli installer");
    EXPECT_EQ(fin.code, 1);
    EXPECT_TRUE(contient(fin.erreurs, "Defaut Trajet1.ini n'a pas pu être écrit"));
    for (const auto& entree : std::filesystem::directory_iterator(d / "Configuration"))
        EXPECT_EQ(entree.path().extension(), ".ini") << entree.path();
}

} // namespace
