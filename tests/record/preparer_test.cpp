#include "outils/commande.h"
#include "outils/dossier_temporaire.h"
#include "outils/fausses_fenetres.h"
#include "record/renouvellement.h"
#include "sim/damier.h"
#include "sim/orientation.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <random>

namespace {

namespace fs = std::filesystem;

constexpr const char* generation = "Configuration/Defaut PourGenerer10.ini";

std::string trajet(int robot) {
    return "Configuration/Defaut Trajet" + std::to_string(robot) + ".ini";
}

Resultat piloter_et_sauver(const DossierTemporaire& d, std::vector<std::string> options,
                           std::string_view commandes) {
    options.insert(options.begin(), {"piloter", "--dossier", d.chemin(), "--sauver", "oui"});
    return lancer_avec_entree(d, std::move(options), commandes);
}

Resultat preparer(const DossierTemporaire& d, std::vector<std::string> options) {
    options.insert(options.begin(), {"preparer", "--dossier", d.chemin()});
    return lancer(std::move(options));
}

/// Actions that mostly end before the match does.
std::string actions_au_hasard(std::mt19937& hasard, bool balises) {
    const auto n = [&](std::uint_fast32_t limite) { return std::to_string(hasard() % limite); };
    std::string texte;
    for (auto k = hasard() % 25 + 1; k > 0; --k) {
        const char* const arcs[] = {"VirAvDr ", "VirAvGa ", "VirArDr ", "VirArGa "};
        const auto sorte = hasard() % 8;
        if (sorte < 2)
            texte += (sorte == 0 ? "Avance " : "Recule ") + n(90);
        else if (sorte < 4)
            texte += (sorte == 2 ? "Droite " : "Gauche ") + n(200);
        else if (sorte < 6)
            texte += arcs[hasard() % 4] + n(120) + " " + n(40);
        else if (sorte == 7 && balises)
            texte += hasard() % 2 == 0 ? "Balise Droite" : "Balise Gauche";
        else
            texte += "Pause " + n(256);
        texte += "\n";
    }
    return texte;
}

// Whatever "piloter" has just saved, beacons in the recorder's own short spelling included: the
// trajectory is enough to write the very bytes of its generation input again.
TEST(Preparer, apres_piloter_les_memes_octets_que_piloter) {
    std::mt19937 hasard(20);
    for (int essai = 0; essai < 24; ++essai) {
        const DossierTemporaire d;
        const int robot = essai % 3 == 2 ? 2 : 1;
        d.ecrire("Configuration/Tavolmex.ini", "NbRobot, " + std::to_string(essai % 4 + 1) +
                                                   "\nHorizontale, " +
                                                   std::to_string(essai / 2 % 2) + "\n");
        d.ecrire("Configuration/Defaut Table.ini",
                 "U,0,0,210,300\nX,190,250,3\nY,20,30,3\n"); // the beacons of most searches
        std::vector<std::string> options = {"--robot", std::to_string(robot)};
        if (essai % 2 == 0)
            options.emplace_back("--damier");
        std::vector<std::string> depart = options;
        depart.insert(depart.end(), {"--position", std::to_string(hasard() % 200) + "," +
                                                       std::to_string(hasard() % 300) + "," +
                                                       std::to_string(hasard() % 720)});
        const Resultat pilote =
            piloter_et_sauver(d, depart, actions_au_hasard(hasard, essai % 5 == 0));
        const std::string attendu = d.lire(generation);
        ASSERT_FALSE(attendu.empty()) << pilote.erreurs;
        // A match that ended begins the trajectory anew; the generation input keeps it all.
        if (pilote.erreurs.find("90 s est fini") != std::string::npos)
            continue;
        fs::remove(d / generation);
        const Resultat r = preparer(d, options);
        EXPECT_EQ(r.code, 0) << r.erreurs;
        EXPECT_EQ(d.lire(generation), attendu) << essai << r.erreurs << d.lire(trajet(robot));
    }
}

// What is written by hand drives like the same commands, and the file itself is what "piloter"
// reads.
TEST(Preparer, un_fichier_ecrit_a_la_main_se_pilote_aussi) {
    const std::string fichier = "# à la main\r\n-----\r\n"
                                "init, 60 ,40, 90 # départ\r\n"
                                "avance , 80\r\n"
                                "VirAvDr,90,10 # 3e virage\r\n"
                                "Balise droite en bas\r\n"
                                "DROITE    ,90\r\n"
                                "Pause, 40 \r\n"
                                "Fin\r\n";
    for (const char* damier : {"", "--damier"}) {
        std::vector<std::string> options = {"--robot", "1"};
        if (*damier != 0)
            options.emplace_back(damier);
        const DossierTemporaire d;
        d.ecrire("Configuration/Defaut Table.ini", "U,0,0,210,300\nY,190,30,3\n");
        const DossierTemporaire pilote;
        fs::copy(d / "Configuration", pilote / "Configuration");
        d.ecrire(trajet(1), fichier);
        const Resultat r = preparer(d, options);
        EXPECT_EQ(r.code, 0) << r.erreurs;
        EXPECT_EQ(piloter_et_sauver(pilote, options, fichier).code, 0);
        EXPECT_EQ(d.lire(generation), pilote.lire(generation));
        EXPECT_TRUE(contient(d.lire(generation), "AVANCE:80\r\n"));
        EXPECT_EQ(d.lire(generation).find("CARREAUX:") != std::string::npos, *damier != 0);
        EXPECT_TRUE(contient(pilote.lire(trajet(1)), "Init,60,40,90\r\nAVANCE    ,80\r\n"
                                                     "VIRAVDR   ,90,10\r\nBALISE DRO\r\n"));
    }
}

// A session that drove something else, its table turned: the same bytes as the command line's.
TEST(Preparer, depuis_une_session_les_memes_octets_et_rien_n_y_change) {
    for (const bool tournee : {false, true}) {
        const DossierTemporaire d;
        d.ecrire("Configuration/Tavolmex.ini", tournee ? "Horizontale, 1\n" : "");
        d.ecrire(trajet(2), "Init,60,40,90\nAvance,80\nVirAvDr,90,40\nGauche,45\nFIN\n");
        ASSERT_EQ(preparer(d, {"--robot", "2", "--damier"}).code, 0);

        const auto e = std::make_unique<Etat>();
        FaussesFenetres f;
        Projet projet(*e, f, d.chemin());
        projet.LoadTable();
        projet.Init_Robot();
        projet.Init_Jeu();
        initDamier(*e);
        e->utiliDamier = true;
        if (tournee) {
            horizontal(*e);
            e->TableHorizontale = vrai16(true);
        }
        e->nb_a_generer = 7;
        e->TempsEcoule = 1234;
        e->en_course = true;
        const float x = e->XRobot(2);
        EXPECT_EQ(entree_du_fichier(*e, 2, d / trajet(2)).texte, d.lire(generation)) << tournee;
        EXPECT_EQ(robot_de_l_entree(d.lire(generation), *e, projet), 2);
        EXPECT_EQ(e->XRobot(2), x);
        EXPECT_EQ(e->nb_a_generer, 7);
    }
}

TEST(Preparer, un_refus_nomme_fichier_et_ligne_et_n_ecrit_rien) {
    const std::pair<const char*, const char*> cas[] = {
        {"Init,1,2,3\nAvance,256\n", "Ligne 2 : champ « Distance, durée ou rayon » : « 256 »"},
        {"Pause,5\nVirAvDr,90,-1\n", "Ligne 2 : champ « Distance, durée ou rayon » : « -1 »"},
        {"Pause,5\nDroite,360\n", "Ligne 2 : champ « Angle » : « 360 »"},
        {"Init,1,2,3\n\nTourne,5\n", "Ligne 3 : enregistrement inconnu : TOURNE"},
        {"Avance\n", "Ligne 1 : "},
        {"FIN\nAvance,5\n", "Ligne 2 : cette action suit « FIN »"},
    };
    for (const auto& [contenu, message] : cas) {
        const DossierTemporaire d;
        d.ecrire(trajet(1), contenu);
        d.ecrire(generation, "l'ancienne");
        const Resultat r = preparer(d, {"--robot", "1", "--damier"});
        EXPECT_EQ(r.code, 1);
        EXPECT_TRUE(contient(r.erreurs, "Defaut Trajet1.ini " + std::string(message)));
        EXPECT_EQ(d.lire(generation), "l'ancienne");
        EXPECT_FALSE(fs::exists(d / "Configuration/Sauvegardes"));
    }
    const DossierTemporaire d;
    // The table holds 1001 rows: with tile counts, less than 501 actions.
    std::string long_trajet;
    for (int k = 0; k < 501; ++k)
        long_trajet += "Droite,0\n";
    d.ecrire(trajet(1), long_trajet);
    EXPECT_EQ(preparer(d, {"--robot", "1"}).code, 0);
    EXPECT_FALSE(contient(d.lire(generation), "CARREAUX"));
    const std::string avant = d.lire(generation);
    const Resultat r = preparer(d, {"--robot", "1", "--damier"});
    EXPECT_EQ(r.code, 1);
    EXPECT_TRUE(contient(r.erreurs, "Ligne 501 : le tableau à générer est plein"));
    EXPECT_EQ(d.lire(generation), avant);
    EXPECT_EQ(preparer(d, {}).code, 2);
    EXPECT_EQ(preparer(d, {"--robot", "0"}).code, 2);
}

TEST(Preparer, les_balises_courtes_sont_dites_et_l_ancienne_version_gardee) {
    const DossierTemporaire d;
    d.ecrire(trajet(1), "Init,50,60,90\nAvance,5\nBD        \n");
    d.ecrire("Configuration/Defaut Table.ini", "U,0,0,210,300\nY,190,30,3\n");
    d.ecrire(generation, "l'ancienne");
    const Resultat r = preparer(d, {"--robot", "1"});
    EXPECT_EQ(r.code, 0);
    EXPECT_TRUE(
        contient(r.erreurs, "Defaut Trajet1.ini Ligne 3 : « BD » n'est pas lu par le simulateur"));
    EXPECT_TRUE(d.lire(generation).ends_with("AVANCE:5\r\nBALDROITE\r\n"));
    const auto copie = fs::directory_iterator(d / "Configuration/Sauvegardes")->path();
    EXPECT_EQ(d.lire("Configuration/Sauvegardes/" + copie.filename().string()), "l'ancienne");
}

TEST(Piloter, apres_fin_ou_une_action_certaines_lignes_n_ont_plus_de_place) {
    const std::tuple<const char*, const char*, const char*> cas[] = {
        {"Avance,5\nFIN\nRecule 3\n", "Ligne 3 : rien ne peut suivre « FIN »",
         "AVANCE    ,5\r\nFIN"},
        {"Avance 5\nInit,1,2,3\n", "Ligne 2 : la position initiale se donne avant",
         "AVANCE    ,5\r\nFIN"},
        {"Avance,5\nAvance,x\n", "Ligne 2 : « x » n'est pas un nombre entier",
         "AVANCE    ,5\r\nFIN"},
        {"BD\nBalise gauche,2\nVirAvDr,90\n", "Ligne 3 : il manque une virgule : 90", "BALISE GAU"},
    };
    for (const auto& [commandes, message, ecrit] : cas) {
        const DossierTemporaire d;
        d.ecrire("Configuration/Defaut Table.ini", "U,0,0,210,300\nY,190,30,3\nX,20,250,3\n");
        const Resultat r = piloter_et_sauver(d, {"--robot", "1"}, commandes);
        EXPECT_EQ(r.code, 2);
        EXPECT_TRUE(contient(r.erreurs, message));
        EXPECT_TRUE(contient(d.lire(trajet(1)), ecrit));
    }
    const DossierTemporaire d; // --position comes before the file's
    const Resultat r = piloter_et_sauver(d, {"--position", "7,8,9"}, "Init,1,2,3\nAvance,5\n");
    EXPECT_TRUE(contient(r.erreurs, "Ligne 1 : --position remplace cette position"));
    EXPECT_TRUE(contient(d.lire(trajet(1)), "Init,7,8,9"));
}

} // namespace
