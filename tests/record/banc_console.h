#pragma once

#include "record/console.h"

#include "outils/dossier_temporaire.h"
#include "outils/fausses_fenetres.h"
#include "outils/textes.h"
#include "sim/actions.h"
#include "sim/damier.h"
#include "sim/secours.h"

#include <memory>

/// Passes the engine's calls on to a console, as its window does.
class FenetresConsole : public FaussesFenetres {
public:
    Console* console = nullptr;

    void Active_Desactive(bool Status) override {
        FaussesFenetres::Active_Desactive(Status);
        if (Status)
            console->action_finie();
    }
    void montrer_course(bool en_cours) override {
        FaussesFenetres::montrer_course(en_cours);
        if (!en_cours)
            console->action_finie();
    }
};

/// A console over two built-in robots on the built-in table, with its recovery file.
struct BancConsole {
    DossierTemporaire d;
    std::unique_ptr<Etat> etat = std::make_unique<Etat>();
    Etat& e = *etat;
    FenetresConsole f;
    Moteur m{*etat, f};
    Reprise reprise{*etat, d.chemin()};
    Console c{*etat, f, m, &reprise};

    BancConsole() {
        f.console = &c;
        Init_Table_Old(e);
        Init_Robot_Old(e, 1);
        Init_Jeu_Old(e);
        initDamier(e);
        e.NbRobot = 2;
    }

    /// From here on a search for the right beacon never ends: it stands closer to the sensor's
    /// middle point than the sensor's end.
    void rendre_la_balise_introuvable(int i) {
        e.DistExtr(i) = 20;
        e.PointY = {e.Xm(i) + 3, e.Ym(i), 0};
    }
    void debuter(int robot = 1, const ChampsPose& pose = {"60", "40", "90"}) {
        c.VScroll1_Change(robot);
        c.Command9_Click(pose);
        tourner();
    }
    /// Plays ticks until the timer stops, at most `ticks`.
    void tourner(int ticks = 20000) {
        for (; f.intervalle > 0 && ticks > 0; --ticks)
            m.Timer_Timer();
    }
    void jouer(const char* legende, const char* Text1 = "0", const char* Text4 = "0") {
        c.Command4_Click(legende, Text1, Text4);
        tourner();
    }

    /// The trajectory of robot i: "AVANCE    ,50,0;".
    std::string trajet(int i) const {
        std::string texte;
        for (int k = 1; k <= e.TrajNbActions(i); ++k)
            texte += std::string(e.TrajAction(i, k).vue()) + "," +
                     std::to_string(e.TrajParam1(i, k)) + "," + std::to_string(e.TrajParam2(i, k)) +
                     ";";
        return texte;
    }
    /// The generation table's rows up to its end mark: "1,50,0;".
    std::string table() const {
        std::string texte;
        for (int n = 0; n <= 1000 && e.TableauAGenerer(n, 0) != 0; ++n)
            texte += std::to_string(e.TableauAGenerer(n, 0)) + "," +
                     std::to_string(e.TableauAGenerer(n, 1)) + "," +
                     std::to_string(e.TableauAGenerer(n, 2)) + ";";
        return texte;
    }
};
