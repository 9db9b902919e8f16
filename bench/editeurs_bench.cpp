// The editors on a full table, on the screen in memory.
#include "comparer.h"

#include "config/lecteur_table.h"
#include "draw/table.h"
#include "ui/commun/surface_qt.h"
#include "ui/editeurs/dessin_table.h"
#include "ui/editeurs/foutil.h"

#include <QAction>
#include <QApplication>
#include <QImage>
#include <QMouseEvent>
#include <QPainter>

#include <filesystem>
#include <fstream>
#include <memory>
#include <string>

namespace {

/// As many records of every kind as a table can have.
std::string table_pleine() {
    std::string texte = "# table pleine\r\nM,,Table pleine\r\nL,0,0,200,320\r\n";
    const auto ajouter = [&](const char* cle, int n, int champs) {
        for (int i = 0; i < n; ++i) {
            texte += cle;
            for (int c = 0; c < champs; ++c)
                texte += "," + std::to_string(c < 2 ? 5 + (i * (7 + c)) % 150
                                                    : (champs == 3 ? 4 : 20 + (i * (7 + c)) % 170));
            texte += "\r\n";
        }
    };
    ajouter("T", 99, 4);
    ajouter("PB", 100, 3);
    ajouter("LN", 100, 4);
    ajouter("DC", 10, 4);
    for (int i = 0; i < 10; ++i)
        texte += "LE," + std::to_string(10 * i) + ",50," + std::to_string(10 * i + 30) + ",90\r\n";
    return texte;
}

/// The table editor on the full table, and the same table painted straight on a picture.
struct Banc {
    Banc() {
        std::filesystem::create_directories(dossier);
        std::ofstream(fichier, std::ios::binary) << texte;
        editeur.resize(900, 620);
        editeur.show();
        ouvrir();
        image = QImage(vue.size(), QImage::Format_RGB32);
    }
    ~Banc() {
        std::error_code ignoree;
        std::filesystem::remove_all(dossier, ignoree);
    }
    void ouvrir() {
        editeur.ouvrir(fichier);
        QApplication::processEvents();
    }
    void souris(QEvent::Type genre, QPointF ou) {
        const bool bouge = genre == QEvent::MouseMove;
        QMouseEvent evenement(genre, ou, vue.mapToGlobal(ou), bouge ? Qt::NoButton : Qt::LeftButton,
                              Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&vue, &evenement);
        QApplication::processEvents();
    }
    void lire() {
        Entier16 ligne;
        vider_table(*e);
        lire_table(
            texte, *e, [](std::string_view) {}, ligne);
    }
    void peindre() {
        QPainter peintre(&image);
        SurfaceQt s(peintre, image.size());
        s.coordonnees(-marge_table, e->YMax + marge_table, e->XMax + marge_table, -marge_table);
        e->ZoneRedessin = {0, e->XMax, 0, e->YMax};
        peindre_table(*e, s);
    }

    std::filesystem::path dossier = std::filesystem::temp_directory_path() / "tavolmex-bench";
    std::filesystem::path fichier = dossier / "Plein Table.ini";
    std::string texte = table_pleine();
    std::unique_ptr<Etat> e = std::make_unique<Etat>();
    Foutil outils{nullptr};
    dessinTable editeur{nullptr, outils, {dossier, [](const std::string&) {}}};
    VueEchelle& vue = dynamic_cast<VueEchelle&>(*editeur.findChild<QWidget*>("vueTable"));
    QImage image;
};

/// Opening a full table until it is on the screen, against the simulator's reading and the plain
/// painting. To be under 50 ms.
void ouvrir_une_table_pleine(benchmark::State& state) {
    Banc banc;
    comparer(
        state,
        [&] {
            banc.lire();
            banc.peindre();
        },
        [&] { banc.ouvrir(); });
}
BENCHMARK(ouvrir_une_table_pleine)->Iterations(100)->Unit(benchmark::kMillisecond);

/// One movement of the mouse that drags a record (or with `tous` all of them), until it is on the
/// screen, against the plain painting. To be under 4 ms.
void tirer_un_objet(benchmark::State& state) {
    Banc banc;
    banc.lire();
    if (state.range(0) != 0)
        banc.editeur.findChild<QAction*>("tout")->trigger();
    const QPointF depart = banc.vue.en_pixels(QPointF(20, 20));
    if (state.range(0) == 0) { // only what is chosen is moved
        banc.souris(QEvent::MouseButtonPress, depart);
        banc.souris(QEvent::MouseButtonRelease, depart);
    }
    banc.souris(QEvent::MouseButtonPress, depart);
    int n = 0;
    comparer(
        state, [&] { banc.peindre(); },
        [&] {
            ++n;
            banc.souris(QEvent::MouseMove, depart + QPointF(20 + n % 100, 30 + n % 70));
        });
    banc.souris(QEvent::MouseButtonRelease, depart);
}
BENCHMARK(tirer_un_objet)->ArgName("tous")->Arg(0)->Arg(1)->Iterations(500);

} // namespace
