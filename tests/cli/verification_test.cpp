#include "outils/commande.h"
#include "outils/dossier_temporaire.h"

#include <gtest/gtest.h>

#include <random>

namespace {

namespace fs = std::filesystem;

TEST(Verifier, ce_qui_arreterait_le_programme_est_dit_avec_son_fichier_et_son_robot) {
    struct {
        const char *fichier, *contenu;
        std::vector<std::string> attendus;
    } const cas[] = {
        {"Table",
         "U,0,0,200,320\r\nLE,50,20,50,60\r\n",
         {"Defaut Table.ini arrêterait le programme : le dessin de la table\n",
          "Raison : division par zéro"}},
        {"Table", "U,0,0,200,32767\r\n", {"Defaut Table.ini", "le dessin de la table"}},
        {"Table",
         "U,0,0,200,320\r\nPB,-32760,5,5\r\n",
         {"Defaut Table.ini", "le quart de tour de la table"}},
        {"Robot4",
         "V,100,90\r\nA,1e9,0,10\r\nR,0,0,1,1\r\n",
         {"Defaut Robot4.ini arrêterait", "le dessin du robot 4"}},
        {"Trajet5",
         "Init,32767,5,0\r\nFIN\r\n",
         {"Defaut Robot5.ini ou ", "Defaut Trajet5.ini", "robot 5 à sa position de départ"}},
        {"Trajet3",
         "Init,100,30,0\r\nPause,1\r\nVirAvGa,90,-5\r\nFIN\r\n",
         {"Defaut Trajet3.ini", "robot 3, action 2 (VIRAVGA), 0 s", "Raison : division par zéro"}},
        {"Trajet2", "SAUTE,3\r\n", {"Defaut Trajet2.ini Ligne 43\n", "Raison : "}},
    };
    for (const auto& c : cas) {
        const DossierTemporaire d;
        lancer({"installer", "--dossier", d.chemin()});
        d.ecrire(std::string("Configuration/Defaut ") + c.fichier + ".ini", c.contenu);
        const Resultat r = lancer({"verifier", "--dossier", d.chemin()});
        EXPECT_EQ(r.code, 1) << c.contenu;
        for (const std::string& attendu : c.attendus)
            EXPECT_TRUE(contient(r.erreurs, attendu));
    }
}

// One number of one of the project's files becomes one that 16 bits just hold or just do not.
class Abimeur {
public:
    explicit Abimeur(unsigned graine) : hasard_(graine) {}

    void abimer(const DossierTemporaire& d) {
        std::vector<fs::path> fichiers;
        for (const auto& f : fs::directory_iterator(d / "Configuration"))
            fichiers.push_back(f.path().filename());
        std::sort(fichiers.begin(), fichiers.end());
        const std::string nom = "Configuration/" + choisir(fichiers).string();
        std::string texte = d.lire(nom);
        std::vector<std::pair<std::size_t, std::size_t>> nombres;
        for (std::size_t i = 0; (i = texte.find(',', i)) != std::string::npos; ++i) {
            const std::size_t fin = texte.find_first_of(",\r#", i + 1);
            nombres.emplace_back(i + 1, fin - i - 1);
        }
        if (nombres.empty())
            return;
        const auto [debut, longueur] = choisir(nombres);
        static const std::vector<std::string> valeurs{"0",      "-1",     "-5",    "1",
                                                      "32767",  "-32768", "32762", "20000",
                                                      "-30000", "1e9",    "90",    "200"};
        texte.replace(debut, longueur, choisir(valeurs));
        d.ecrire(nom, texte);
    }

private:
    template <typename T>
    const T& choisir(const std::vector<T>& choix) {
        return choix[hasard_() % choix.size()];
    }
    std::mt19937 hasard_;
};

TEST(Verifier, un_projet_accepte_ne_finit_pas_en_erreur_majeure) {
    constexpr unsigned projets = 40;
    int acceptes = 0;
    int refuses_au_jeu = 0;
    for (unsigned graine = 1; graine <= projets; ++graine) {
        const DossierTemporaire d;
        lancer({"installer", "--dossier", d.chemin()});
        Abimeur abimeur(graine);
        abimeur.abimer(d);
        abimeur.abimer(d);
        const Resultat verdict = lancer({"verifier", "--dossier", d.chemin()});
        refuses_au_jeu += verdict.erreurs.find("arrêterait") != std::string::npos ? 1 : 0;
        if (verdict.code != 0)
            continue;
        ++acceptes;
        for (const char* sens : {"--allege", "--horizontale"}) {
            const Resultat jeu = lancer(
                {"simuler", "--dossier", d.chemin(), "--robots", "9", "--duree", "1000", sens});
            EXPECT_EQ(jeu.code, 0) << "seed " << graine << "\n" << jeu.erreurs;
        }
    }
    EXPECT_GT(acceptes, 5);
    EXPECT_GT(refuses_au_jeu, 5);
}

TEST(Simuler, un_demarrage_manque_ne_joue_rien) {
    const DossierTemporaire d;
    lancer({"installer", "--dossier", d.chemin()});
    // A piece that the quarter turn of the start-up would put beyond 16 bits.
    d.ecrire("Configuration/Defaut Table.ini", "U,0,0,200,320\r\nPB,-32760,5,5\r\n");
    d.ecrire("Configuration/Tavolmex.ini", "Défaut , Defaut\r\nHorizontale, 1\r\n");
    const fs::path trace = d.ecrire("t.csv", "celle d'avant");
    for (const std::vector<std::string>& verbe :
         {std::vector<std::string>{"simuler", "--trace", trace},
          {"dessiner", "--sortie", trace},
          {"piloter", "--sauver", "oui"}}) {
        std::vector<std::string> mots = verbe;
        mots.insert(mots.end(), {"--dossier", d.chemin()});
        const Resultat r = lancer(mots);
        EXPECT_EQ(r.code, 1) << r.erreurs;
        EXPECT_TRUE(r.erreurs.starts_with("Erreur d'exécution : ")) << r.erreurs;
        EXPECT_EQ(std::count(r.erreurs.begin(), r.erreurs.end(), '\n'), 1) << r.erreurs;
    }
    EXPECT_EQ(d.lire("t.csv"), "celle d'avant");
}

} // namespace
