#include "codegen/demande.h"
#include "config/projet.h"
#include "outils/commande.h"
#include "outils/dossier_temporaire.h"
#include "outils/fausses_fenetres.h"
#include "record/reprise.h"

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <memory>

namespace {

namespace fs = std::filesystem;

// Everything below `racine` but the configuration directory, with its content.
std::map<std::string, std::string> alentours(const DossierTemporaire& racine) {
    std::map<std::string, std::string> vus;
    for (fs::recursive_directory_iterator i(racine.chemin()), fin; i != fin; ++i) {
        const std::string nom = i->path().lexically_relative(racine.chemin()).string();
        if (nom == "bureau/app/Configuration")
            i.disable_recursion_pending();
        else
            vus[nom] = i->is_regular_file() ? racine.lire(nom) : "";
    }
    return vus;
}

// Each leads out of Configuration, is cut short, or hides on a terminal; "precieux" and "dehors"
// are what stands around.
const std::string noms[] = {
    "../precieux",
    "../../precieux\\0",
    std::string("../precieux\0", 12),
    std::string("x\0", 2),
    "..",
    "../../dehors/x",
    "sous/../../../precieux",
    "/tmp/tavolmex-evade",
    "./../precieux",
    "..\\..\\precieux",
    "lien/x",
    "\x1B]0;titre\x07",
    "x\r\nRapide, 7",
    std::string(250, 'x'),
    " ../precieux ",
    "A#B",
};

class NomsHostiles : public testing::Test {
protected:
    NomsHostiles() {
        d.ecrire("precieux", "p");
        d.ecrire("precieux Trajet1.ini", "p");
        d.ecrire("bureau/precieux Table.ini", "p");
        d.ecrire("bureau/app/precieux Reprise.ini", "p");
        d.ecrire("dehors/x Trajet1.ini", "p");
        fs::create_directory(app / "Configuration");
        fs::create_directory_symlink(d / "dehors", app / "Configuration/lien");
        d.ecrire("bureau/app/commandes.txt", "Avance 5\nDroite 90\n");
        d.ecrire("bureau/app/prog.bas", "fin\r\n");
        avant = alentours(d);
    }
    ~NomsHostiles() override { fs::current_path(depart_); }

    void rien_n_a_bouge(const std::string& apres) const {
        EXPECT_EQ(alentours(d), avant) << apres;
        EXPECT_FALSE(fs::exists("/tmp/tavolmex-evade Table.ini")) << apres;
    }
    Resultat verbe(std::vector<std::string> mots) const {
        mots.insert(mots.end(), {"--dossier", app.string()});
        return lancer_depuis(app / "commandes.txt", std::move(mots));
    }

    DossierTemporaire d;
    fs::path app = d / "bureau/app";
    std::map<std::string, std::string> avant;

private:
    fs::path depart_ = fs::current_path();
};

TEST_F(NomsHostiles, aucun_verbe_n_ecrit_hors_de_la_configuration) {
    const std::vector<std::vector<std::string>> verbes = {
        {"installer"},
        {"verifier"},
        {"simuler", "--duree", "5"},
        {"dessiner", "--sortie", "-"},
        {"piloter", "--sauver", "oui"},
    };
    for (const std::string& nom : noms) {
        for (const auto& mots : verbes) {
            d.ecrire("bureau/app/Configuration/Tavolmex.ini", "Défaut , " + nom + "\r\n");
            const Resultat r = verbe(mots);
            rien_n_a_bouge(mots[0] + " " + nom);
            EXPECT_EQ(r.erreurs.find('\x1B'), std::string::npos);
            if (mots[0] == "piloter" || nom.find('\0') != std::string::npos)
                continue;
            std::vector<std::string> impose = mots;
            impose.insert(impose.end(), {"--projet", nom});
            const Resultat refuse = verbe(impose);
            EXPECT_EQ(refuse.code, 2) << refuse.erreurs;
            EXPECT_TRUE(contient(refuse.erreurs, "--projet"));
            EXPECT_EQ(refuse.erreurs.find('\x1B'), std::string::npos);
            rien_n_a_bouge(mots[0] + " --projet " + nom);
        }
    }
}

// What the windows call, with a name that got past every door.
TEST_F(NomsHostiles, aucune_procedure_n_ecrit_hors_de_la_configuration) {
    using Procedure = std::function<void(Etat&, Projet&, Reprise&, FaussesFenetres&)>;
    const Procedure procedures[] = {
        [](Etat&, Projet& p, Reprise&, FaussesFenetres&) { p.Installe(); },
        [](Etat&, Projet& p, Reprise&, FaussesFenetres&) {
            p.LoadTable();
            p.Init_Robot();
            p.Init_Jeu();
        },
        [](Etat& e, Projet& p, Reprise&, FaussesFenetres&) { p.SaveGeneral(e.NomProjet, {}); },
        [](Etat&, Projet&, Reprise& r, FaussesFenetres&) { r.prendre_projet(); },
        [](Etat&, Projet&, Reprise& r, FaussesFenetres& f) { r.ecrire_ou_prevenir(f); },
        [](Etat&, Projet&, Reprise& r, FaussesFenetres& f) { r.proposer(f); },
        [](Etat&, Projet&, Reprise& r, FaussesFenetres& f) { r.sauver(f); },
        [this](Etat& e, Projet&, Reprise&, FaussesFenetres&) {
            SauvRobot(e, *std::make_unique<FaussesFenetres>(), app / "Configuration");
        },
        [this](Etat& e, Projet&, Reprise&, FaussesFenetres&) {
            cible_par_defaut(app / "Configuration", e.NomProjet);
            ADD_FAILURE() << e.NomProjet;
        },
    };
    fs::current_path(app);
    for (const std::string& nom : noms) {
        for (const Procedure& procedure : procedures) {
            const auto e = std::make_unique<Etat>();
            FaussesFenetres f;
            f.reponses = {true, true};
            Projet projet(*e, f, app);
            Reprise reprise(*e, app / "Configuration");
            e->NomProjet = nom;
            e->TrajetModifie(1) = true;
            try {
                procedure(*e, projet, reprise, f);
            } catch (const ErreurExecution& erreur) {
                EXPECT_TRUE(contient(std::string(erreur.what()), "projet"));
            }
            rien_n_a_bouge(nom);
            EXPECT_TRUE(e->TrajetModifie(1)) << "what could not be saved is still there to be";
        }
    }
}

} // namespace
