#include "config/reprise_dessin.h"

#include "config/document_robot.h"
#include "config/document_table.h"
#include "outils/dossier_temporaire.h"
#include "outils/pannes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <string>
#include <vector>

namespace {

TEST(DessinFige, rend_le_document_tel_quel_meme_ce_qui_ne_peut_pas_s_ecrire) {
    const std::string octets("\xEF\xBB\xBF# t\xC3\xAAte\r\nM,a,b # x\rU,0,0,9,9\n\n"
                             "pas compris 1\nDR,1,2,3\n LE,1,1,1,5");
    DocumentTable d = DocumentTable::depuis(octets);
    EXPECT_EQ(DocumentTable::depuis_fige(d.figer()).ecrire(), d.ecrire());
    d.remplacer(1, {"O", {1, 2, 3, 4}, ""});
    d.ajouter({"PB", {-7, 8, -9, 0}, ""});
    EXPECT_THROW(static_cast<void>(d.ecrire()), ErreurExecution) << "the disc would become one";
    const DocumentTable releve = DocumentTable::depuis_fige(d.figer());
    EXPECT_EQ(releve.figer(), d.figer());
    EXPECT_EQ(releve.incomprises(), d.incomprises());
    ASSERT_EQ(releve.nombre(), d.nombre());
    for (std::size_t i = 0; i < d.nombre(); ++i)
        EXPECT_EQ(releve[i], d[i]);
    DocumentRobot r = DocumentRobot::depuis("A,9.125,3,4\nR,1,2,3,4\n");
    r.remplacer(1, {"R", {40000, 0, 0, 0}, ""}); // not even 16 bits
    EXPECT_THROW(DocumentRobot::depuis_fige(r.figer()), ErreurExecution);
    r.remplacer(1, {"R", {1, 0, 0, 0}, ""});
    EXPECT_EQ(DocumentRobot::depuis_fige(r.figer()).ecrire(), r.ecrire());
}

// Cut anywhere, or with one byte changed: refused or read, never worse.
TEST(DessinFige, un_fichier_abime_est_refuse) {
    DocumentTable d = DocumentTable::depuis("U,0,0,9,9 # a\nDC,1,2,3,4\n");
    d.remplacer(0, {"L", {0, 0, 5, 5}, ""});
    const std::string texte = texte_dessin({"/un/fichier", "avant", d.figer()});
    const DessinGarde garde = lire_dessin(texte);
    EXPECT_EQ(garde.fichier, "/un/fichier");
    EXPECT_EQ(garde.sur_le_disque, "avant");
    EXPECT_EQ(DocumentTable::depuis_fige(garde.document).ecrire(), d.ecrire());
    for (std::size_t n = 0; n < texte.size(); ++n) {
        EXPECT_THROW(lire_dessin(texte.substr(0, n)), ErreurExecution) << n;
        for (const char c : {'9', ':', '\0', 'Z'}) {
            std::string abime = texte;
            abime[n] = c;
            try {
                const DocumentTable lu = DocumentTable::depuis_fige(lire_dessin(abime).document);
                for (std::size_t i = 0; i < lu.nombre(); ++i)
                    EXPECT_TRUE(lu[i].cle == "M" || sorte_table(lu[i].cle) != nullptr);
            } catch (const ErreurExecution&) { // NOLINT(bugprone-empty-catch)
            }
        }
    }
    for (const char* autre : {"", "x", "99999999999999999999:", "5:abc", "-1:", "3:abc"})
        EXPECT_THROW(lire_dessin(autre), ErreurExecution) << autre;
}

// Killed at any instant: what was written whole is never lost.
TEST(RepriseDessin, tue_a_tout_instant_le_dernier_dessin_ecrit_est_propose) {
    const std::vector<std::string> etats{"", "premier", "deuxieme", "troisieme"};
    bool finie = false;
    for (int pas = 1; !finie; ++pas) {
        const DossierTemporaire d;
        std::array<int, 2> tube{};
        ASSERT_EQ(::pipe(tube.data()), 0);
        finie = tuer_au_pas(pas, [&] {
            RepriseDessin reprise(d.chemin(), GenreFichier::table);
            for (std::size_t i = 1; i < etats.size(); ++i) {
                reprise.ecrire({"/f", etats[i], ""});
                static_cast<void>(!::write(tube[1], "x", 1));
            }
        });
        ::close(tube[1]);
        std::array<char, 8> recu{};
        const auto ecrits = static_cast<std::size_t>(::read(tube[0], recu.data(), recu.size()));
        ::close(tube[0]);
        RepriseDessin suivante(d.chemin(), GenreFichier::table);
        const std::string trouve =
            suivante.prendre_la_suivante() ? suivante.lire().sur_le_disque : "";
        EXPECT_TRUE(trouve == etats.at(ecrits) ||
                    trouve == etats.at(std::min<std::size_t>(3, ecrits + 1)))
            << pas << " : " << ecrits << " " << trouve;
        EXPECT_TRUE(!finie || ecrits == 3);
    }
}

} // namespace
