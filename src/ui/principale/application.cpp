#include "ui/principale/application.h"

#include "base/visible.h"
#include "config/dossier.h"
#include "ui/commun/application_sure.h"
#include "ui/commun/ligne_texte.h"
#include "ui/commun/style.h"
#include "ui/principale/fin_signalee.h"
#include "ui/principale/sim1.h"

#include <QIcon>
#include <QLibraryInfo>
#include <QLocale>
#include <QSettings>
#include <QTimer>
#include <QTranslator>

#include <cstdio>
#include <cstdlib>

namespace {

// Qt's last word before it gives up, for instance when there is no display.
void dire_et_finir(QtMsgType sorte, const QMessageLogContext&, const QString& texte) {
    std::fprintf(stderr, "tavolmex : %s\n", visible(texte.toStdString()).c_str());
    if (sorte == QtFatalMsg)
        std::_Exit(EXIT_FAILURE);
}

// The program is about to be ended from outside: what is not saved is kept for the next start.
void ecouter_la_fin(Sim1& sim, FinSignalee& fin) {
    fin.brancher([&sim](int signal) {
        sim.ecrire_reprises();
        systeme::SignauxDeFin::finir(signal);
    });
    QObject::connect(
        qApp, &QGuiApplication::commitDataRequest, &sim, [&sim] { sim.ecrire_reprises(); },
        Qt::DirectConnection);
}

int executer(const std::filesystem::path& dossier, FinSignalee& fin,
             const std::function<void(Sim1&)>& prete) {
    std::optional<int> code;
    Sim1 sim(dossier, [&code](int sortie) {
        code = sortie;
        QCoreApplication::exit(sortie);
    });
    ecouter_la_fin(sim, fin);
    sim.Form_Load();
    // After the windows are painted: the icon is a picture to be read.
    constexpr int apres_les_fenetres_ms = 20;
    QTimer::singleShot(apres_les_fenetres_ms, &sim,
                       [] { QApplication::setWindowIcon(QIcon(":/tavolmex.svg")); });
    if (prete)
        prete(sim);
    return code ? *code : QApplication::exec();
}

} // namespace

int executer_application(int& argc, char** argv,
                         const std::optional<std::filesystem::path>& dossier,
                         const std::function<void(Sim1&)>& prete) {
    qInstallMessageHandler(dire_et_finir);
    QLocale::setDefault(QLocale(QLocale::French, QLocale::France)); // whatever the environment says
    style::installer();
    FinSignalee fin;
    const ApplicationSure application(argc, argv);
    QApplication::setApplicationName("Tavolmex");
    QApplication::setOrganizationName("Tavolmex");
    QApplication::setDesktopFileName("org.tavolmex.tavolmex"); // the menu entry's name
    QSettings::setDefaultFormat(QSettings::IniFormat);
    QTranslator francais;
    if (francais.load("qtbase_fr", QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QApplication::installTranslator(&francais);
    LigneTexte::installer_accessibilite();
    const std::filesystem::path racine = dossier_application(dossier);
    entrer_dans_dossier(racine);
    return executer(racine, fin, prete);
}
