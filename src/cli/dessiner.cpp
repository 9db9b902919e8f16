#include "cli/choix.h"
#include "cli/sortie.h"
#include "cli/verbes.h"
#include "draw/robot.h"
#include "draw/silhouette.h"
#include "draw/sillages.h"
#include "draw/svg.h"
#include "draw/table.h"

#include <iostream>
#include <limits>

namespace {

struct OptionsDessiner {
    ChoixDeLigne choix;
    std::int32_t temps = 0;
    bool trace = false;
    bool lisible = false;
    std::string sortie;
};

class FenetresDessiner final : public FenetresTerminal {
public:
    using FenetresTerminal::FenetresTerminal;

    void apres_actions() override { sillages.noter(etat_); }

    Sillages sillages;
};

std::string peindre(Etat& e, const FenetresDessiner& f, Image image,
                    const OptionsDessiner& options) {
    SurfaceSvg svg(image.largeur, image.hauteur);
    svg.coordonnees(-marge_table, e.YMax + marge_table, e.XMax + marge_table, -marge_table);
    e.ZoneRedessin = {0, e.XMax, 0, e.YMax};
    peindre_table(e, svg, image.Echelle);
    if (options.trace)
        f.sillages.peindre(e, svg);
    for (int i = 1; options.lisible && i <= e.NbRobot; ++i)
        Silhouette(e, i).peindre(e.XRobot(i), e.YRobot(i), e.CapRobot(i), svg);
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
        ecrire_resultat(sortie, peindre(*etat, fenetres, simulation.image(), options));
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
    verbe->add_flag("--lisible", options->lisible,
                    "Remplit les robots de leur couleur, avec leur numéro et leur avant");
    verbe->add_option("--sortie", options->sortie, "Image à écrire")
        ->required()
        ->type_name("F.svg");
    verbe->callback([options, &code_de_sortie] { code_de_sortie = dessiner(*options); });
}
