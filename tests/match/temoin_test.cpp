#include "cli/simulation.h"
#include "feuille/trace_csv.h"
#include "outils/dossier_temporaire.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <fstream>
#include <sstream>
#include <vector>

namespace {

std::vector<std::string> lignes_de(const std::string& texte) {
    std::istringstream flux(texte);
    std::vector<std::string> lignes;
    for (std::string ligne; std::getline(flux, ligne);)
        lignes.push_back(ligne);
    return lignes;
}

std::vector<std::string> lignes_du_fichier(const std::string& nom) {
    std::ifstream flux(std::string(DONNEES "/reference/") + nom);
    std::stringstream texte;
    texte << flux.rdbuf();
    return lignes_de(texte.str());
}

std::vector<std::string> champs_de(const std::string& ligne) {
    std::istringstream flux(ligne);
    std::vector<std::string> champs;
    for (std::string champ; std::getline(flux, champ, ',');)
        champs.push_back(champ);
    return champs;
}

// FNV-1a over the bits of what a tick leaves behind.
class Empreinte {
public:
    void ajouter(std::uint32_t mot) {
        for (int i = 0; i < 4; ++i, mot >>= 8U)
            valeur_ = (valeur_ ^ (mot & 0xFFU)) * 1099511628211U;
    }
    void ajouter(const Etat& e) {
        for (int i = 1; i <= e.NbRobot; ++i) {
            for (const auto* colonne : {&e.XRobot, &e.YRobot, &e.CapRobot, &e.Xm, &e.Ym, &e.Xextr,
                                        &e.Yextr, &e.Progression})
                ajouter(std::bit_cast<std::uint32_t>((*colonne)(i)));
            ajouter(static_cast<std::uint32_t>(e.NumAction(i)));
        }
        ajouter(std::bit_cast<std::uint32_t>(e.Incidence));
        ajouter(static_cast<std::uint32_t>(e.NbreCarreaux));
    }
    std::uint64_t valeur() const { return valeur_; }

private:
    std::uint64_t valeur_ = 14695981039346656037U;
};

// A whole match of the default project; keeps one sample a simulated second and the last tick.
class Match final : public FenetresTerminal {
public:
    Match(Etat& etat, std::ostream& erreurs) : FenetresTerminal(etat, erreurs) {}

    void apres_actions() override {
        empreinte.ajouter(etat_);
        if (retenu())
            trace.ajouter(etat_);
    }
    void ecrire_Mess(const LigneMess& mess) override {
        if (retenu())
            etats.emplace_back(mess.texte().vue());
    }

    TraceCsv trace;
    std::vector<std::string> etats;
    Empreinte empreinte;

private:
    bool retenu() const {
        return etat_.TempsEcoule % 100 == 0 || etat_.TempsEcoule > duree_du_match;
    }
};

struct Cas {
    const char* nom;
    int robots;
    bool allege, horizontale;
    std::uint64_t empreinte;
};

// The hashes are the same in debug and optimised builds, with g++ and clang++.
constexpr Cas cas[] = {
    {"defaut-1", 1, false, false, 13720124497981910549U},
    {"defaut-1-horizontale", 1, false, true, 13801804350233741670U},
    {"defaut-9", 9, false, false, 11182888945749860105U},
    {"defaut-9-allege", 9, true, false, 8594387491242620615U},
};

// Poses may differ by 2e-3 from the witness, everything else is exact.
void comparer_lignes(const std::string& notre, const std::string& temoin) {
    const auto a = champs_de(notre);
    const auto b = champs_de(temoin);
    ASSERT_EQ(a.size(), b.size());
    for (std::size_t i = 0; i < a.size(); ++i) {
        const bool pose = (i >= 2 && i <= 8) || i == 14 || i == 15;
        if (pose)
            EXPECT_NEAR(std::stod(a[i]), std::stod(b[i]), 2e-3) << notre << "\n" << temoin;
        else
            EXPECT_EQ(a[i], b[i]) << notre << "\n" << temoin;
    }
}

// The status line, whose "Incidence" alone may differ by 2e-3.
void comparer_etats(const std::string& notre, const std::string& temoin) {
    const auto decouper = [](const std::string& s) {
        const std::size_t debut = s.find("Incidence:") + 10;
        const std::size_t fin = s.find(' ', debut);
        return std::tuple(s.substr(0, debut) + s.substr(fin),
                          std::stod(s.substr(debut, fin - debut)));
    };
    const auto [texte_a, incidence_a] = decouper(notre);
    const auto [texte_b, incidence_b] = decouper(temoin);
    EXPECT_EQ(texte_a, texte_b);
    EXPECT_NEAR(incidence_a, incidence_b, 2e-3) << temoin;
}

TEST(Match, suit_le_temoin_independant_et_garde_son_empreinte) {
    for (const Cas& c : cas) {
        SCOPED_TRACE(c.nom);
        const DossierTemporaire dossier;
        const auto etat = std::make_unique<Etat>();
        std::ostringstream erreurs;
        Match match(*etat, erreurs);
        Simulation simulation(*etat, match,
                              {.dossier = dossier.chemin(),
                               .projet = {},
                               .robots = c.robots,
                               .allege = c.allege,
                               .horizontale = c.horizontale});
        simulation.jouer(100000);
        EXPECT_EQ(erreurs.str(), "");

        const auto trace = lignes_de(match.trace.texte());
        const auto temoin = lignes_du_fichier(std::string(c.nom) + ".csv");
        ASSERT_EQ(trace.size(), temoin.size());
        EXPECT_EQ(trace[0], temoin[0]);
        for (std::size_t i = 1; i < trace.size() && !HasFailure(); ++i)
            comparer_lignes(trace[i], temoin[i]);
        const auto etats = lignes_du_fichier(std::string(c.nom) + ".etat.txt");
        ASSERT_EQ(match.etats.size(), etats.size());
        for (std::size_t i = 0; i < etats.size() && !HasFailure(); ++i)
            comparer_etats(match.etats[i], etats[i]);
        EXPECT_EQ(match.empreinte.valeur(), c.empreinte);
    }
}

} // namespace
