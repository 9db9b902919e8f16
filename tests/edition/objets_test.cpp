// What the editors do to a table and a robot, without a window.
#include "edition/alignement.h"
#include "edition/mesures.h"
#include "edition/objets_table.h"
#include "edition/outils.h"
#include "edition/segments_robot.h"

#include <gtest/gtest.h>

#include <functional>

// Corners and middles from the lower left on, anticlockwise; a circle has the middles alone.
TEST(Poignees, nombre_place_et_effet) {
    const Fiche zone{"L", {10, 20, 30, 60}, ""};
    const std::vector<Vecteur> points = formes::poignees(zone);
    const std::vector<Vecteur> voulus{{10, 20}, {20, 20}, {30, 20}, {30, 40},
                                      {30, 60}, {20, 60}, {10, 60}, {10, 40}};
    EXPECT_EQ(points, voulus);
    struct Cas {
        std::size_t poignee;
        std::array<float, 4> apres; ///< pulled to (100, 5): the box is turned the right way round
    };
    for (const Cas& c :
         {Cas{0, {30, 5, 100, 60}}, Cas{1, {10, 5, 30, 60}}, Cas{2, {10, 5, 100, 60}},
          Cas{3, {10, 20, 100, 60}}, Cas{4, {10, 5, 100, 20}}, Cas{5, {10, 5, 30, 20}},
          Cas{6, {30, 5, 100, 20}}, Cas{7, {30, 20, 100, 60}}})
        EXPECT_EQ(formes::tiree(zone, c.poignee, {100, 5}).v, c.apres) << c.poignee;
    const Fiche minimal = formes::tiree({"DR", {50, 50, 9, 0}, ""}, 0, {50, 50});
    EXPECT_EQ(minimal.v[2], 1) << "a radius pulled to nothing";
    const std::vector<Vecteur> du_cercle{{50, 42}, {58, 50}, {50, 58}, {42, 50}};
    EXPECT_EQ(formes::poignees({"PB", {50, 50, 8, 0}, ""}), du_cercle);
    EXPECT_EQ(formes::poignees({"LN", {1, 2, 3, 4}, ""}), (std::vector<Vecteur>{{1, 2}, {3, 4}}));
    EXPECT_TRUE(formes::poignees({"M", {}, "x"}).empty());
}

TEST(Formes, la_zone_ou_la_souris_prend_un_objet) {
    struct Cas {
        Fiche objet;
        Vecteur dedans, dehors; ///< by a tolerance of 2 cm
    };
    for (const Cas& c : {Cas{{"L", {10, 10, 50, 50}, ""}, {50.9, 30}, {51.1, 30}},
                         Cas{{"DC", {10, 10, 50, 50}, ""}, {51.5, 30}, {30, 30}},
                         Cas{{"LE", {10, 10, 50, 30}, ""}, {30, 11}, {30, 20}},
                         Cas{{"LE", {10, 10, 50, 30}, ""}, {11, 20}, {12, 12}},
                         Cas{{"DR", {30, 30, 10, 0}, ""}, {30, 41}, {30, 33}},
                         Cas{{"PB", {30, 30, 10, 0}, ""}, {30, 33}, {30, 41}},
                         Cas{{"LN", {10, 10, 50, 50}, ""}, {31, 29.5}, {52, 52}}}) {
        EXPECT_TRUE(formes::touchee(c.objet, c.dedans, 2)) << c.objet.cle;
        EXPECT_FALSE(formes::touchee(c.objet, c.dehors, 2)) << c.objet.cle;
    }
}

namespace {

std::string apres(std::string_view table, const std::function<void(DocumentTable&)>& changer) {
    DocumentTable d = DocumentTable::depuis(table);
    changer(d);
    return d.ecrire();
}

std::string robot_apres(std::string_view robot,
                        const std::function<void(DocumentRobot&)>& changer) {
    DocumentRobot d = DocumentRobot::depuis(robot);
    changer(d);
    return d.ecrire();
}

} // namespace

