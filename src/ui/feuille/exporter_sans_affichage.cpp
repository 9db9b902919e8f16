#include "ui/feuille/exporter_sans_affichage.h"

#include "cli/ligne_de_commande.h"
#include "ui/feuille/peinture.h"

#include <QGuiApplication>

int exporter_sans_affichage(int& argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_LOGGING_RULES", "*=false"); // standard error is for what the verb says
    const QGuiApplication application(argc, argv);
    return executer_ligne_de_commande(
        argc, argv, {"tavolmex", {{".pdf", vue_en_pdf, page_en_pdf}, {".png", vue_en_png, {}}}});
}
