#include "config/document_trajet.h"

#include "config/lecteur_trajet.h"
#include "outils/textes.h"
#include "sim/actions.h"

#include <gtest/gtest.h>

#include <memory>
#include <random>

namespace {

Fiche fiche(const char* cle, float a = 0, float b = 0, float c = 0) {
    return {cle, {a, b, c, 0}, ""};
}

std::string apres_insertion(const char* octets, std::size_t i, const Fiche& e) {
    DocumentTrajet d = DocumentTrajet::depuis(octets);
    d.inserer(i, e);
    return d.ecrire();
}

std::string apres_remplacement(const char* octets, const Fiche& e) {
    DocumentTrajet d = DocumentTrajet::depuis(octets);
    d.remplacer(0, e);
    return d.ecrire();
}

TEST(DocumentTrajet, une_ligne_compte_par_ses_lettres_et_ce_qui_est_refuse_dit_pourquoi) {
    const DocumentTrajet d = DocumentTrajet::depuis("\xEF\xBB\xBF"
                                                    "avance,80\r\n"
                                                    "--- ,, ---\n"
                                                    "bonjour # Avance,1\r\n"
                                                    " Avance,80\r\n"
                                                    "Fin, du trajet\r\n"
                                                    "Balise droite en bas\r\n"
                                                    "BD        \r\n"
                                                    "VirAvDr,90\r\n"
                                                    "Pause\r\n"
                                                    "Avance,80,5\r\n"
                                                    "Droite,40000");
    EXPECT_EQ(d.nombre(), 4U); // avance, Fin, two beacons
    std::string dits;
    for (const RefusLecture& r : d.refus())
        dits += std::to_string(r.ligne) + " " + r.raison + "\n";
    EXPECT_EQ(dits, "3 enregistrement inconnu : BONJOUR   \n"
                    "4 enregistrement inconnu :  AVANCE   \n"
                    "7 « BD » n'est pas lu par le simulateur\n"
                    "8 il manque une virgule : 90\n"
                    "9 « Pause » n'est pas un nombre entier de -32768 à 32767\n"
                    "10 « 80,5 » n'est pas un nombre entier de -32768 à 32767\n"
                    "11 « 40000 » n'est pas un nombre entier de -32768 à 32767\n");
    EXPECT_EQ(DocumentTrajet::relire(d.ecrire())->ligne, 3);
}

TEST(DocumentTrajet, une_ligne_nouvelle_prend_le_style_de_ses_voisines) {
    struct Cas {
        const char* fichier;
        std::size_t place;
        Fiche nouvelle;
        const char* attendu;
    };
    const Cas cas[] = {
        {"", 0, fiche("AVANCE", 80), "Avance,80\r\n"},
        {"# vide", 0, fiche("BALISE GAU"), "# vide\r\nBalise gauche\r\n"},
        {"Init,1,2,3\r\nAVANCE    ,120\r\nFIN\r\n", 1, fiche("VIRAVGA", 40, 1),
         "Init,1,2,3\r\nVIRAVGA   ,40,1\r\nAVANCE    ,120\r\nFIN\r\n"},
        {"AVANCE    ,120\nFIN", 1, fiche("BALISE DRO"), "AVANCE    ,120\nBALISE DRO\nFIN"},
        {"AVANCE    ,120\n", 0, fiche("INIT", 1, 2, 3), "INIT,1,2,3\nAVANCE    ,120\n"},
        {"avance , 120 # loin\r", 1, fiche("RECULE", -5), "avance , 120 # loin\rrecule , -5\r"},
        {"Pause, 4000 \r\nAvance,80\r\n", 1, fiche("DROITE", 90),
         "Pause, 4000 \r\nDroite, 90 \r\nAvance,80\r\n"},
        {"Pause, 4000 \r\nAvance,80\r\n", 2, fiche("FIN"), "Pause, 4000 \r\nAvance,80\r\nFIN\r\n"},
        {"Init, 10, 20, 30\r\nGAUCHE,5\r\n", 2, fiche("INIT", 7, 8, 9),
         "Init, 10, 20, 30\r\nGAUCHE,5\r\nInit, 7, 8, 9\r\n"},
        {"avance,1\n# milieu\nfin\n# queue\n", 2, fiche("BALISE DRO"),
         "avance,1\n# milieu\nfin\nbalise droite\n# queue\n"},
    };
    for (const Cas& c : cas)
        EXPECT_EQ(apres_insertion(c.fichier, c.place, c.nouvelle), c.attendu) << c.fichier;
}

TEST(DocumentTrajet, une_ligne_changee_garde_tout_ce_qui_n_a_pas_change) {
    const std::tuple<const char*, Fiche, const char*> cas[] = {
        {"Avance,80", fiche("AVANCE", 80), "Avance,80"},
        {"aVANCE  , +80 # pas loin", fiche("AVANCE", 80), "aVANCE  , +80 # pas loin"},
        {"Avance ,  80\t# loin\n", fiche("AVANCE", -9), "Avance ,  -9\t# loin\n"},
        {"Avance,80.00\n", fiche("AVANCE", 5), "Avance,5.00\n"},
        {"VirAvDr,90 , 007", fiche("VIRAVDR", 45, 7), "VirAvDr,45 , 007"},
        {"VIRAVDR   ,90,7", fiche("VIRARGA", 90, 8), "VIRARGA   ,90,8"},
        {"DROITE    ,90 # a", fiche("GAUCHE", 90), "GAUCHE    ,90 # a"},
        {"DROITE    ,90", fiche("PAUSE", 90), "PAUSE     ,90"},
        {"Droite    ,90", fiche("VIRAVDR", 90, 3), "VirAvDr   ,90,3"},
        {"droite,  90   # a", fiche("VIRAVDR", 90, 3), "viravdr,  90,  3   # a"},
        {"VirAvDr,90,30 # c", fiche("BALISE DRO"), "Balise droite # c"},
        {"Balise Droite en bas", fiche("BALISE GAU"), "Balise Gauche en bas"},
        {"balise GAUCHEs", fiche("BALISE DRO"), "balise DROITEs"},
        {"FIN", fiche("AVANCE", 3), "Avance,3"},
        {"Balise Gauche en bas  # c", fiche("FIN"), "FIN  # c"},
    };
    for (const auto& [fichier, voulue, attendu] : cas)
        EXPECT_EQ(apres_remplacement(fichier, voulue), attendu);
}

TEST(DocumentTrajet, ce_qu_un_trajet_ne_peut_pas_tenir_est_refuse) {
    DocumentTrajet d = DocumentTrajet::depuis("Init,1,2,3\nFIN\n");
    for (const Fiche& refusee : {fiche("TOURNE", 1), fiche("AVANCE", 0.5F), fiche("AVANCE", 32768),
                                 fiche("VIRAVDR", 1, -32769), fiche("INIT", 1, 2, 1e9F)}) {
        EXPECT_THROW(d.inserer(0, refusee), ErreurExecution);
        EXPECT_THROW(d.remplacer(0, refusee), ErreurExecution);
    }
    while (d.nb_actions() < actions_max)
        d.inserer(1, fiche("PAUSE", 1));
    EXPECT_THROW(d.inserer(0, fiche("AVANCE", 1)), ErreurExecution);
    EXPECT_THROW(d.remplacer(0, fiche("AVANCE", 1)), ErreurExecution); // the start pose
    EXPECT_THROW(d.inserer_lignes(0, "Avance,1"), ErreurExecution);
    d.inserer(0, fiche("INIT", 4, 5, 6)); // no action
    EXPECT_EQ(DocumentTrajet::depuis(d.ecrire()).nb_actions(), actions_max);
}

TEST(DocumentTrajet, des_lignes_collees_gardent_leurs_octets_ou_sont_refusees_toutes) {
    DocumentTrajet d = DocumentTrajet::depuis("avance,1\r\nfin\r\n");
    EXPECT_EQ(d.inserer_lignes(1, "# collé\n\nGAUCHE    ,5 # là\ninit, 1 ,2,3"), 2U);
    EXPECT_EQ(d.ecrire(),
              "avance,1\r\n# collé\r\n\r\nGAUCHE    ,5 # là\r\ninit, 1 ,2,3\r\nfin\r\n");
    const std::string avant = d.ecrire();
    for (const char* texte : {"Avance,5\nRecule,a", "Avance,5\nBD", "Avance,5\n Droite,5"}) {
        EXPECT_TRUE(contient(message_de([&] { d.inserer_lignes(0, texte); }), "Ligne 2 : "));
        EXPECT_EQ(d.ecrire(), avant);
    }
}

// Random files edited at random: untouched lines keep their bytes, and what is written is what the
// simulator reads.
TEST(DocumentTrajet, des_trajets_au_hasard_sont_relus_tels_quels) {
    std::mt19937 hasard(11);
    const auto un_de = [&](const auto& liste) { return liste[hasard() % std::size(liste)]; };
    const char* const morceaux[] = {"# début é",
                                    "",
                                    "Avance,80",
                                    "avance , 7 # x",
                                    "DROITE    ,90",
                                    "VirAvGa,90 ,  10",
                                    "balise gauche là",
                                    "Init, 5,6,7",
                                    "??",
                                    "inconnu é",
                                    "BD        "};
    const char* const fins[] = {"\r\n", "\n", "\r", "\r\n", "\n"};
    const Fiche fiches[] = {fiche("AVANCE", 3), fiche("VIRARDR", -4, 5), fiche("BALISE DRO"),
                            fiche("INIT", 1, -2, 3), fiche("FIN")};
    const auto e = std::make_unique<Etat>();
    for (int essai = 0; essai < 300; ++essai) {
        std::string octets = essai % 3 == 0 ? "\xEF\xBB\xBF" : "";
        const std::string fin = un_de(fins);
        std::vector<std::string> gardees;
        for (int n = static_cast<int>(hasard() % 12); n >= 0; --n) {
            gardees.emplace_back(un_de(morceaux));
            octets += gardees.back() + (n == 0 && essai % 2 == 0 ? "" : fin);
        }
        DocumentTrajet d = DocumentTrajet::depuis(octets);
        EXPECT_EQ(d.ecrire(), octets);
        for (int k = 0; k < 10; ++k) {
            const std::size_t n = d.nombre();
            const auto geste = hasard() % 4;
            if (geste == 0 && n > 0)
                d.retirer(hasard() % n);
            else if (geste == 1 && n > 0)
                d.remplacer(hasard() % n, un_de(fiches));
            else if (geste == 2 && n > 0)
                d.deplacer_vers(hasard() % n, hasard() % n);
            else
                d.inserer(hasard() % (n + 1), un_de(fiches));
        }
        const std::string ecrit = d.ecrire();
        const DocumentTrajet relu = DocumentTrajet::depuis(ecrit);
        ASSERT_EQ(relu.nombre(), d.nombre()) << ecrit;
        for (std::size_t i = 0; i < d.nombre(); ++i)
            EXPECT_EQ(relu[i], d[i]) << ecrit;
        for (const std::string& ligne : gardees) {
            const bool sans_fiche =
                ligne.starts_with('#') || ligne.starts_with('?') || ligne.starts_with("inc");
            EXPECT_TRUE(!sans_fiche || ecrit.find(ligne) != std::string::npos) << ecrit;
        }
        d.remplir(*e, 2);
        EXPECT_EQ(e->TrajNbActions(2), d.nb_actions());
    }
}

// An editor undoes by value: the state before is a copy, and gives the file's bytes again.
TEST(DocumentTrajet, remettre_une_valeur_rend_les_octets_du_fichier) {
    const std::string octets = "Avance ,+80 # é\nDroite,1e1\nFIN";
    DocumentTrajet d = DocumentTrajet::depuis(octets);
    const Fiche avant = d[0];
    d.remplacer(0, fiche("GAUCHE", 5));
    d.deplacer_vers(2, 0);
    EXPECT_EQ(d.ecrire(), "FIN\nGauche ,5 # é\nDroite,1e1");
    d.deplacer_vers(0, 2);
    d.remplacer(0, avant);
    EXPECT_EQ(d.ecrire(), octets);
}

} // namespace
