#include "config/dossier.h"
#include "ui/ligne_texte.h"
#include "ui/sim1.h"

#include <CLI/CLI.hpp>
#include <QApplication>
#include <QIcon>
#include <QLibraryInfo>
#include <QTranslator>

#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <optional>

namespace {

constexpr int code_erreur_d_usage = 2;

// Qt's last word before it gives up, for instance when there is no display.
void dire_et_finir(QtMsgType sorte, const QMessageLogContext&, const QString& texte) {
    std::fprintf(stderr, "tavolmex : %s\n", qPrintable(texte));
    if (sorte == QtFatalMsg)
        std::_Exit(EXIT_FAILURE);
}

bool sans_affichage() {
    return !qEnvironmentVariableIsSet("QT_QPA_PLATFORM") &&
           qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
}

int executer(QApplication& application, const std::filesystem::path& dossier) {
    std::optional<int> code;
    Sim1 sim(dossier, [&code](int sortie) {
        code = sortie;
        QCoreApplication::exit(sortie);
    });
    sim.Form_Load();
    return code ? *code : application.exec();
}

int ouvrir(int argc, char** argv, const std::optional<std::filesystem::path>& dossier) {
    QApplication::setStyle("Fusion");
    QApplication application(argc, argv);
    QApplication::setApplicationName("Tavolmex");
    QApplication::setWindowIcon(QIcon(":/tavolmex.svg"));
    QTranslator francais;
    if (francais.load("qtbase_fr", QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QApplication::installTranslator(&francais);
    LigneTexte::installer_accessibilite();
    const std::filesystem::path racine = dossier_application(dossier);
    entrer_dans_dossier(racine);
    return executer(application, racine);
}

} // namespace

int main(int argc, char** argv) {
    CLI::App commande("Simulateur du robot et de ses trajectoires.", "tavolmex");
    std::optional<std::filesystem::path> dossier;
    commande.add_option("--dossier", dossier,
                        "Dossier de l'application, qui contient Configuration");
    commande.set_version_flag("--version", "tavolmex " TAVOLMEX_VERSION);
    commande.set_help_flag("--help", "Affiche cette aide");
    try {
        commande.parse(argc, argv);
        if (sans_affichage()) {
            std::cerr << "tavolmex : aucun affichage (ni DISPLAY ni WAYLAND_DISPLAY) ; "
                         "tavolmex-cli s'en passe\n";
            return EXIT_FAILURE;
        }
        qInstallMessageHandler(dire_et_finir);
        return ouvrir(argc, argv, dossier);
    } catch (const CLI::ParseError& erreur) {
        return commande.exit(erreur) == 0 ? EXIT_SUCCESS : code_erreur_d_usage;
    } catch (const std::exception& erreur) {
        std::cerr << "tavolmex : " << erreur.what() << '\n';
        return EXIT_FAILURE;
    }
}
