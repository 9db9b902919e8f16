#include "feuille/trace_csv.h"
#include "ui/banc.h"

#include <QAction>
#include <QImage>
#include <QInputDialog>
#include <QProcess>
#include <QXmlStreamReader>

namespace {

class FeuilleDeMatch : public Banc {
protected:
    FeuilleDeMatch() {
        demarrer();
        dialogues["demander_entier"] = [](QDialog& d) {
            static_cast<QInputDialog&>(d).setIntValue(430);
            d.accept();
        };
    }
    /// A line of the menu, the name of a file given. @returns its content
    QByteArray exporter(const char* ligne, const QString& nom) {
        chemins_choisis = {texte_qt((dossier / nom.toStdString()).string())};
        sim->findChild<QAction*>(ligne)->trigger();
        return QByteArray::fromStdString(dossier.lire(nom.toStdString()));
    }
    QByteArray lire_pdf(const char* programme, const char* nom) {
        QProcess p;
        p.start(programme, {texte_qt((dossier / nom).string()), "-"});
        EXPECT_TRUE(p.waitForFinished()) << "poppler-utils is missing";
        return p.readAllStandardOutput();
    }
    static bool est_du_xml(const QByteArray& octets) {
        QXmlStreamReader xml(octets);
        while (!xml.atEnd())
            xml.readNext();
        return !xml.hasError();
    }
};

TEST_F(FeuilleDeMatch, ce_qui_est_exporte_se_rouvre_et_se_mesure) {
    e().NbRobot = 2;
    exporter("menu_feuille", "feuille"); // its extension is added
    QProcess infos;
    infos.start("pdfinfo", {texte_qt((dossier / "feuille.pdf").string())});
    ASSERT_TRUE(infos.waitForFinished()) << "poppler-utils is missing";
    const QByteArray page = infos.readAllStandardOutput();
    EXPECT_TRUE(page.contains("Pages:           1\n")) << page.toStdString();
    EXPECT_TRUE(page.contains("(A4)")) << page.toStdString();
    const QByteArray texte = lire_pdf("pdftotext", "feuille.pdf");
    for (const char* voulu : {"Feuille de match – Defaut", "100,0 cm du bord gauche", "Robot 2",
                              "VirAvDr 360° rayon 30 cm", "Defaut Trajet2.ini"})
        EXPECT_TRUE(texte.contains(voulu)) << voulu << texte.toStdString();

    EXPECT_TRUE(est_du_xml(exporter("menu_feuille", "feuille.svg")));
    EXPECT_TRUE(est_du_xml(exporter("menu_image", "image.svg")));
    const QImage image = QImage::fromData(exporter("menu_image", "image.png"));
    EXPECT_EQ(image.size(), QSize(430, 676)); // 210 x 330 cm with the margin
    EXPECT_EQ(image.pixelColor(2, 2), QColor(Qt::red));
    const auto copie = std::make_unique<Etat>(e());
    EXPECT_EQ(exporter("menu_trace_csv", "trace.csv").toStdString(), trace_csv(*copie));
    EXPECT_TRUE(messages.empty());
}

TEST_F(FeuilleDeMatch, rien_n_est_remplace_sans_accord_ni_ecrit_sans_reponse) {
    dossier.ecrire("notes.csv", "à moi");
    EXPECT_EQ(exporter("menu_trace_csv", "notes.csv"), "à moi");
    EXPECT_EQ(messages, std::vector<std::string>{
                            "question: « notes.csv » existe déjà. Faut-il le remplacer ?"});
    reponses = {true};
    EXPECT_TRUE(exporter("menu_trace_csv", "notes.csv").startsWith("temps,robot,"));
    dialogues["demander_entier"] = [](QDialog& d) { d.reject(); };
    exporter("menu_image", "image.png");
    EXPECT_FALSE(std::filesystem::exists(dossier / "image.png"));
    sim->findChild<QAction*>("menu_imprimer")->trigger(); // given up
}

} // namespace
