#include "ui/principale/application.h"

#include "base/visible.h"
#include "config/dossier.h"
#include "config/projets.h"
#include "ui/commun/application_sure.h"
#include "ui/commun/garde.h"
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

#include <algorithm>
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

// A misspelt name would make a new project.
void exiger_projet_present(const std::filesystem::path& configuration, const std::string& projet) {
    const std::vector<std::string> presents = lister_projets(configuration);
    if (projet == "Defaut" || std::ranges::find(presents, projet) != presents.end())
        return;
    std::string texte = "aucun projet « " + projet + " » dans " + configuration.string();
    for (const std::string& present : presents)
        texte += (&present == &presents.front() ? " ; il y a " : ", ") + present;
    throw ErreurExecution(texte);
}

void preparer(Sim1& sim, const std::string& projet) {
    if (projet.empty())
        return;
    exiger_projet_present(sim.seance().projet().dossier_configuration(), projet);
    sim.seance().projet().imposer_projet(projet);
}

void poursuivre(Sim1& sim, const Demarrage& demarrage) {
    garde(sim.seance().fenetres(), [&] {
        if (!demarrage.fichier.empty())
            sim.ouvrir_fichier(demarrage.fichier);
        if (demarrage.demarrer)
            sim.demarrer_match();
    });
}

} // namespace

void demarrer(Sim1& sim, const Demarrage& demarrage) {
    preparer(sim, demarrage.projet);
    sim.Form_Load();
    if (!sim.seance().terminee())
        poursuivre(sim, demarrage);
}

namespace {

int executer(const std::filesystem::path& dossier, FinSignalee& fin, const Demarrage& demarrage,
             const std::function<void(Sim1&)>& prete) {
    std::optional<int> code;
    Sim1 sim(dossier, [&code](int sortie) {
        code = sortie;
        QCoreApplication::exit(sortie);
    });
    ecouter_la_fin(sim, fin);
    demarrer(sim, demarrage);
    // After the windows are painted: the icon is a picture to be read.
    constexpr int apres_les_fenetres_ms = 20;
    QTimer::singleShot(apres_les_fenetres_ms, &sim,
                       [] { QApplication::setWindowIcon(QIcon(":/tavolmex.svg")); });
    if (prete)
        prete(sim);
    return code ? *code : QApplication::exec();
}

} // namespace

int executer_application(int& argc, char** argv, const Demarrage& demarrage,
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
    const std::filesystem::path racine = dossier_application(demarrage.dossier);
    entrer_dans_dossier(racine);
    return executer(racine, fin, demarrage, prete);
}
