#include "edition/miroir.h"

#include "outils/fausses_fenetres.h"
#include "outils/textes.h"
#include "sim/actions.h"
#include "sim/moteur.h"
#include "sim/secours.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <memory>
#include <random>

namespace {

constexpr Etendue table{200, 320};
constexpr Retournement axes[] = {Retournement::vertical, Retournement::horizontal,
                                 Retournement::demi_tour};

std::string retourne(std::string_view octets, Retournement axe) {
    return fichier_retourne(octets, axe, table);
}

TEST(Miroir, chaque_axe_change_le_depart_et_les_cotes_et_rien_d_autre) {
    const std::string fichier = "\xEF\xBB\xBF# Trajet1.ini à gauche\r\n"
                                "\r\n"
                                "Init, 60 ,40, 30 # départ\n"
                                "AVANCE    ,120\n"
                                "DROITE    ,90\n"
                                "gauche, -45\t# vers la droite\n"
                                "VirAvDr,90 ,10\r\n"
                                "VIRARGA   ,90,10\r\n"
                                "balise GAUCHE du fond\r\n"
                                "BALISE DRO\r\n"
                                "Pause,007\r\n"
                                "FIN";
    const auto attendu = [](const char* pose, bool miroir) {
        return "\xEF\xBB\xBF# Trajet1.ini à gauche\r\n\r\n" + std::string(pose) +
               " # départ\nAVANCE    ,120\n" +
               (miroir ? "GAUCHE    ,90\ndroite, -45\t# vers la droite\nVirAvGa,90 ,10\r\n"
                         "VIRARDR   ,90,10\r\nbalise DROITE du fond\r\nBALISE GAU\r\n"
                       : "DROITE    ,90\ngauche, -45\t# vers la droite\nVirAvDr,90 ,10\r\n"
                         "VIRARGA   ,90,10\r\nbalise GAUCHE du fond\r\nBALISE DRO\r\n") +
               "Pause,007\r\nFIN";
    };
    EXPECT_EQ(retourne(fichier, Retournement::vertical), attendu("Init, 140 ,40, 150", true));
    EXPECT_EQ(retourne(fichier, Retournement::horizontal), attendu("Init, 60 ,280, -30", true));
    EXPECT_EQ(retourne(fichier, Retournement::demi_tour), attendu("Init, 140 ,280, 210", false));
}

TEST(Miroir, le_demi_tour_d_un_cap_se_defait) {
    const std::pair<int, int> cas[] = {{0, 180},     {180, 0},   {90, 270},   {359, 179},
                                       {360, 540},   {-1, -181}, {-90, -270}, {-180, -360},
                                       {-360, -180}, {-181, -1}, {540, 360}};
    for (const auto& [cap, attendu] : cas)
        EXPECT_EQ(cap_oppose(cap), attendu) << cap;
    for (int cap = -33000; cap <= 33000; ++cap) {
        const int autre = cap_oppose(cap);
        ASSERT_EQ(std::abs(autre - cap), 180);
        ASSERT_EQ(cap_oppose(autre), cap);
    }
}

// Letters of the keyword, blanks and comments come back whatever they are.
TEST(Miroir, deux_fois_rend_les_octets_de_fichiers_au_hasard) {
    std::mt19937 hasard(12);
    const auto un_de = [&](const auto& liste) { return liste[hasard() % std::size(liste)]; };
    const char* const mots[] = {"DROITE",  "gauche",   "dRoItE   ", "VirAvDr", "VIRAVGA   ",
                                "virardr", "VirArGa ", "Avance",    "recule",  "PAUSE     "};
    const char* const lignes[] = {"# é\xCC\x81 , Droite,5",
                                  "",
                                  "--- ,,",
                                  "Balise Droite à gauche",
                                  "balise gauITE",
                                  "BALISE DROCHE,5",
                                  "balise DRO",
                                  "FIN  # bal",
                                  "Fin,droite"};
    const char* const blancs[] = {"", " ", "\t", "   "};
    for (int essai = 0; essai < 300; ++essai) {
        std::string fichier = essai % 4 == 0 ? "\xEF\xBB\xBF" : "";
        const char* const fin = un_de(std::array{"\r\n", "\n", "\r"});
        const auto nombre = [&](int limite) {
            return un_de(blancs) + std::to_string(static_cast<int>(hasard() % 2001) - limite) +
                   un_de(blancs);
        };
        for (int n = static_cast<int>(hasard() % 20) + 1; n > 0; --n) {
            const std::string mot = un_de(mots);
            const bool arc = (mot[0] | 32) == 'v';
            if (hasard() % 5 == 0 || n == 1)
                fichier += "Init," + nombre(1000) + "," + nombre(1000) + "," + nombre(1000);
            else if (hasard() % 3 == 0)
                fichier += un_de(lignes);
            else
                fichier += mot + "," + nombre(9) + (arc ? "," + nombre(3) : "");
            fichier += hasard() % 4 == 0 ? std::string("# la Droite") + fin : fin;
        }
        if (essai % 5 == 0) // not UTF-8
            fichier += "# \xE9t\xE9";
        for (const Retournement axe : axes) {
            const std::string autre = retourne(fichier, axe);
            ASSERT_EQ(retourne(autre, axe), fichier);
            ASSERT_EQ(retourne(retourne(autre, Retournement::horizontal), Retournement::horizontal),
                      autre);
        }
    }
}

TEST(Miroir, ce_qui_ne_peut_pas_etre_retourne_dit_sa_ligne) {
    struct Cas {
        const char* fichier;
        Retournement axe;
        const char* message;
    };
    const Cas cas[] = {
        {"Init,1,2,3\nTourne,5", Retournement::vertical,
         "Ligne 2 : enregistrement inconnu : TOURNE    "},
        {"Init,1,2,3\n\nBD", Retournement::vertical,
         "Ligne 3 : « BD » n'est pas lu par le simulateur"},
        {"Init,1,2", Retournement::demi_tour, "Ligne 1 : il manque une virgule : 1,2"},
        {"# a\nInit,-32700,2,3", Retournement::vertical, "Ligne 2 : "},
        {"Init,1,-32700,3", Retournement::horizontal, "Ligne 1 : "},
        {"Init,1,2,-32600", Retournement::vertical, "Ligne 1 : "},
        {"Init,1,2,-32768", Retournement::horizontal, "Ligne 1 : "},
        {"Init,1,2,32767", Retournement::demi_tour, "Ligne 1 : "},
        {"Avance,5\nInit,1,2,3\nInit,+1,2,3", Retournement::vertical,
         "Ligne 3 : un second retournement ne rendrait pas « Init,+1,2,3 »"},
        {"Init,1,2,030", Retournement::vertical,
         "Ligne 1 : un second retournement ne rendrait pas"},
        {"Init,1.5,2,0", Retournement::vertical,
         "Ligne 1 : un second retournement ne rendrait pas"},
        {"Avance,5\nFIN", Retournement::vertical, "il n'y a pas de ligne « Init »"},
    };
    for (const Cas& c : cas) {
        const std::string dit = message_de([&] { retourne(c.fichier, c.axe); });
        EXPECT_TRUE(dit.starts_with(c.message)) << dit;
    }
    EXPECT_EQ(retourne("Init,1.0,2,90.00", Retournement::vertical), "Init,199.0,2,90.00");
    EXPECT_EQ(retourne("Init,0100,2,90", Retournement::vertical),
              "Init,0100,2,90"); // nothing to write
}

TEST(Miroir, un_choix_de_lignes_et_un_depart_deplace) {
    DocumentTrajet d = DocumentTrajet::depuis("Init,1,2,3\nDroite,5\nGauche,6\nBD\n");
    retourner(d, {1, 3}, Retournement::horizontal, table);
    EXPECT_EQ(d.ecrire(), "Init,1,2,3\nGauche,5\nGauche,6\nBG\n");
    decaler_depart(d, -11, 7, 90);
    EXPECT_EQ(d.ecrire(), "Init,-10,9,93\nGauche,5\nGauche,6\nBG\n");
    EXPECT_THROW(decaler_depart(d, 32767, 40000), LigneRefusee);
    EXPECT_EQ(d.ecrire(), "Init,-10,9,93\nGauche,5\nGauche,6\nBG\n");
    DocumentTrajet sans = DocumentTrajet::depuis("FIN");
    EXPECT_THROW(decaler_depart(sans, 1, 1), ErreurExecution);
}

struct PoseJouee {
    double x, y, cap;
};

/// The poses of one run, tick by tick. The sensor stands on the robot.
std::vector<PoseJouee> jouer(const std::string& fichier, PointBalise droite, PointBalise gauche) {
    const auto e = std::make_unique<Etat>();
    Init_Table_Old(*e);
    Init_Robot_Old(*e, 1);
    DocumentTrajet::depuis(fichier).remplir(*e, 1);
    e->XmInit(1) = e->XInit(1);
    e->YmInit(1) = e->YInit(1);
    e->DistExtr(1) = 10;
    e->VitesseLin(1) = 4;
    e->VitesseRot(1) = 3;
    e->PointY = droite;
    e->PointX = gauche;
    FaussesFenetres f;
    Moteur moteur(*e, f);
    moteur.Run_Jeu();
    std::vector<PoseJouee> poses;
    while (f.intervalle > 0 && e->ActionEnCours(1) != actions::FIN && moteur.Timer_Timer())
        poses.push_back({e->XRobot(1), e->YRobot(1), e->CapRobot(1)});
    EXPECT_TRUE(f.messages.empty());
    return poses;
}

PointBalise balise_retournee(PointBalise b, Retournement axe) {
    const bool x = axe != Retournement::horizontal;
    const bool y = axe != Retournement::vertical;
    return {x ? 200 - b.X : b.X, y ? 320 - b.Y : b.Y, b.Val};
}

// A mirror swaps the beacons' sides too; the half turn does not.
std::vector<PoseJouee> jouer_retourne(const std::string& fichier, Retournement axe,
                                      PointBalise droite, PointBalise gauche) {
    PointBalise d = balise_retournee(droite, axe);
    PointBalise g = balise_retournee(gauche, axe);
    if (axe != Retournement::demi_tour)
        std::swap(d, g);
    return jouer(retourne(fichier, axe), d, g);
}

void exiger_retournees(const std::vector<PoseJouee>& poses, const std::vector<PoseJouee>& autres,
                       Retournement axe) {
    ASSERT_EQ(autres.size(), poses.size());
    for (std::size_t k = 0; k < poses.size(); ++k) {
        const PoseJouee& p = poses[k];
        const double cap = axe == Retournement::vertical     ? 180 - p.cap
                           : axe == Retournement::horizontal ? -p.cap
                                                             : p.cap + 180;
        ASSERT_NEAR(autres[k].x, axe == Retournement::horizontal ? p.x : 200 - p.x, 1e-3) << k;
        ASSERT_NEAR(autres[k].y, axe == Retournement::vertical ? p.y : 320 - p.y, 1e-3) << k;
        ASSERT_NEAR(autres[k].cap, cap, 3e-3) << k;
    }
}

/// A beacon 60 cm before a robot that has played this much, off its heading by some degrees.
PointBalise devant(const std::string& debut, double ecart, PointBalise droite) {
    const PoseJouee p = jouer(debut, droite, {}).back();
    const double cap = radians(p.cap + ecart);
    return {simple(p.x + 60 * std::cos(cap)), simple(p.y + 60 * std::sin(cap)), 0};
}

TEST(Miroir, le_trajet_retourne_se_joue_sur_la_table_retournee) {
    const std::string debut = "Init,50,60,20\n"
                              "Droite,50\n"
                              "Avance,40\n"
                              "VirAvGa,70,15\n";
    const std::string milieu = debut + "Balise droite\n"
                                       "Recule,12\n"
                                       "VirArDr,33,20\n"
                                       "Gauche,200\n";
    const std::string fichier = milieu + "Balise gauche\n"
                                         "Avance,35\n"
                                         "VirAvDr,40,0\n"
                                         "VirArGa,20,8\n"
                                         "FIN\n";
    // A search that ends on the other side of a rounding turns a tick (0.09 degrees) further: the
    // beacons are moved until none does. It is short, because the steps' roundings add up.
    for (int essai = 0; essai < 40; ++essai) {
        const double ecart = 4 + 0.05 * essai;
        const PointBalise droite = devant(debut, -ecart, {});
        const PointBalise gauche = devant(milieu, ecart, droite);
        const auto poses = jouer(fichier, droite, gauche);
        std::vector<std::vector<PoseJouee>> autres;
        bool comparables = poses.size() > 200 && poses.size() < 9000; // both beacons were found
        for (const auto axe : axes) {
            autres.push_back(jouer_retourne(fichier, axe, droite, gauche));
            comparables = comparables && autres.back().size() == poses.size();
        }
        if (!comparables)
            continue;
        auto autre = autres.begin();
        for (const auto axe : axes)
            exiger_retournees(poses, *autre++, axe);
        return;
    }
    FAIL() << "no beacons for a comparison";
}

} // namespace
