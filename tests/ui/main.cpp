#include "outils/dossier_temporaire.h"
#include "ui/commun/application_sure.h"
#include "ui/commun/ligne_texte.h"
#include "ui/commun/style.h"

#include <QSettings>
#include <gtest/gtest.h>

#include <cstdio>

namespace {

// The screen in memory complains about what it lacks; nothing else is kept silent.
void dire(QtMsgType, const QMessageLogContext&, const QString& texte) {
    if (!texte.startsWith("This plugin does not support"))
        std::fprintf(stderr, "%s\n", qPrintable(texte));
}

} // namespace

// What the system's libraries keep for the whole life of the program. The linker finds the name.
extern "C" const char* __lsan_default_suppressions();  // NOLINT(bugprone-reserved-identifier)
extern "C" const char* __lsan_default_suppressions() { // NOLINT(bugprone-reserved-identifier)
    return "leak:libfontconfig\nleak:libQt6\nleak:libdbus\n";
}

// The windows live on a screen in memory, unless a platform is asked for.
int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler(dire);
    const DossierTemporaire reglages; // not the user's own
    qputenv("XDG_CONFIG_HOME", reglages.chemin().c_str());
    style::installer();
    const ApplicationSure application(argc, argv);
    QApplication::setOrganizationName("Tavolmex");
    QSettings::setDefaultFormat(QSettings::IniFormat);
    LigneTexte::installer_accessibilite();
    return RUN_ALL_TESTS();
}