TEST(ObjetsTable, chaque_geste_change_ce_qui_est_choisi_et_rien_d_autre) {
    constexpr std::string_view avant = "# sol\nU,0,0,200,300\nM,Nom\nL,10,10,30,20\nPB,50,60,5\n";
    const Choix tout{1, 2, 3}; // the caption among them
    struct Cas {
        std::function<void(DocumentTable&)> geste;
        std::string_view lignes; ///< those of the zone and the piece
    };
    const Cas cas[] = {
        {[&](auto& d) {
             EXPECT_TRUE(deplacer(d, tout, {-100, 7}));
         },
         "L , 0, 17, 20, 27\nPB , 40, 67, 5\n"}, // together, as far as the zone can go
        {[&](auto& d) {
             EXPECT_FALSE(deplacer(d, {2}, {-0.0, 0}));
         },
         "L,10,10,30,20\nPB,50,60,5\n"},
        {[&](auto& d) { aligner(d, tout, Bord::gauche); }, "L,10,10,30,20\nPB , 15, 60, 5\n"},
        {[&](auto& d) { aligner(d, tout, Bord::droite); }, "L , 35, 10, 55, 20\nPB,50,60,5\n"},
        {[&](auto& d) { aligner(d, tout, Bord::haut); }, "L , 10, 55, 30, 65\nPB,50,60,5\n"},
        {[&](auto& d) { aligner(d, tout, Bord::bas); }, "L,10,10,30,20\nPB , 50, 15, 5\n"},
        {[&](auto& d) { aligner(d, tout, Bord::milieu_y); },
         "L , 10, 33, 30, 43\nPB , 50, 37, 5\n"},
        {[&](auto& d) {
             EXPECT_TRUE(redimensionner(d, 2, 2, {40, 5}));
         },
         "L , 10, 5, 40, 20\nPB,50,60,5\n"},
        {[&](auto& d) {
             EXPECT_FALSE(redimensionner(d, 2, 3, {10, 5}));
         },
         "L,10,10,30,20\nPB,50,60,5\n"},
        {[&](auto& d) { changer_sorte(d, 3, "BJ"); }, "L,10,10,30,20\nBJ , 50, 60, 5\n"},
        {[&](auto& d) {
             EXPECT_EQ(dupliquer(d, tout, 5), (Choix{3, 5}));
         },
         "L,10,10,30,20\nL , 15, 15, 35, 25\nPB,50,60,5\nPB , 55, 65, 5\n"},
        {[&](auto& d) { retirer(d, {3}); }, "L,10,10,30,20\n"},
    };
    for (const Cas& c : cas)
        EXPECT_EQ(apres(avant, c.geste), "# sol\nU,0,0,200,300\nM,Nom\n" + std::string(c.lignes));
    DocumentTable d = DocumentTable::depuis(avant);
    EXPECT_THROW(aligner(d, {2}, Bord::bas), ErreurExecution);
    EXPECT_THROW(creer(d, {"L", {5, 5, 5, 9}, ""}), ErreurExecution) << "no width";
    EXPECT_EQ(d.ecrire(), avant);
}

TEST(ObjetsTable, la_legende_qui_vaut_est_changee_ou_ajoutee) {
    Choix choix;
    EXPECT_EQ(apres("M,a\nU,0,0,9,9\nM,b\n", [&](auto& d) { choix = regler_legende(d, {1}, "c"); }),
              "M,a\nU,0,0,9,9\nM,c\n");
    EXPECT_EQ(choix, Choix{1});
    EXPECT_EQ(apres("U,0,0,9,9\n", [&](auto& d) { choix = regler_legende(d, {0}, "c\nd"); }),
              "U,0,0,9,9\nM,c,d\n");
    EXPECT_EQ(choix, Choix{0});
}

