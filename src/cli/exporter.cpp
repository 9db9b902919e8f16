#include "cli/exporter.h"

#include "base/texte.h"
#include "cli/choix.h"
#include "cli/francais.h"
#include "cli/projet_analyse.h"
#include "cli/sortie.h"
#include "feuille/page_svg.h"
#include "feuille/trace_csv.h"

#include <algorithm>
#include <utility>

namespace {

struct OptionsExporter {
    ChoixDeLigne choix;
    std::string image, feuille, trace;
    int largeur = 1000;
    std::optional<std::int32_t> temps;
    bool sans_trace = false;
    std::vector<FormatImage> formats;
};

using Chemin = std::filesystem::path;

// "-" is an SVG picture on standard output.
const FormatImage& format_de(const OptionsExporter& options, const char* option,
                             const Chemin& fichier) {
    const std::string voulue = minuscules(fichier == "-" ? ".svg" : fichier.extension().string());
    const bool feuille = std::string_view(option) == "--feuille";
    std::string connues;
    for (const FormatImage& f : options.formats) {
        if (feuille && !f.feuille)
            continue;
        if (f.extension == voulue)
            return f;
        connues += (connues.empty() ? "" : ", ") + f.extension;
    }
    throw ErreurUsage(std::string(option) + " : « " + fichier.string() +
                      " » n'a pas une extension connue (" + connues + ")");
}

// One result would replace the other.
void refuser_le_meme(const std::vector<Chemin>& fichiers) {
    for (auto a = fichiers.begin(); a != fichiers.end(); ++a)
        if (!a->empty() && std::find(a + 1, fichiers.end(), *a) != fichiers.end())
            throw ErreurUsage("deux fois le même fichier : " + a->string());
}

int exporter(const OptionsExporter& options) {
    const Chemin image = place_demandee(options.image);
    const Chemin feuille = place_demandee(options.feuille);
    const Chemin trace = place_demandee(options.trace);
    if (image.empty() && feuille.empty() && trace.empty())
        throw ErreurUsage("rien à exporter : --image, --feuille ou --trace");
    refuser_le_meme({image, feuille, trace});
    const FormatImage* const d_image =
        image.empty() ? nullptr : &format_de(options, "--image", image);
    const FormatImage* const de_feuille =
        feuille.empty() ? nullptr : &format_de(options, "--feuille", feuille);
    ProjetAnalyse p(options.choix);
    const Analyse& a = p.analyse();
    if (d_image != nullptr)
        ecrire_resultat(image,
                        d_image->image(p.etat(), a,
                                       {.temps = options.temps, .trace = !options.sans_trace},
                                       taille_image(p.etat(), options.largeur)));
    if (de_feuille != nullptr) {
        const Feuille f =
            feuille_du_match(p.etat(), a, fichiers_du_projet(p.projet(), a.match.NbRobot),
                             date_lisible(std::time(nullptr)));
        ecrire_resultat(feuille, de_feuille->feuille(composer(f), p.etat(), a));
    }
    if (!trace.empty())
        ecrire_resultat(trace, trace_csv(*std::make_unique<Etat>(p.etat())));
    return p.code_de_sortie();
}

void ajouter_fichiers(CLI::App& verbe, OptionsExporter& options) {
    std::string images;
    std::string feuilles;
    for (const FormatImage& f : options.formats) {
        images += (images.empty() ? "F" : "|F") + f.extension;
        if (f.feuille)
            feuilles += (feuilles.empty() ? "F" : "|F") + f.extension;
    }
    verbe.add_option("--image", options.image, "La table, les robots et la trace")
        ->type_name(images);
    verbe.add_option("--largeur", options.largeur, "Largeur de l'image en pixels (1000)")
        ->check(entier_entre(1, cote_maximal_image))
        ->type_name("PIXELS");
    verbe
        .add_option("--temps", options.temps,
                    "Moment de l'image, en centièmes de seconde : les robots y sont, la trace va "
                    "jusque-là")
        ->check(entier_entre(0, dernier_tick(5)))
        ->type_name("CENTIEMES");
    verbe.add_flag("--sans-trace", options.sans_trace, "L'image sans la trace");
    verbe.add_option("--feuille", options.feuille, "La feuille de match, une page A4")
        ->type_name(feuilles);
    verbe.add_option("--trace", options.trace, "Les positions à chaque pas")->type_name("F.csv");
}

} // namespace

void declarer_exporter(CLI::App& app, int& code_de_sortie, std::vector<FormatImage> formats) {
    const auto options = std::make_shared<OptionsExporter>();
    options->formats = std::move(formats);
    options->formats.insert(options->formats.begin(), {".svg", vue_en_svg, page_en_svg});
    CLI::App* verbe =
        app.add_subcommand("exporter", "Écrit l'image, la feuille ou la trace du match");
    ajouter_dossier(*verbe, options->choix);
    ajouter_projet(*verbe, options->choix);
    verbe->add_option("--robots", options->choix.robots, "Nombre de robots")
        ->check(entier_entre(1, robots_des_fichiers))
        ->type_name("N");
    verbe->add_flag("--allege", options->choix.allege, "Traitement allégé : pas de 5 centièmes");
    ajouter_horizontale(*verbe, options->choix);
    ajouter_fichiers(*verbe, *options);
    verbe->callback([options, &code_de_sortie] { code_de_sortie = exporter(*options); });
}
