#include "ui/commun/application_sure.h"

#include "ui/banc.h"

#include <QAction>
#include <QCloseEvent>
#include <QPainter>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>

#include <stdexcept>

namespace {

const std::string boite = "message: Erreur d'exécution : ";

/// A window whose handlers fail as long as they have a reason to.
struct Fautive : QWidget {
    std::string raison;

    void faillir() const {
        if (!raison.empty())
            throw std::runtime_error(raison);
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter(this).fillRect(0, 0, 10, 10, Qt::red);
        faillir();
    }
    void mousePressEvent(QMouseEvent*) override { faillir(); }
    void mouseMoveEvent(QMouseEvent*) override { faillir(); }
    void keyPressEvent(QKeyEvent*) override { faillir(); }
    void closeEvent(QCloseEvent*) override { faillir(); }
};

class PanneDansUnGestionnaire : public Banc {
protected:
    void attendre(std::size_t nombre) {
        EXPECT_TRUE(QTest::qWaitFor([&] { return messages.size() >= nombre; }));
        QTest::qWait(20); // no further box
        EXPECT_EQ(messages.size(), nombre) << messages.back();
    }
};

TEST_F(PanneDansUnGestionnaire, chaque_sorte_est_dite_une_fois_et_la_fenetre_vit) {
    Fautive f;
    f.resize(200, 100);
    QPushButton bouton("Essai", &f);
    QTabWidget onglets;
    onglets.addTab(new QWidget, "un");
    onglets.addTab(new QWidget, "deux");
    QAction action;
    QTimer minuterie;
    const auto rater = [&f] { f.faillir(); };
    QObject::connect(&bouton, &QPushButton::clicked, &f, rater);
    QObject::connect(&onglets, &QTabWidget::currentChanged, &f, rater);
    QObject::connect(&action, &QAction::triggered, &f, rater, Qt::QueuedConnection);
    QObject::connect(&minuterie, &QTimer::timeout, &f, rater);
    f.show();
    onglets.show();
    QTest::qWait(10);
    const auto onglet = [&onglets](int i) {
        auto* barre = onglets.findChild<QTabBar*>();
        QTest::mouseClick(barre, Qt::LeftButton, {}, barre->tabRect(i).center());
    };
    struct Cas {
        const char* nom;
        std::function<void()> faire;
    };
    const Cas cas[] = {
        {"peinture", [&] { f.update(); }},
        {"souris",
         [&] {
             QTest::mousePress(&f, Qt::LeftButton, {}, {150, 50});
         }},
        {"déplacement",
         [&] {
             QTest::mouseMove(&f, {160, 60});
         }},
        {"touche", [&] { QTest::keyPress(&f, Qt::Key_A); }},
        {"bouton", [&] { QTest::mouseClick(&bouton, Qt::LeftButton); }},
        {"onglet", [&] { onglet(1 - onglets.currentIndex()); }},
        {"menu", [&] { action.trigger(); }},
        {"minuterie", [&] { minuterie.start(1); }},
        {"fermeture", [&] { EXPECT_FALSE(f.close()); }},
    };
    for (const Cas& c : cas) {
        messages.clear();
        f.raison = c.nom;
        c.faire();
        attendre(1);
        ASSERT_EQ(messages, std::vector{boite + c.nom});
        f.raison.clear();
        QTest::qWait(5); // what goes well counts as mended
        minuterie.stop();
    }
}

TEST_F(PanneDansUnGestionnaire, ce_qui_revient_seul_n_est_redit_qu_apres_avoir_reussi) {
    Fautive f;
    f.resize(200, 100);
    f.show();
    f.raison = "dessin";
    f.repaint();
    attendre(1);
    f.repaint();
    attendre(1); // the same failure
    const QImage image = f.grab().toImage();
    EXPECT_EQ(image.pixelColor(2, 2), f.palette().window().color()); // nothing half painted
    f.raison = "autre";
    f.repaint();
    attendre(2);
    f.raison.clear();
    f.repaint();
    f.raison = "autre";
    f.repaint();
    attendre(3);
    for (std::size_t n = 4; n < 6; ++n) { // each press is a new attempt
        QTest::mousePress(&f, Qt::LeftButton);
        attendre(n);
    }
}

} // namespace
