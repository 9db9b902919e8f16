#include "ui/commun/nombre.h"

#include "outils/textes.h"
#include <QApplication>
#include <QMainWindow>
#include <QStatusBar>
#include <QTest>

#include <gtest/gtest.h>

namespace {

/// What a field makes of keys typed over its 7, and what it says.
struct Frappe {
    const char* touches;
    double valeur; ///< 7: refused
    const char* dit;
};

template <typename Champ>
void essayer(Champ& champ, const std::vector<Frappe>& frappes) {
    QMainWindow fenetre;
    fenetre.setCentralWidget(&champ);
    champ.setSuffix(" cm");
    champ.setRange(-20, 9999);
    fenetre.show();
    champ.setFocus();
    for (const Frappe& f : frappes) {
        champ.setValue(7);
        fenetre.statusBar()->clearMessage();
        champ.selectAll();
        QTest::keyClicks(&champ, f.touches);
        EXPECT_EQ(prendre_la_saisie(fenetre).isEmpty(), f.valeur != 7) << f.touches;
        QTest::keyClick(&champ, Qt::Key_Return);
        EXPECT_EQ(champ.value(), f.valeur) << f.touches;
        const std::string dit = fenetre.statusBar()->currentMessage().toStdString();
        EXPECT_TRUE(contient(dit, f.dit)) << f.touches << ": ";
        EXPECT_EQ(dit.empty(), f.valeur != 7) << dit;
    }
    fenetre.takeCentralWidget();
}

// A system in another language must not turn "9,5" into 95 nor "1.000" into 1000.
TEST(Nombres, sont_pris_ou_refuses_jamais_changes_dans_toute_langue) {
    for (const char* langue : {"C", "fr_FR", "en_US", "de_CH"}) {
        SCOPED_TRACE(langue);
        QLocale::setDefault(QLocale(langue));
        NombreEntier entier;
        essayer(entier,
                {{"35", 35, ""},
                 {"-20", -20, ""},
                 {"+4", 4, ""},
                 {"12,5", 7, "« 12,5 » est refusé : il faut un nombre entier de -20 à 9999"},
                 {"12.5", 7, "« 12.5 » est refusé"},
                 {"1 000", 7, "refusé"},
                 {"1'000", 7, "refusé"},
                 {"1e3", 7, "refusé"},
                 {"10000", 7, "refusé"},
                 {"-21", 7, "refusé"}});
        Nombre nombre;
        nombre.setDecimals(3);
        essayer(nombre, {{"9,5", 9.5, ""},
                         {"9.5", 9.5, ""},
                         {"1,000", 1, ""},
                         {"0,125", 0.125, ""},
                         {"0,1255", 7, "avec 3 décimale(s) au plus"},
                         {"1,2,3", 7, "refusé"},
                         {",", 7, "refusé"}});
        for (const auto& [valeur, texte] :
             {std::pair{9.5, "9,5 cm"}, {1000.0, "1000 cm"}, {-0.25, "-0,25 cm"}, {0.0, "0 cm"}}) {
            nombre.setValue(valeur);
            EXPECT_EQ(nombre.text(), texte);
        }
        QLineEdit ligne;
        n_accepter_que_des_entiers(ligne);
        QTest::keyClicks(&ligne, "12.5");
        EXPECT_EQ(ligne.text(), "12,5") << "seen, and no number for whoever reads it";
    }
    QLocale::setDefault(QLocale(QLocale::French, QLocale::France));
}

TEST(Nombres, un_champ_quitte_sans_nombre_le_dit_et_reprend_le_sien) {
    NombreEntier champ;
    QMainWindow fenetre;
    fenetre.setCentralWidget(&champ);
    fenetre.statusBar()->clearMessage();
    fenetre.show();
    champ.setValue(40);
    champ.selectAll();
    QTest::keyClick(&champ, Qt::Key_Delete);
    QFocusEvent part(QEvent::FocusOut, Qt::TabFocusReason);
    QApplication::sendEvent(&champ, &part);
    EXPECT_EQ(champ.value(), 40);
    EXPECT_EQ(champ.text(), "40");
    EXPECT_TRUE(fenetre.statusBar()->currentMessage().contains("Ce champ est vide"));
    fenetre.takeCentralWidget();
}

} // namespace