TEST(Choix, un_clic_et_un_cadre_choisissent_seuls_ou_en_plus) {
    const Choix avant{1, 4};
    EXPECT_EQ(apres_clic(avant, 2, false), Choix{2});
    EXPECT_EQ(apres_clic(avant, 4, false), Choix{4});
    EXPECT_EQ(apres_clic(avant, std::nullopt, false), Choix{});
    EXPECT_EQ(apres_clic(avant, 2, true), (Choix{1, 2, 4}));
    EXPECT_EQ(apres_clic(avant, 4, true), Choix{1});
    EXPECT_EQ(apres_clic(avant, std::nullopt, true), avant);
    EXPECT_EQ(apres_cadre(avant, {2, 4}, false), (Choix{2, 4}));
    EXPECT_EQ(apres_cadre(avant, {2, 4}, true), (Choix{1, 2, 4}));
}

TEST(Cadre, prend_ce_qu_il_contient_et_la_souris_ce_qui_est_au_dessus) {
    const DocumentTable t =
        DocumentTable::depuis("L,0,0,200,200\nO,20,20,40,40\nM,x\nLN,30,30,90,30\n");
    EXPECT_EQ(objets_dans(t, {10, 10, 50, 50}, false), Choix{1});
    EXPECT_EQ(objets_dans(t, {0, 0, 200, 200}, false), (Choix{0, 1, 3}));
    EXPECT_EQ(objets_dans(t, {0, 0, 200, 200}, true), Choix{3}) << "zones are locked";
    EXPECT_EQ(objet_sous(t, {31, 30}, 1, false), 3U);
    EXPECT_EQ(objet_sous(t, {31, 35}, 1, false), 1U);
    EXPECT_EQ(objet_sous(t, {31, 35}, 1, true), std::nullopt);
    const DocumentRobot r = DocumentRobot::depuis("A,10,5,8\nR,0,0,4,0\nR,0,0,0,34\n");
    EXPECT_EQ(segments_dans(r, {-1, -1, 5, 5}), Choix{1}) << "not what only begins in it";
    EXPECT_EQ(segment_sous(r, {0.1, 0.2}, 1), 2U);
    EXPECT_EQ(segment_sous(r, {3, 0.2}, 1), 1U);
    EXPECT_EQ(segment_sous(r, {10, 5}, 1), std::nullopt) << "the reference point is none";
}

TEST(Mesures, valent_comme_elles_sont_tapees_dans_n_importe_quel_ordre) {
    using G = Grandeur;
    constexpr G angle = G::incidence;
    struct Cas {
        std::vector<std::pair<G, double>> frappes;
        std::string_view attendu, ligne = "O,20,20,40,40\n";
    };
    constexpr std::string_view trait = "LN,100,100,130,140\n";
    for (const Cas& c :
         {Cas{{{G::x1, 90}, {G::x2, 120}}, "O , 90, 20, 120, 40\n"},
          Cas{{{G::x2, 120}, {G::x1, 90}}, "O , 90, 20, 120, 40\n"},
          Cas{{{G::x1, 40}}, "O,20,20,40,40\n"}, // for a moment without width
          Cas{{{G::x1, 40}, {G::x2, 70}}, "O , 40, 20, 70, 40\n"},
          Cas{{{angle, 45}, {angle, 0}}, "LN , 9, 9, 14, 9\n", "LN,9,9,12,13\n"}, // rounded once
          Cas{{{angle, -90}, {G::x1, 90}, {angle, 0}}, "LN , 90, 100, 141, 100\n", trait},
          Cas{{{angle, -135}}, "LN , 100, 100, 65, 65\n", trait},
          Cas{{{G::x, 90}, {G::largeur, 5}, {G::y, 7}}, "O , 90, 7, 95, 27\n"},
          Cas{{{G::hauteur, 0}}, "O,20,20,40,40\n"},
          Cas{{{G::largeur, 32750}}, "O,20,20,40,40\n"}, // beyond what a file can say
          Cas{{{angle, 180}}, "LN,10,80,90,80\n", "LN,10,80,90,80\n"}}) { // beyond x = 0
        DocumentTable d = DocumentTable::depuis("L,0,0,200,200\n" + std::string(c.ligne));
        std::optional<Mesures> m;
        for (const auto& [champ, valeur] : c.frappes) {
            Mesures essai = mesures_de(d, 1, m);
            if (!taper(essai, champ, valeur))
                continue;
            if (!en_attente(essai))
                prendre(d, essai);
            m = essai;
        }
        EXPECT_EQ(d.ecrire(), "L,0,0,200,200\n" + std::string(c.attendu));
    }
    EXPECT_NEAR(incidence({"LN", {100, 100, 130, 140}, ""}), 53.13, 0.01);
    EXPECT_NEAR(incidence({"LN", {100, 100, 70, 60}, ""}), -126.87, 0.01);
}

