#include "boucle_minimale.h"
#include "comparer.h"

#include "config/projet.h"
#include "draw/a_vide.h"
#include "outils/dossier_temporaire.h"
#include "sim/actions.h"
#include "sim/damier.h"
#include "sim/moteur.h"

#include <memory>

namespace {

// Headless as the command line runs it: the drawing's arithmetic, no text.
class FenetresBanc : public Fenetres {
public:
    explicit FenetresBanc(Etat& etat) : e(etat) {}
    virtual ~FenetresBanc() = default;
    void message(std::string_view texte) override {
        std::fprintf(stderr, "%.*s\n", static_cast<int>(texte.size()), texte.data());
    }
    bool question(std::string_view) override { return false; }
    void regler_Timer(Entier16 ms) override { intervalle = ms; }
    void ecrire_Mess(const LigneMess&) override {}
    void ecrire_texte_Mess(std::string_view) override {}
    void ecrire_Info(const LigneInfo&) override {}
    void ecrire_LNom(std::string_view) override {}
    void ecrire_nbre_carreaux(std::string_view) override {}
    void Active_Desactive(bool) override {}
    void Dessine_Table() override { dessin.table(e, *this); }
    void Dessine_Robot() override { dessin.robots(e, *this); }
    void apres_actions() override {}
    void montrer_course(bool en_cours) override {
        if (en_cours)
            dessin.oublier();
    }
    void montrer_logo(bool) override {}
    void fin_du_programme() override {}

    Etat& e;
    DessinAVide dessin;
    Entier16 intervalle;
};

// Keeps the status texts' values of every tick, as a window that is not looked at does.
class FenetresGardant final : public FenetresBanc {
public:
    using FenetresBanc::FenetresBanc;
    void ecrire_Mess(const LigneMess& mess) override { mess_ = &mess; }
    void ecrire_Info(const LigneInfo& info) override { info_ = &info; }

private:
    const LigneMess* mess_ = nullptr;
    const LigneInfo* info_ = nullptr;
};

template <typename F = FenetresBanc>
struct Banc {
    std::unique_ptr<Etat> etat = std::make_unique<Etat>();
    Etat& e = *etat;
    F f{*etat};
    Moteur m{*etat, f};

    void jouer() {
        m.Run_Jeu();
        while (f.intervalle > 0 && m.Timer_Timer()) {
        }
    }
};

template <typename F>
void charger_defaut(Banc<F>& b, int robots) {
    const DossierTemporaire dossier;
    const auto ici = std::filesystem::current_path();
    std::filesystem::current_path(dossier.chemin());
    Projet projet(b.e, b.f, dossier.chemin());
    projet.Installe();
    projet.LoadTable();
    projet.Init_Robot();
    projet.Init_Jeu();
    std::filesystem::current_path(ici);
    initDamier(b.e);
    b.e.NbRobot = robots;
}

template <typename F>
void exiger_meme_fin(benchmark::State& state, Banc<F>& b, BoucleMinimale& base) {
    b.jouer();
    base.jouer();
    if (base.avec_arcs && base.carreaux() != b.e.NbreCarreaux)
        state.SkipWithError("the baseline counts other tiles");
    for (int i = 1; i <= b.e.NbRobot; ++i) {
        if (base.x(i) != b.e.XRobot(i) || base.y(i) != b.e.YRobot(i))
            state.SkipWithError("the baseline ends elsewhere");
    }
}

// The whole default match against the minimal loop: at most 1.0 with 1 robot, 0.8 with 9.
void match_par_defaut(benchmark::State& state) {
    Banc<> b;
    charger_defaut(b, static_cast<int>(state.range(0)));
    BoucleMinimale temoin(b.e); // arcs predicted too: the same tiles must come out
    temoin.avec_arcs = true;
    exiger_meme_fin(state, b, temoin);
    BoucleMinimale base(b.e);
    exiger_meme_fin(state, b, base);
    comparer(
        state, [&] { base.jouer(); }, [&] { b.jouer(); });
}
BENCHMARK(match_par_defaut)->Arg(1)->Arg(9)->Unit(benchmark::kMicrosecond);

// Keeping the texts available, unseen, against not keeping them: at most 1.05.
void textes_gardes(benchmark::State& state) {
    Banc<> sans;
    Banc<FenetresGardant> avec;
    charger_defaut(sans, static_cast<int>(state.range(0)));
    charger_defaut(avec, static_cast<int>(state.range(0)));
    comparer(
        state, [&] { sans.jouer(); }, [&] { avec.jouer(); });
}
BENCHMARK(textes_gardes)->Arg(1)->Arg(9)->Unit(benchmark::kMicrosecond);

void preparer(Etat& e) {
    for (int i = 1; i <= 9; ++i) {
        e.VitesseLin(i) = 1;
        e.VitesseRot(i) = 0.9F;
        e.Entraxe(i) = 10;
        e.XInit(i) = 100;
        e.YInit(i) = 100;
        e.XmInit(i) = 100;
        e.YmInit(i) = 100;
        e.DistExtr(i) = 20;
    }
    initDamier(e);
}

void ajouter(Etat& e, Nom10 action, int p1, int p2) {
    e.TrajNbActions(1) = e.TrajNbActions(1) + 1;
    e.TrajAction(1, e.TrajNbActions(1)) = action;
    e.TrajParam1(1, e.TrajNbActions(1)) = p1;
    e.TrajParam2(1, e.TrajNbActions(1)) = p2;
}

// Arcs, each with its prediction, against the minimal loop doing the same: at most 1.1.
void arcs_avec_prediction(benchmark::State& state) {
    Banc<> b;
    preparer(b.e);
    for (const Nom10& arc :
         {actions::VIRAVDR, actions::VIRAVGA, actions::VIRARDR, actions::VIRARGA}) {
        for (int n = 0; n < 25; ++n)
            ajouter(b.e, arc, 90 + 10 * n, 20 + 5 * n);
    }
    BoucleMinimale base(b.e);
    base.avec_arcs = true;
    exiger_meme_fin(state, b, base);
    comparer(
        state, [&] { base.jouer(); }, [&] { b.jouer(); });
}
BENCHMARK(arcs_avec_prediction)->Unit(benchmark::kMicrosecond);

// A search that never finds its beacon, a whole match long: at most 1.1.
void recherche_de_balise(benchmark::State& state) {
    Banc<> b;
    preparer(b.e);
    b.e.PointY = {105, 100, 0}; // closer than the sensor line is long
    ajouter(b.e, actions::BALISE_DRO, 0, 0);
    BoucleMinimale base(b.e);
    exiger_meme_fin(state, b, base);
    comparer(
        state, [&] { base.jouer(); }, [&] { b.jouer(); });
}
BENCHMARK(recherche_de_balise)->Unit(benchmark::kMicrosecond);

// The longest walk that ends, 32767 steps: under 1 ms.
void marche_la_plus_longue(benchmark::State& state) {
    Banc<> b;
    preparer(b.e);
    for (auto _ : state) {
        b.e.NbreCarreaux = 0;
        calculer_nbre_carreaux(b.e, 0, 15, 32767, 15);
    }
}
BENCHMARK(marche_la_plus_longue)->Unit(benchmark::kMicrosecond);

} // namespace
