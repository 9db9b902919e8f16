#include "outils/commande.h"
#include "outils/dossier_temporaire.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <fstream>
#include <set>
#include <sstream>

namespace {

using Json = nlohmann::json;

std::string donnee(const std::string& nom) {
    std::ifstream flux(std::string(DONNEES "/analyse/") + nom, std::ios::binary);
    return {std::istreambuf_iterator<char>(flux), {}};
}

Json analyser(const DossierTemporaire& d, std::vector<std::string> options, int code) {
    std::vector<std::string> ligne{"verifier", "--match", "--json", "--dossier", d.chemin()};
    ligne.insert(ligne.end(), options.begin(), options.end());
    const Resultat r = lancer(ligne);
    EXPECT_EQ(r.code, code) << r.erreurs;
    return Json::parse(r.sortie);
}

std::set<std::string> cles(const Json& objet) {
    std::set<std::string> noms;
    for (const auto& [cle, valeur] : objet.items())
        noms.insert(cle);
    return noms;
}

// Times are exact, exits and contacts may come a tick earlier or later; poses may differ by 2e-3.
void comparer(const Json& notre, const Json& temoin, const std::string& ou,
              double tolerance_temps) {
    ASSERT_EQ(notre.is_null(), temoin.is_null()) << ou << ": " << notre << " / " << temoin;
    if (temoin.is_object()) {
        ASSERT_EQ(cles(notre), cles(temoin)) << ou;
        const std::string genre = temoin.value("genre", "");
        const double tick = genre == "sortie" || genre.starts_with("contact") ? 1 : 0;
        for (const auto& [cle, valeur] : temoin.items()) {
            const bool temps = cle == "temps" || cle == "duree";
            // A tick away, the reference point may be a whole step away.
            const bool place = tick > 0 && (cle == "x" || cle == "y");
            if (cle != "texte")
                comparer(notre.at(cle), valeur, std::string(ou).append("/").append(cle),
                         temps || place ? tick : 0);
        }
    } else if (temoin.is_array()) {
        ASSERT_EQ(notre.size(), temoin.size()) << ou << ": " << notre.dump(1);
        for (std::size_t n = 0; n < temoin.size(); ++n)
            comparer(notre[n], temoin[n], ou + "/" + std::to_string(n), 0);
    } else if (temoin.is_number_float()) {
        EXPECT_NEAR(notre.get<double>(), temoin.get<double>(), 2e-3 + tolerance_temps) << ou;
    } else if (temoin.is_number()) {
        EXPECT_LE(std::abs(notre.get<int>() - temoin.get<int>()), tolerance_temps) << ou;
    } else {
        EXPECT_EQ(notre, temoin) << ou;
    }
}

// What the witness does not look for.
Json sans_les_genres(Json resultat) {
    const std::set<std::string> absents{"prediction", "pas", "balise", "damier"};
    Json gardes = Json::array();
    for (const Json& c : resultat["constats"]) {
        if (!absents.contains(c["genre"].get<std::string>()))
            gardes.push_back(c);
    }
    resultat["constats"] = gardes;
    return resultat;
}

TEST(VerifierMatch, suit_le_temoin_independant_sur_le_projet_par_defaut) {
    const DossierTemporaire d;
    lancer({"installer", "--dossier", d.chemin()});
    const Json a = analyser(d, {}, 1);
    EXPECT_LE(a["constats"].size(), 4U);
    comparer(sans_les_genres(a), Json::parse(donnee("defaut-1.json")), "", 0);
}

TEST(VerifierMatch, suit_le_temoin_independant_sur_deux_robots) {
    const DossierTemporaire d;
    lancer({"installer", "--dossier", d.chemin()});
    for (const char* nom : {"Defaut Trajet1.ini", "Defaut Trajet2.ini"})
        d.ecrire(std::string("Configuration/") + nom, donnee(std::string("deux-robots/") + nom));
    const Json attendu = Json::parse(donnee("deux-robots/attendu.json"));
    comparer(sans_les_genres(analyser(d, {"--robots", "2"}, 1)), attendu, "", 0);
    // The number of robots may come from the settings as well.
    d.ecrire("Configuration/Tavolmex.ini", "NbRobot, 2\r\n");
    comparer(sans_les_genres(analyser(d, {}, 1)), attendu, "", 0);
}

TEST(VerifierMatch, les_options_valent_comme_pour_simuler_et_rien_n_est_change) {
    const DossierTemporaire d;
    lancer({"installer", "--dossier", d.chemin()});
    const std::string reglages = d.lire("Configuration/Tavolmex.ini");
    const Json a = analyser(d, {"--allege", "--horizontale", "--robots", "3"}, 1);
    EXPECT_EQ(a["duree"], 9005);
    ASSERT_EQ(a["robots"].size(), 3U);
    // Turned: x 100, y 30 is now x 30, y 200 - 100.
    EXPECT_NEAR(a["robots"][0]["actions"][0]["x"].get<double>(), 30, 1e-3);
    EXPECT_NEAR(a["robots"][0]["actions"][0]["y"].get<double>(), 100, 1e-3);
    EXPECT_EQ(d.lire("Configuration/Tavolmex.ini"), reglages);
    const Json ailleurs = analyser(d, {"--projet", "Absent"}, 1);
    EXPECT_FALSE(std::filesystem::exists(d / "Configuration/Absent Table.ini"));
    EXPECT_EQ(ailleurs["projet"], "Absent");
}

TEST(VerifierMatch, ses_options_demandent_match) {
    for (const std::vector<std::string>& option :
         {std::vector<std::string>{"--json"}, {"--robots", "2"}, {"--allege"}, {"--horizontale"}}) {
        std::vector<std::string> ligne{"verifier"};
        ligne.insert(ligne.end(), option.begin(), option.end());
        const Resultat r = lancer(ligne);
        EXPECT_EQ(r.code, 2);
        EXPECT_TRUE(contient(r.erreurs, option[0] + " demande --match"));
    }
}

TEST(VerifierMatch, le_code_est_0_quand_il_n_y_a_rien_a_dire) {
    const DossierTemporaire d;
    lancer({"installer", "--dossier", d.chemin()});
    d.ecrire("Configuration/Defaut Trajet1.ini", "Init,100,160,0\r\nAvance,20\r\nFIN\r\n");
    EXPECT_EQ(analyser(d, {}, 0)["constats"], Json::array());
    const Resultat r = lancer({"verifier", "--match", "--dossier", d.chemin()});
    EXPECT_EQ(r.code, 0);
    EXPECT_EQ(r.sortie, "Defaut : dernière action finie à 0,21 s, marge 89,79 s ; robot 1 arrivé "
                        "en (120,0 ; 160,0), cap 0,0° ; aucun constat\n");
    EXPECT_EQ(r.erreurs, "");
}

TEST(VerifierMatch, ce_que_les_lecteurs_refusent_est_message_et_constat) {
    const DossierTemporaire d;
    lancer({"installer", "--dossier", d.chemin()});
    d.ecrire("Configuration/Tavolmex.ini", "NbRobot, 1\r\nVitesse, 3\r\n");
    d.ecrire("Configuration/Defaut Trajet2.ini", "Init,10,10,0\r\nSAUTE,3\r\n");
    std::filesystem::remove(d / "Configuration/Defaut Robot4.ini");
    const Resultat r = lancer({"verifier", "--match", "--json", "--dossier", d.chemin()});
    EXPECT_EQ(r.code, 1);
    EXPECT_TRUE(contient(r.erreurs, "Tavolmex.ini Ligne 2"));
    EXPECT_TRUE(contient(r.erreurs, "Trajet2.ini Ligne 44"));
    const Json tout = Json::parse(r.sortie);
    std::set<std::string> lus;
    for (const Json& c : tout["constats"]) {
        if (c["genre"] == "lecture")
            lus.insert(c["robot"].dump() + " " + c["fichier"].get<std::string>() + " " +
                       c["ligne"].dump());
    }
    // Lines count within their own file; a missing file has none.
    EXPECT_EQ(lus, (std::set<std::string>{"null Configuration/Tavolmex.ini 2",
                                          "2 Configuration/Defaut Trajet2.ini 2",
                                          "4 Configuration/Defaut Robot4.ini null"}));
}

TEST(VerifierMatch, le_texte_a_une_ligne_par_constat_puis_les_ecarts) {
    const DossierTemporaire d;
    lancer({"installer", "--dossier", d.chemin()});
    for (const char* nom : {"Defaut Trajet1.ini", "Defaut Trajet2.ini"})
        d.ecrire(std::string("Configuration/") + nom, donnee(std::string("deux-robots/") + nom));
    const Resultat r = lancer({"verifier", "--match", "--robots", "2", "--dossier", d.chemin()});
    EXPECT_EQ(r.code, 1);
    std::istringstream flux(r.sortie);
    std::vector<std::string> lignes;
    for (std::string ligne; std::getline(flux, ligne);)
        lignes.push_back(ligne);
    ASSERT_GE(lignes.size(), 7U) << r.sortie;
    EXPECT_TRUE(contient(lignes[0], "dernière action finie à 10,70 s"));
    EXPECT_EQ(lignes[1].substr(0, 18), "4,56 s, robot 1, e") << lignes[1];
    EXPECT_EQ(lignes.back(), "Robots 1 et 2 : se touchent à 4,56 s");
}

} // namespace
