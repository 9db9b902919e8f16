#include "base/fichiers.h"
#include "outils/commande.h"
#include "outils/dossier_temporaire.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <unistd.h>

#include <vector>

namespace {

namespace fs = std::filesystem;

// The deployment's values in place of the two words that stand for them.
std::string deploye(std::string texte) {
    for (const auto& [mot, valeur] :
         {std::pair<std::string, const char*>{"CONTACT", TAVOLMEX_CONTACT},
          {"SITE", TAVOLMEX_SITE}})
        texte.replace(texte.find(mot), mot.size(), valeur);
    return texte;
}

// Runs "piloter" with standard input from a file.
Resultat piloter(const DossierTemporaire& d, std::vector<std::string> options,
                 const fs::path& entree) {
    std::vector<std::string> arguments = {"piloter", "--dossier", d.chemin()};
    arguments.insert(arguments.end(), options.begin(), options.end());
    return lancer_depuis(entree, std::move(arguments));
}

Resultat piloter_texte(const DossierTemporaire& d, std::vector<std::string> options,
                       const std::string& commandes) {
    return piloter(d, std::move(options), d.ecrire("commandes.txt", commandes));
}

TEST(Piloter, chaque_enregistrement_garde_donne_ses_deux_fichiers) {
    int cas = 0;
    for (const auto& dossier : fs::directory_iterator(fs::path(DONNEES) / "piloter")) {
        const DossierTemporaire d;
        if (fs::exists(dossier.path() / "depart"))
            fs::copy(dossier.path() / "depart", d / "Configuration");
        std::vector<std::string> options;
        std::ifstream arguments(dossier.path() / "arguments.txt");
        for (std::string mot; std::getline(arguments, mot);)
            options.push_back(mot);
        piloter(d, options, dossier.path() / "commandes.txt");
        for (const auto& attendu : fs::directory_iterator(dossier.path() / "attendu"))
            EXPECT_EQ(lire_octets(d / "Configuration" / attendu.path().filename()),
                      deploye(lire_octets(attendu.path())))
                << attendu;
        EXPECT_FALSE(fs::exists(d / "Configuration/Defaut Reprise.ini"));
        ++cas;
    }
    EXPECT_EQ(cas, 4);
}

TEST(Piloter, une_commande_mal_comprise_dit_sa_ligne_et_laisse_sauver_ce_qui_precede) {
    const std::pair<const char*, const char*> cas[] = {
        {"Tourne 90", "Ligne 3 : « Tourne » est inconnue, il faut Avance, Recule, Droite"},
        {"Avance", "il faut « Avance DISTANCE (cm) »"},
        {"VirAvDr 90", "il faut « VirAvDr ANGLE RAYON (degrés, cm) »"},
        {"Balise Droite 5", "il faut « Balise Droite »"},
        {"Balise", "« Balise » est inconnue"},
        {"Avance dix", "« dix » n'est pas un nombre entier de -32768 à 32767"},
        {"Avance 40000", "« 40000 » n'est pas un nombre entier de -32768 à 32767"},
    };
    for (const auto& [commande, message] : cas) {
        const DossierTemporaire d;
        const Resultat r = piloter_texte(
            d, {"--sauver", "oui"}, "# essai\nAvance 5\n" + std::string(commande) + "\nRecule 9\n");
        EXPECT_EQ(r.code, 2);
        EXPECT_TRUE(contient(r.erreurs, "Ligne 3 : "));
        EXPECT_TRUE(contient(r.erreurs, message));
        EXPECT_TRUE(contient(lire_octets(d / "Configuration/Defaut Trajet1.ini"),
                             "AVANCE    ,5\r\nFIN\r\n"));
    }
    const DossierTemporaire d;
    EXPECT_EQ(piloter_texte(d, {"--position", "1,2"}, "").code, 2);
    EXPECT_EQ(piloter_texte(d, {"--position", "1,2,x"}, "").code, 2);
    EXPECT_EQ(piloter_texte(d, {"--sauver", "peut-être"}, "").code, 2);
}

TEST(Piloter, sans_reponse_rien_n_est_sauve_et_la_reprise_d_un_autre_reste) {
    const DossierTemporaire d;
    EXPECT_EQ(piloter_texte(d, {}, "Avance 5\n").code, 0);
    EXPECT_FALSE(fs::exists(d / "Configuration/Defaut PourGenerer10.ini"));
    const fs::path reprise = d.ecrire("Configuration/Defaut Reprise.ini", "celle de la fenêtre");
    const Resultat r = piloter_texte(d, {"--sauver", "oui"}, "Avance 5\nAvance 300\n");
    EXPECT_EQ(r.code, 1); // the table could not hold 300
    EXPECT_TRUE(contient(r.erreurs, "Erreur d'exécution : ligne 2, champ"));
    EXPECT_EQ(lire_octets(reprise), "celle de la fenêtre");
    EXPECT_TRUE(contient(lire_octets(d / "Configuration/Defaut Trajet1.ini"), "AVANCE    ,300"));
}

// What somebody types at a terminal, "\x04" being the end-of-file key.
Resultat piloter_a_la_main(const DossierTemporaire& d, std::vector<std::string> options,
                           const std::string& frappe) {
    const int maitre = ::posix_openpt(O_RDWR | O_NOCTTY);
    EXPECT_TRUE(maitre >= 0 && ::grantpt(maitre) == 0 && ::unlockpt(maitre) == 0);
    EXPECT_EQ(::write(maitre, frappe.data(), frappe.size()), static_cast<ssize_t>(frappe.size()));
    Resultat r = piloter(d, std::move(options), ::ptsname(maitre));
    ::close(maitre);
    EXPECT_NE(std::freopen("/dev/null", "r", stdin), nullptr);
    return r;
}

TEST(Piloter, sur_un_terminal_la_position_est_montree_et_la_question_posee) {
    const DossierTemporaire d;
    const Resultat r =
        piloter_a_la_main(d, {"--position", "60,40,0"}, "Avance 10\nTourne\nDroite 90\n\x04oui\n");
    EXPECT_EQ(r.code, 0);
    EXPECT_TRUE(contient(r.erreurs, "x 70 y 40 cap -90°"));
    EXPECT_TRUE(contient(r.erreurs, "Ligne 2 : « Tourne » est inconnue"));
    EXPECT_TRUE(contient(lire_octets(d / "Configuration/Defaut Trajet1.ini"), "DROITE    ,90"));
}

TEST(Piloter, une_question_sans_reponse_garde_l_enregistrement) {
    const DossierTemporaire d;
    const Resultat r = piloter_a_la_main(d, {}, "Avance 10\n\x04\x04");
    EXPECT_EQ(r.code, 1);
    const fs::path reprise = d / "Configuration/Defaut Reprise.ini";
    EXPECT_TRUE(contient(lire_octets(reprise), "AVANCE"));
    EXPECT_TRUE(contient(r.erreurs, "gardé dans " + reprise.string()));
    const DossierTemporaire autre;
    piloter_a_la_main(autre, {}, "Avance 10\n\x04non\n");
    EXPECT_FALSE(fs::exists(autre / "Configuration/Defaut Reprise.ini"));
}

} // namespace
