// The program with its windows, killed when it is about to change a file: a new start finds every
// file whole and offers what was not saved.
#include "outils/coupure.h"
#include "outils/pannes.h"
#include "ui/banc_telecommande.h"
#include "ui/principale/editeurs.h"

#include <QAction>
#include <QClipboard>
#include <QComboBox>

#include <algorithm>
#include <limits>

namespace {

namespace fs = std::filesystem;

class TueEnFenetres : public ConsoleFenetre {
public:
    using Acte = void (TueEnFenetres::*)();

    TueEnFenetres() {
        dossier.ecrire("Configuration/Tavolmex.ini", "NbRobot, 1\n");
        for (const char* nom : {"depart.bas", "deux_cotes.bas"})
            fs::copy_file(DONNEES "/codegen/menu_complet/depart.bas",
                          dossier / (std::string("Configuration/") + nom));
        dans_un_enfant([this] {
            demarrer();
            return 0;
        });
        dossier.ecrire("Configuration/Defaut PourGenerer10.ini", "# Fichier\r\nAVANCE:12\r\n");
        dossier.ecrire("Configuration/Defaut Trajet1.ini",
                       "Init,60,40,90\r\nAvance,20\r\nDroite,45\r\nAvance,10\r\nRecule,10\r\n"
                       "Gauche,45\r\nFIN\r\n");
        fs::copy(dossier / "Configuration", modele.chemin(), fs::copy_options::recursive);
    }

    void conduire() {
        ouvrir();
        saisir("Text1", "20");
        commencer();
        for (const char* action : {"Avance", "Recule", "Avance"})
            jouer(action);
        dans_console<QPushButton>("Command9").click();
    }
    void dessiner() {
        for (const char* piece : {"PB,50,50,5", "PB,60,60,5", "PB,70,70,5"}) {
            QApplication::clipboard()->setText(piece);
            commander(table(), "coller");
            table().ecrire_reprise(); // what the clock does half a second later
        }
    }
    void enregistrer() {
        conduire();
        dessiner();
        commander(table(), "enregistrer");
        seance().SauvRobot();
    }
    // Both sides into one program, then the recorded path into another one and its menu.
    void generer() {
        reponses = {true}; // replace; not the look at the result
        dialogues["copieTrajet"] = [this](QDialog& d) {
            d.findChild<QComboBox*>("cote")->setCurrentIndex(1);
            d.findChild<QCheckBox*>("deuxFonctions")->setChecked(true);
            d.findChild<QLineEdit*>("programmePicbasic")->setText(programme("deux_cotes.bas"));
            auto& copier = *d.findChild<QPushButton*>("copierTrajet");
            copier.isEnabled() ? copier.click() : d.reject();
        };
        sim->findChild<QAction*>("menu_trajet")->trigger();
        commander(trouver<FenetreEditeur>("dessinTrajet"), "copier_vers");
        cliquer("generer");
        QWidget& dialog = trouver("Dialog");
        choisir(dialog, "File1", "depart.bas");
        choisir(dialog, "File", "Defaut PourGenerer10.ini");
        dialog.findChild<QCheckBox*>("menu")->setChecked(true);
        dialog.findChild<QLineEdit*>("fichier_a_generer")->setText(programme("genere.bas"));
        dialog.findChild<QLineEdit*>("Txt_NomFctGen")->setText("COTE_B");
        dialog.findChild<QPushButton*>("generer")->click();
    }

    void revenir_au_depart() const {
        // A death between Qt's making this lock and naming its owner in it: waited for 30 s.
        QFile::remove(QSettings().fileName() + ".lock");
        fs::remove_all(dossier / "Configuration");
        fs::copy(modele.chemin(), dossier / "Configuration", fs::copy_options::recursive);
    }
    /// @returns the calls made that change a file, before the death or in all
    int jouer_l_acte(Acte acte, int arret = std::numeric_limits<int>::max()) {
        revenir_au_depart();
        return appels_avant_la_mort(arret, change_un_fichier, [this, acte] {
            reponses.assign(9, true);
            demarrer();
            compter_d_ici();
            (this->*acte)();
        });
    }
    /// What a new start gives back: the actions driven and the pieces drawn. Nothing to complain
    /// of.
    int retrouver() {
        return dans_un_enfant([this] {
            reponses.assign(9, true);
            demarrer();
            for (const std::string& texte : messages)
                if (!texte.starts_with("question: ") || !contient(texte, "reprendre")) {
                    std::puts(texte.c_str());
                    std::fflush(stdout);
                    return 255;
                }
            const int actions = e().TrajNbActions(1);
            return (actions > 4 ? 0 : std::min(actions, 3)) + pieces(); // FIN is saved with them
        });
    }

    DossierTemporaire modele;

private:
    template <typename Action>
    static int dans_un_enfant(Action action) {
        const pid_t enfant = ::fork();
        if (enfant == 0) {
            const int code = action();
            ::_exit(code);
        }
        int etat = 0;
        ::waitpid(enfant, &etat, 0);
        EXPECT_TRUE(WIFEXITED(etat) && WEXITSTATUS(etat) != 255);
        return WEXITSTATUS(etat);
    }
    static void commander(QWidget& fenetre, const char* nom) {
        fenetre.findChild<QAction*>(nom)->trigger();
        QCoreApplication::sendPostedEvents(&fenetre, QEvent::MetaCall);
    }
    static void choisir(QWidget& dialog, const char* liste, const char* fichier) {
        auto& l = *dialog.findChild<QListWidget*>(liste);
        const auto lignes = [&] { return l.findItems(fichier, Qt::MatchExactly); };
        if (QTest::qWaitFor([&] { return !lignes().isEmpty(); }))
            l.setCurrentItem(lignes().front());
    }
    QString programme(const char* nom) const {
        return QString::fromStdString((dossier / (std::string("Configuration/") + nom)).string());
    }
    dessinTable& table() {
        cliquer("dessinAire");
        return trouver<dessinTable>("dessinTable");
    }
    int pieces() {
        const auto& doc = table().document();
        int nombre = 0;
        for (std::size_t i = 0; i < doc.nombre(); ++i)
            nombre += doc[i].cle == "PB" && doc[i].entier(2) == 5 ? 1 : 0;
        return nombre;
    }
};

TEST_F(TueEnFenetres, a_cinquante_instants_rien_n_est_perdu_ni_ecrit_a_moitie) {
    struct {
        Acte acte;
        int gagne;
    } const tous[] = {{&TueEnFenetres::conduire, 3},
                      {&TueEnFenetres::dessiner, 3},
                      {&TueEnFenetres::enregistrer, 6},
                      {&TueEnFenetres::generer, 0}};
    constexpr int instants = 13;
    revenir_au_depart();
    const Fichiers avant = fichiers_de(dossier);
    const int sans_rien = retrouver();
    for (const auto& cas : tous) {
        SCOPED_TRACE(&cas - tous);
        const int appels = jouer_l_acte(cas.acte);
        const Fichiers apres = fichiers_de(dossier);
        EXPECT_EQ(retrouver(), sans_rien + cas.gagne);
        int trouve = sans_rien;
        for (int instant = 1; instant <= instants; ++instant) {
            SCOPED_TRACE(instant);
            jouer_l_acte(cas.acte, appels * instant / (instants + 1));
            attendre_entiers(dossier, avant, apres);
            const int encore = retrouver();
            EXPECT_GE(encore, trouve) << "what was kept is lost";
            trouve = encore;
        }
    }
}

} // namespace
