#include "config/lecteur_trajet.h"

#include "lecture.h"

#include <gtest/gtest.h>

using namespace std::string_literals;

namespace {

struct Lu {
    Etat e;
    std::string ligne;

    explicit Lu(std::string_view texte) {
        LecteurTrajet lecteur(e);
        ligne = arret([&](Entier16& NoLigne) { lecteur.lire(texte, 1, NoLigne); });
    }
    std::string etape(int k) const {
        return std::string(e.TrajAction(1, k).vue()) + "|" + std::to_string(e.TrajParam1(1, k)) +
               "|" + std::to_string(e.TrajParam2(1, k));
    }
};

} // namespace

TEST(LecteurTrajet, ecritures_d_une_meme_etape) {
    const std::pair<std::string_view, std::string_view> cas[] = {
        {"avance,80", "AVANCE    |80|0"},
        {"Avance   ,80", "AVANCE    |80|0"},
        {"Avance         ,80", "AVANCE    |80|0"}, // cut after ten characters
        {"Pause, 4000 ", "PAUSE     |4000|0"},
        {"Recule,-1e2", "RECULE    |-100|0"},
        {"droite, 2.5 # 3", "DROITE    |2|0"},
        {"VirArGa , 90 , 10 ", "VIRARGA   |90|10"},
        {"fin", "FIN       |0|0"},
        {"FIN,n'importe,quoi", "FIN       |0|0"},
        {"Balise droite", "BALISE DRO|0|0"},
        {"Balise droite en bas, 5", "BALISE DRO|0|0"},
        {"BALISE GAU", "BALISE GAU|0|0"}};
    for (const auto& [texte, attendu] : cas) {
        const Lu t(texte);
        EXPECT_EQ(t.ligne, "") << texte;
        EXPECT_EQ(t.e.TrajNbActions(1), 1) << texte;
        EXPECT_EQ(t.etape(1), attendu) << texte;
    }
}

TEST(LecteurTrajet, la_pose_n_est_pas_une_etape_et_la_derniere_vaut) {
    const Lu t("Init,1,2,3\nInit,100,30,-90\nFIN\n");
    EXPECT_EQ(t.e.TrajNbActions(1), 1);
    EXPECT_EQ(t.e.XInit(1), 100);
    EXPECT_EQ(t.e.YInit(1), 30);
    EXPECT_EQ(t.e.CapInit(1), -90);
}

TEST(LecteurTrajet, les_parametres_et_le_compte_des_lignes_passent_d_un_fichier_a_l_autre) {
    Etat e;
    e.TrajNbActions(2) = 5;
    LecteurTrajet lecteur(e);
    Entier16 NoLigne;
    lecteur.lire("VirAvDr,90,10\nAvance,80\nFin\n", 1, NoLigne);
    lecteur.lire("FIN\n\n", 2, NoLigne);
    EXPECT_EQ(e.TrajParam2(1, 2), 10);
    EXPECT_EQ(e.TrajParam1(1, 3), 80);
    EXPECT_EQ(e.TrajNbActions(2), 1) << "the earlier trajectory is gone";
    EXPECT_EQ(e.TrajParam1(2, 1), 80);
    EXPECT_EQ(e.TrajParam2(2, 1), 10);
    EXPECT_EQ(NoLigne, 5);
}

TEST(LecteurTrajet, refuse_a_la_ligne_fautive) {
    const Refus refus[] = {{"FIN\n Avance,80", "2"},
                           {"\t\nAvance\t,80", "2"},
                           {"texte libre", "1"}, // lower-case letters count here
                           {"VirAvDroite,90,10", "1"},
                           {"VirAvDr,90", "1"},
                           {"VirAvDr", "1"},
                           {"VirAvDr,90,10,5", "1"},
                           {"Pause", "1"},
                           {"Pause,", "1"},
                           {"Avance,80,10", "1"},
                           {"Gauche,32768", "1"},
                           {"Init", "1"},
                           {"Init,1,2", "1"},
                           {"Init,1,2,3,4", "1"},
                           {"Init,1.x,2,3", "1"},
                           {"Init,1,2,3\nBD\n", "2"},
                           {"BG        ", "1"},
                           {"Balise", "1"},
                           {",Avance,80", "1"},
                           {"Av\0nce,1"s, "1"},
                           {repeter("FIN\n", 1001), "1001"}};
    for (const Refus& r : refus)
        EXPECT_EQ(Lu(r.texte).ligne, r.ligne) << r.texte.substr(0, 80);
    EXPECT_EQ(Lu(repeter("FIN\n", 1000)).ligne, "");
    EXPECT_EQ(Lu("é ; \" à\n").ligne, "") << "no ASCII letter, no digit";
}
