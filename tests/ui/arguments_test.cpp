// `tavolmex` followed by what a user types, or a file manager.
#include "ui/principale/arguments.h"

#include "ui/banc.h"

#include <sstream>

namespace {

class Arguments : public Banc {
protected:
    std::variant<Demarrage, int> lire(const std::vector<std::string>& mots) {
        std::vector<const char*> argv{"tavolmex"};
        for (const std::string& mot : mots)
            argv.push_back(mot.c_str());
        sortie.str("");
        erreurs.str("");
        return lire_arguments(static_cast<int>(argv.size()), argv.data(), sortie, erreurs);
    }
    void lancer(const std::vector<std::string>& mots) {
        sim.reset();
        const auto d = std::get<Demarrage>(lire(mots));
        sim = std::make_unique<Sim1>(d.dossier.value_or(dossier.chemin()), [](int) {});
        ::demarrer(*sim, d);
    }

    std::ostringstream sortie, erreurs;
};

TEST_F(Arguments, ce_qui_n_ouvre_rien_se_dit_et_finit) {
    struct Cas {
        std::vector<std::string> mots;
        int code;
        const char *sortie, *erreurs;
    };
    for (const Cas& c : {Cas{{"--version"}, 0, "tavolmex ", ""},
                         Cas{{"Essai", "--help"}, 0, "Utilisation : tavolmex [", ""},
                         Cas{{"-x"}, 2, "", "tavolmex : argument inconnu : -x\n"},
                         Cas{{"Essai", "Deux"}, 2, "", "tavolmex : argument inconnu : Deux\n"},
                         Cas{{"--dossier"}, 2, "", "tavolmex : --dossier attend un dossier\n"}}) {
        EXPECT_EQ(std::get<int>(lire(c.mots)), c.code) << c.mots.back();
        EXPECT_TRUE(contient(sortie.str(), c.sortie)) << sortie.str();
        EXPECT_EQ(erreurs.str(), c.erreurs);
    }
}

TEST_F(Arguments, un_projet_un_fichier_ou_un_programme_s_ouvre) {
    const auto table = dossier.ecrire("Configuration/Essai Table.ini", "L,0,0,90,50\r\n");
    const auto bas = dossier.ecrire("Programmes/robot.bas", "A:\r\n\tReturn\r\n");
    const auto autre = dossier.ecrire("ailleurs/Essai Table.ini", "L,0,0,9,9\r\n");
    struct Cas {
        std::vector<std::string> mots;
        const char* projet;
        bool match = false, generateur = false;
        std::size_t messages = 0;
    };
    for (const Cas& c :
         {Cas{{}, "Defaut"}, Cas{{"Essai"}, "Essai"}, Cas{{"--demarrer"}, "Defaut", true},
          Cas{{"Essai", "--demarrer"}, "Essai", true},
          Cas{{table.string(), "--demarrer"}, "Essai", true},
          Cas{{"Configuration/Essai Table.ini"}, "Essai"},
          Cas{{bas.string()}, "Defaut", false, true},
          Cas{{autre.string()}, "Defaut", false, false, 1}}) {
        SCOPED_TRACE(c.mots.empty() ? "" : c.mots.front());
        messages.clear();
        lancer(c.mots);
        EXPECT_EQ(e().NomProjet, c.projet);
        EXPECT_EQ(seance().en_marche(), c.match);
        EXPECT_EQ(sim->findChild<QWidget*>("Dialog") != nullptr, c.generateur);
        EXPECT_EQ(messages.size(), c.messages);
    }
    try {
        lancer({"Esai"});
        FAIL();
    } catch (const ErreurExecution& erreur) {
        EXPECT_TRUE(contient(erreur.what(), "aucun projet « Esai »")) << erreur.what();
        EXPECT_TRUE(contient(erreur.what(), "il y a Defaut, Essai")) << erreur.what();
    }
}

} // namespace
