#include "ui/banc_table.h"

#include <QDropEvent>
#include <QMimeData>
#include <QPlainTextEdit>

namespace {

TEST_F(EditeurTable, chaque_outil_place_son_objet_d_un_clic_et_d_un_trace) {
    ASSERT_TRUE(ouvrir());
    messages.clear();
    trouver<QSpinBox>("largeur").setValue(20);
    trouver<QSpinBox>("hauteur").setValue(10);
    trouver<QSpinBox>("rayon").setValue(7);
    trouver<QSpinBox>("longueur").setValue(30);
    trouver<QSpinBox>("incidence").setValue(90);
    struct Cas {
        std::string outil, cle, clic, trace;
    };
    std::vector<Cas> cas{{"outil_Horizontale", "LN", "LN 25 40 55 40", "LN 20 40 60 40"},
                         {"outil_Verticale", "LN", "LN 40 25 40 55", "LN 20 40 20 20"},
                         {"outil_Ligne", "LN", "LN 40 25 40 55", "LN 20 40 60 20"}};
    for (const std::string cle : {"L", "O", "V", "T", "U", "W", "DC", "LE"})
        cas.push_back({"outil_" + cle, cle, cle + " 30 35 50 45", cle + " 20 20 60 40"});
    for (const std::string cle : {"PB", "PN", "BJ", "BB", "DR", "X", "Y"})
        cas.push_back({"outil_" + cle, cle, cle + " 40 40 7", cle + " 20 40 45"});
    for (const Cas& c : cas) {
        cliquer(c.outil.c_str());
        clic(40, 40);
        EXPECT_EQ(dernier(c.cle), c.clic) << c.outil;
        EXPECT_TRUE(trouver<QToolButton>("outil_Selection").isChecked()) << c.outil;
        cliquer(c.outil.c_str());
        tirer({20, 40}, {60, 20});
        EXPECT_EQ(dernier(c.cle), c.trace) << c.outil;
    }
    cliquer("outil_M");
    clic(40, 40);
    EXPECT_TRUE(messages.empty());
    for (std::size_t i = 0; i < 2 * cas.size(); ++i)
        commande("annuler");
    EXPECT_EQ(doc().ecrire(), fichier); // the very bytes
}

TEST_F(EditeurTable, deplacer_redimensionner_et_suspendre_la_grille) {
    ouvrir();
    deplacer({50, 50}, {62, 58});
    EXPECT_EQ(dernier("PB"), "PB 60 60 5");
    tirer({60, 60}, {63, 61}, Qt::AltModifier);
    EXPECT_EQ(dernier("PB"), "PB 63 61 5");
    tirer({68, 61}, {83, 61}); // the handle of its radius
    EXPECT_EQ(dernier("PB"), "PB 63 61 22");
    clic(30, 80);
    tirer({90, 80}, {70, 20});
    EXPECT_EQ(dernier("LN"), "LN 10 80 70 20");
    clic(5, 5);
    tirer({5, 5}, {-40, 25}); // the table begins at 0
    EXPECT_EQ(dernier("U"), "U 0 20 100 120");
    for (int i = 0; i < 5; ++i)
        commande("annuler");
    EXPECT_EQ(doc().ecrire(), fichier);
    deplacer({50, 50}, {62, 58});
    QTest::keyClick(&vue(), Qt::Key_Escape);
    EXPECT_EQ(dernier("PB"), "PB 60 60 5");
}

TEST_F(EditeurTable, choix_multiple_copies_ordre_et_alignement) {
    ouvrir("L,0,0,200,200\nO,10,10,20,20\nT,40,30,80,50\nV,15,15,45,45");
    clic(17, 12);
    clic(70, 40, Qt::ControlModifier);
    EXPECT_EQ(trouver<QListWidget>("listeObjets").selectedItems().size(), 2);
    commande("aligner_haut");
    EXPECT_EQ(dernier("O"), "O 10 40 20 50");
    commande("aligner_gauche");
    EXPECT_EQ(dernier("T"), "T 10 30 50 50");
    commande("dupliquer");
    EXPECT_EQ(dernier("T"), "T 15 35 55 55");
    EXPECT_EQ(doc().nombre(), 6U);
    commande("pas_droite_10");
    EXPECT_EQ(dernier("O"), "O 25 45 35 55");
    commande("supprimer");
    EXPECT_EQ(doc().nombre(), 4U);
    trouver<QListWidget>("listeObjets").setCurrentRow(1); // O lies under T
    commande("avancer");
    EXPECT_EQ(texte(doc()[2]), "O 10 40 20 50");
    tirer({-3, -3}, {90, 90}); // a frame takes what lies in it
    EXPECT_EQ(trouver<QListWidget>("listeObjets").selectedItems().size(), 3);
    commande("tout");
    EXPECT_EQ(trouver<QListWidget>("listeObjets").selectedItems().size(), 4);
}

TEST_F(EditeurTable, nombres_exacts_sorte_et_legende) {
    ouvrir();
    clic(50, 50);
    trouver<QDoubleSpinBox>("X").setValue(-3);
    trouver<QDoubleSpinBox>("Rayon").setValue(9);
    EXPECT_EQ(dernier("PB"), "PB -3 50 9");
    auto& sorte = trouver<QComboBox>("sorte");
    sorte.setCurrentIndex(sorte.findData("BB"));
    EXPECT_EQ(dernier("BB"), "BB -3 50 9");
    clic(30, 80);
    trouver<QDoubleSpinBox>("Incidence").setValue(-90);
    EXPECT_EQ(dernier("LN"), "LN 10 80 10 0");
    auto& legende = trouver<QPlainTextEdit>("legende");
    EXPECT_EQ(legende.toPlainText(), "\nTable");
    legende.setPlainText("Une\nautre");
    EXPECT_TRUE(contient(doc().ecrire(), "M,Une,autre\r\n"));
    for (int i = 0; i < 5; ++i)
        commande("annuler");
    EXPECT_EQ(doc().ecrire(), fichier);
    EXPECT_EQ(legende.toPlainText(), "\nTable");
}

TEST_F(EditeurTable, une_capacite_depassee_est_dite) {
    std::string plein = "L,0,0,100,100\n";
    for (int i = 0; i < 10; ++i)
        plein += "LE,10,10,20,20\n";
    ouvrir(plein);
    cliquer("outil_LE");
    clic(50, 50);
    ASSERT_EQ(messages.size(), 1U);
    EXPECT_EQ(messages[0], "message: La table ne peut pas avoir plus de 10 ellipses");
    EXPECT_NE(trouver<QLabel>("comptes").text().indexOf("ellipses 10/10"), -1);
    EXPECT_EQ(doc().ecrire(), plein);
}

TEST_F(EditeurTable, enregistrer_demande_garde_la_version_d_avant_et_propose_de_charger) {
    ouvrir();
    deplacer({50, 50}, {60, 60});
    messages.clear();
    reponses = {true, true, true}; // not understood, replace, load
    commande("enregistrer");
    ASSERT_EQ(messages.size(), 4U); // the reader refuses the line that it does not know
    EXPECT_TRUE(contient(messages[0], "ligne 6"));
    EXPECT_EQ(messages[1],
              "question: Le fichier Essai Table.ini existe déjà. Doit-on le remplacer ?");
    EXPECT_EQ(messages[2], "question: Doit-on charger le projet Essai maintenant ?");
    EXPECT_TRUE(contient(messages[3], "Ligne 6"));
    EXPECT_EQ(e().NomProjet, "Essai");
    EXPECT_TRUE(contient(sur_le_disque(), "PB , 60, 60, 5"));
    std::size_t copies = 0;
    for (const auto& f : std::filesystem::directory_iterator(dossier / "Configuration/Sauvegardes"))
        if (f.path().filename().string().starts_with("Essai Table.ini"))
            ++copies;
    EXPECT_EQ(copies, 1U);
    // Changed behind our back: asked again, and "Non" leaves the other's file alone.
    dossier.ecrire("Configuration/Essai Table.ini", "autre");
    messages.clear();
    reponses = {true, false};
    commande("enregistrer");
    EXPECT_TRUE(contient(messages.at(1), "modifié depuis"));
    EXPECT_EQ(sur_le_disque(), "autre");
}

TEST_F(EditeurTable, un_nom_qui_ne_se_relit_pas_mene_a_enregistrer_sous) {
    const auto chemin = dossier.ecrire("Configuration/A#B Table.ini", "U,0,0,70,70\r\n");
    ASSERT_TRUE(editeur().ouvrir(chemin));
    messages.clear();
    noms = {"AB Table"};
    commande("enregistrer");
    ASSERT_FALSE(messages.empty());
    EXPECT_TRUE(contient(messages[0], "ne peut pas contenir"));
    EXPECT_EQ(dossier.lire("Configuration/AB Table.ini"), "U,0,0,70,70\r\n");
    EXPECT_TRUE(std::filesystem::exists(chemin));
}

TEST_F(EditeurTable, un_fichier_change_ailleurs_est_relu_sans_perdre_le_dessin) {
    ouvrir();
    commande("zoom_plus");
    const double echelle = vue().pixels_par_cm();
    dossier.ecrire("Configuration/neuf", "U,0,0,70,70\r\n");
    std::filesystem::rename(dossier / "Configuration/neuf",
                            dossier / "Configuration/Essai Table.ini");
    ASSERT_TRUE(QTest::qWaitFor([&] { return doc().nombre() == 1; }));
    EXPECT_EQ(vue().pixels_par_cm(), echelle);
    EXPECT_FALSE(editeur().isWindowModified());
    deplacer({5, 5}, {15, 5});
    messages.clear();
    dossier.ecrire("Configuration/Essai Table.ini", "L,0,0,50,50\r\n"); // in place
    ASSERT_TRUE(QTest::qWaitFor([&] { return !messages.empty(); }));
    EXPECT_TRUE(contient(messages[0], "perdre les changements"));
    EXPECT_EQ(dernier("U"), "U 10 0 80 70");
    QTest::qWait(400);
    EXPECT_EQ(messages.size(), 1U) << "asked once";
}

TEST_F(EditeurTable, un_disque_qui_refuse_ne_coute_pas_le_dessin) {
    commande("nouveau");
    cliquer("outil_L");
    clic(50, 50);
    std::filesystem::remove_all(dossier / "Configuration");
    dossier.ecrire("Configuration", "a file in the directory's place");
    messages.clear();
    noms = {"Un Table"};
    commande("enregistrer");
    ASSERT_FALSE(messages.empty());
    EXPECT_EQ(messages[0].find("message: Le dessin n'a pas été enregistré : "), 0U) << messages[0];
    EXPECT_TRUE(contient(messages[0], "Configuration"));
    EXPECT_TRUE(editeur().isWindowModified());
    sauvegardes = {Sauvegarde::enregistrer};
    editeur().close();
    EXPECT_TRUE(editeur().isVisible());
    EXPECT_EQ(doc().compter({"L"}), 1);
}

TEST_F(EditeurTable, ce_que_le_simulateur_ne_dessinerait_pas_est_dit_avant_d_ecrire) {
    ouvrir("L,0,0,90,90\nLE,50,20,50,60\n"); // the reader takes it, the drawing stops
    deplacer({20, 20}, {30, 20});
    messages.clear();
    commande("enregistrer");
    ASSERT_EQ(messages.size(), 1U); // "Non"
    EXPECT_TRUE(contient(messages[0], "refusera ce fichier à la ligne 2"));
}

TEST_F(EditeurTable, des_pas_a_la_suite_s_annulent_ensemble) {
    ouvrir();
    clic(50, 50);
    for (int i = 0; i < 600; ++i)
        commande(i % 2 == 0 ? "pas_haut_10" : "pas_bas_1");
    EXPECT_EQ(dernier("PB"), "PB 50 2750 5");
    clic(30, 80);
    commande("pas_haut_1");
    commande("annuler");
    EXPECT_EQ(dernier("PB"), "PB 50 2750 5") << "another object, another step";
    commande("annuler");
    EXPECT_EQ(doc().ecrire(), fichier);
}

TEST_F(EditeurTable, nouveau_projet_explique_et_corrige_les_noms) {
    struct Cas {
        const char *nom, *ecrit, *avis;
    };
    for (const Cas& c : {Cas{"Un Table", "Un Table.ini", "du projet « Un »"},
                         Cas{"Deux", "Deux.ini", "la table d'aucun projet"},
                         Cas{"a/b", "ab Table.ini", "ne peut pas contenir"}}) {
        commande("nouveau");
        cliquer("outil_L");
        clic(50, 50);
        noms = {c.nom};
        commande("enregistrer");
        EXPECT_TRUE(std::filesystem::exists(dossier / "Configuration" / c.ecrit)) << c.nom;
        EXPECT_TRUE(contient(avis, c.avis));
        EXPECT_FALSE(editeur().isWindowModified()) << c.nom;
    }
}

TEST_F(EditeurTable, rien_n_est_perdu_en_partant) {
    ouvrir();
    deplacer({50, 50}, {60, 60});
    EXPECT_TRUE(editeur().isWindowModified());
    editeur().close(); // "Annuler"
    EXPECT_TRUE(editeur().isVisible());
    cliquer("Command4"); // nor does the program end
    EXPECT_TRUE(fins.empty());
    sauvegardes = {Sauvegarde::enregistrer};
    reponses = {true, true, false};
    editeur().close();
    EXPECT_FALSE(editeur().isVisible());
    EXPECT_TRUE(contient(sur_le_disque(), "PB , 60, 60, 5"));
    cliquer("dessinAire");
    deplacer({60, 60}, {40, 40});
    sauvegardes = {Sauvegarde::ne_pas_enregistrer};
    cliquer("Command4");
    EXPECT_EQ(fins, std::vector<int>{0});
    EXPECT_EQ(dernier("PB"), "PB 60 60 5");
}

TEST_F(EditeurTable, zoom_au_curseur_et_deplacement_de_la_vue) {
    ouvrir();
    const QPointF curseur = en(80, 20);
    const QPointF cm = vue().en_cm(curseur);
    const double avant = vue().pixels_par_cm();
    QWheelEvent roue(curseur, vue().mapToGlobal(curseur), {}, {0, 240}, {}, {}, Qt::NoScrollPhase,
                     false);
    QApplication::sendEvent(&vue(), &roue);
    EXPECT_NEAR(vue().pixels_par_cm(), avant * 1.44, 1e-9);
    EXPECT_NEAR(vue().en_cm(curseur).x(), cm.x(), 1e-9);
    EXPECT_NEAR(vue().en_cm(curseur).y(), cm.y(), 1e-9);
    QTest::mousePress(&vue(), Qt::MiddleButton, {}, {200, 200});
    QTest::mouseMove(&vue(), QPoint(230, 190));
    QTest::mouseRelease(&vue(), Qt::MiddleButton, {}, {230, 190});
    EXPECT_NEAR(vue().en_cm(curseur + QPointF(30, -10)).x(), cm.x(), 1e-9);
    commande("ajuster");
    EXPECT_NEAR(vue().pixels_par_cm(), avant, 1e-9);
}

} // namespace
