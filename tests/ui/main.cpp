#include "ui/ligne_texte.h"

#include <QApplication>
#include <gtest/gtest.h>

// The windows live on a screen in memory, unless a platform is asked for.
int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication::setStyle("Fusion");
    const QApplication application(argc, argv);
    LigneTexte::installer_accessibilite();
    return RUN_ALL_TESTS();
}