TEST(Mesures, de_plusieurs_objets_a_la_fois) {
    using G = Grandeur;
    constexpr std::string_view avant = "M,Nom\nL,0,0,20,30\nO,50,0,70,90\nPB,5,6,7\nLN,0,0,9,9\n";
    DocumentTable d = DocumentTable::depuis(avant);
    const Choix boites{0, 1, 2};
    EXPECT_EQ(grandeurs(d, boites, false), (std::vector{G::x, G::y, G::largeur, G::hauteur}));
    EXPECT_EQ(grandeurs(d, {1, 3}, false), (std::vector{G::x, G::y}));
    EXPECT_EQ(grandeurs(d, {1, 4}, true), (std::vector{G::x1, G::y1, G::x2, G::y2}));
    EXPECT_TRUE(grandeurs(d, {3, 4}, false).empty());
    EXPECT_EQ(valeur(d, boites, G::largeur), 20);
    EXPECT_EQ(valeur(d, boites, G::hauteur), std::nullopt);
    EXPECT_FALSE(taper(d, boites, G::hauteur, 0));
    EXPECT_FALSE(taper(d, boites, G::x2, 0)) << "the first would lose its width";
    EXPECT_EQ(d.ecrire(), avant);
    EXPECT_TRUE(taper(d, boites, G::hauteur, 40));
    EXPECT_TRUE(taper(d, {1, 3}, G::x, 10));
    EXPECT_EQ(d.ecrire(),
              "M,Nom\nL , 10, 0, 30, 40\nO , 50, 0, 70, 40\nPB , 10, 6, 7\nLN,0,0,9,9\n");
}

