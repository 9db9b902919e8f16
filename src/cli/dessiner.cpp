#include "cli/choix.h"
#include "cli/sortie.h"
#include "cli/verbes.h"
#include "draw/robot.h"
#include "draw/svg.h"
#include "draw/table.h"

#include <array>
#include <iostream>
#include <limits>
#include <vector>

namespace {

struct OptionsDessiner {
    ChoixDeLigne choix;
    std::int32_t temps = 0;
    bool trace = false;
    std::string sortie;
};

// Where each robot's reference point went; standing still adds no point.
class FenetresDessiner final : public FenetresTerminal {
public:
    using FenetresTerminal::FenetresTerminal;

    void apres_actions() override {
        for (int i = 1; i <= e.NbRobot; ++i) {
            const PointTable p{e.XRobot(i), e.YRobot(i)};
            if (chemins(i).empty() || chemins(i).back().x != p.x || chemins(i).back().y != p.y)
                chemins(i).push_back(p);
            if (e.TempsEcoule % 100 == 0)
                secondes(i).push_back(p);
        }
    }

    Tableau<std::vector<PointTable>, robots_max> chemins;
    Tableau<std::vector<PointTable>, robots_max> secondes; ///< one point a second
};

constexpr std::array<Couleur, robots_des_fichiers> couleurs_robots{{{0, 255, 255},
                                                                    {255, 140, 0},
                                                                    {255, 105, 180},
                                                                    {173, 255, 47},
                                                                    {186, 130, 255},
                                                                    {255, 215, 0},
                                                                    {135, 206, 250},
                                                                    {255, 160, 122},
                                                                    {64, 224, 208}}};

void tracer_chemins(const Etat& e, const FenetresDessiner& f, SurfaceSvg& svg) {
    constexpr double rayon_seconde = 0.8; // cm; every tenth one is larger, with a white heart
    for (int i = 1; i <= e.NbRobot; ++i) {
        const Couleur couleur = couleurs_robots[static_cast<std::size_t>(i - 1)];
        svg.epaisseur(4);
        svg.chemin(f.chemins(i), couleurs::noir);
        svg.epaisseur(2);
        svg.chemin(f.chemins(i), couleur);
        int seconde = 0;
        for (const PointTable& p : f.secondes(i)) {
            ++seconde;
            const std::string bulle =
                "robot " + std::to_string(i) + ", " + std::to_string(seconde) + " s";
            const bool dizaine = seconde % 10 == 0;
            svg.repere(p, dizaine ? 2.5 * rayon_seconde : rayon_seconde, couleurs::noir, bulle);
            if (dizaine)
                svg.repere(p, 1.5 * rayon_seconde, couleurs::blanc, bulle);
        }
        svg.epaisseur(1);
    }
}

std::string peindre(Etat& e, const FenetresDessiner& f, Image image, bool avec_trace) {
    SurfaceSvg svg(image.largeur, image.hauteur);
    svg.coordonnees(-marge_table, e.YMax + marge_table, e.XMax + marge_table, -marge_table);
    e.ZoneRedessin = {0, e.XMax, 0, e.YMax};
    peindre_table(e, svg, image.Echelle);
    if (avec_trace)
        tracer_chemins(e, f, svg);
    peindre_robots(e, svg);
    return svg.document(e.NomProjet + ", " + std::to_string(e.TempsEcoule / 100) + " s");
}

int dessiner(const OptionsDessiner& options) {
    const auto sortie = place_demandee(options.sortie);
    const auto etat = std::make_unique<Etat>();
    FenetresDessiner fenetres(*etat, std::cerr);
    Simulation simulation(*etat, fenetres, options.choix);
    if (!simulation.demarree())
        return fenetres.code_de_sortie();
    if (options.temps > 0)
        simulation.jouer(options.temps);
    if (!fenetres.terminee())
        ecrire_resultat(sortie, peindre(*etat, fenetres, simulation.image(), options.trace));
    return fenetres.code_de_sortie();
}

} // namespace

void declarer_dessiner(CLI::App& app, int& code_de_sortie) {
    const auto options = std::make_shared<OptionsDessiner>();
    CLI::App* verbe = app.add_subcommand("dessiner", "Dessine la table et les robots en SVG");
    ajouter_dossier(*verbe, options->choix);
    ajouter_projet(*verbe, options->choix);
    ajouter_horizontale(*verbe, options->choix);
    verbe->add_option("--temps", options->temps, "Moment du match, en centièmes de seconde")
        ->check(entier_entre(0, std::numeric_limits<std::int32_t>::max()))
        ->type_name("CENTIEMES");
    verbe->add_flag("--trace", options->trace,
                    "Ajoute le chemin des robots, un repère par seconde");
    verbe->add_option("--sortie", options->sortie, "Image à écrire")
        ->required()
        ->type_name("F.svg");
    verbe->callback([options, &code_de_sortie] { code_de_sortie = dessiner(*options); });
}