TEST(SegmentsRobot, chaque_geste_change_les_segments_choisis) {
    constexpr std::string_view avant = "A,10,5,8\nR,0,0,4,0\nR,16,0,20,0\nE,1,2,3\n";
    struct Cas {
        std::function<void(DocumentRobot&)> geste;
        std::string_view attendu;
    };
    const Cas cas[] = {
        {[](auto& d) {
             deplacer(d, {0, 1, 3}, {2, -3});
         },
         "A,10,5,8\nR , 2, -3, 6, -3\nR,16,0,20,0\nE,1,2,3\n"},
        {[](auto& d) {
             aligner(d, {1, 2}, Bord::milieu_x);
             EXPECT_THROW(aligner(d, {1}, Bord::bas), ErreurExecution);
         },
         "A,10,5,8\nR , 8, 0, 12, 0\nR , 8, 0, 12, 0\nE,1,2,3\n"},
        {[](auto& d) { EXPECT_EQ(dupliquer(d, {1}, 5), Choix{3}); },
         "A,10,5,8\nR,0,0,4,0\nR,16,0,20,0\nR , 5, 5, 9, 5\nE,1,2,3\n"},
        // Each is the other's image already, written from its other end.
        {[](auto& d) { EXPECT_TRUE(copier_en_miroir(d, {}).empty()); }, avant},
        {[](auto& d) {
             EXPECT_TRUE(changer_segments(d, {1}, 1, 7));
             EXPECT_EQ(copier_en_miroir(d, {0, 1}), Choix{3});
         },
         "A,10,5,8\nR , 0, 7, 4, 0\nR,16,0,20,0\nR , 20, 7, 16, 0\nE,1,2,3\n"},
        {[](auto& d) {
             EXPECT_FALSE(changer_segments(d, {1, 2}, 0, 4));
         },
         avant},
        {[](auto& d) {
             EXPECT_TRUE(changer_segments(d, {0, 1, 2}, 3, 8));
         },
         "A,10,5,8\nR , 0, 0, 4, 8\nR , 16, 0, 20, 8\nE,1,2,3\n"},
        {[](auto& d) {
             EXPECT_FALSE(tirer_bout(d, 1, 1, {0.2, -0.4}));
         },
         avant},
        {[](auto& d) {
             EXPECT_TRUE(tirer_bout(d, 2, 0, {-40000, 1.5}));
         },
         "A,10,5,8\nR,0,0,4,0\nR , -32768, 2, 20, 0\nE,1,2,3\n"},
        {[](auto& d) {
             placer_reference(d, {1, 2});
         },
         "A , 1, 2, 8\nR,0,0,4,0\nR,16,0,20,0\nE,1,2,3\n"},
        {[](auto& d) { placer_roue(d, 4); }, "A , 10, 5, 12\nR,0,0,4,0\nR,16,0,20,0\nE,1,2,3\n"},
        {[](auto& d) {
             placer_extremite(d, {7, 8});
             regler_nombre(d, "E", 2, 9);
         },
         "A,10,5,8\nR,0,0,4,0\nR,16,0,20,0\nE , 7, 8, 9\n"},
        {[](auto& d) {
             EXPECT_EQ(creer(d, {"LN", {1, 1, 2, 2}, ""}), 3U);
         },
         "A,10,5,8\nR,0,0,4,0\nR,16,0,20,0\nR , 1, 1, 2, 2\nE,1,2,3\n"},
    };
    for (const Cas& c : cas)
        EXPECT_EQ(robot_apres(avant, c.geste), c.attendu);
}

TEST(SegmentsRobot, un_robot_neuf_est_au_milieu_du_pied_de_la_table) {
    const DocumentRobot r = robot_neuf(210);
    EXPECT_EQ(r.valeurs("I"), (std::array<float, 4>{105, 15, 90, 0}))
        << "14 cm behind the reference";
}

TEST(Outils, un_clic_pose_la_taille_voulue_un_trace_suit_la_souris) {
    const Tailles t{40, 20, 5, 60, 90};
    const auto v = [](const Fiche& f) { return f.v; };
    using V = std::array<float, 4>;
    EXPECT_EQ(v(posee("L", FormeOutil::boite, {50, 50}, t, true)), (V{30, 40, 70, 60}));
    EXPECT_EQ(v(posee("L", FormeOutil::boite, {3, 4}, t, true)), (V{0, 0, 40, 20}));
    EXPECT_EQ(v(posee("LN", FormeOutil::libre, {0, 0}, t, false)), (V{0, -30, 0, 30}));
    EXPECT_EQ(v(posee("LN", FormeOutil::horizontale, {50, 9}, t, true)), (V{20, 9, 80, 9}));
    EXPECT_EQ(v(posee("PB", FormeOutil::cercle, {2, 3}, t, true)), (V{2, 3, 5, 0}));
    EXPECT_EQ(v(tracee("DR", FormeOutil::cercle, {9, 9}, {9, 9})), (V{9, 9, 1, 0}));
    EXPECT_EQ(v(tracee("DR", FormeOutil::cercle, {0, 0}, {3, 4})), (V{0, 0, 5, 0}));
    EXPECT_EQ(v(tracee("LN", FormeOutil::verticale, {1, 2}, {8, 9})), (V{1, 2, 1, 9}));
}
