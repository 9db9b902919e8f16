#include "feuille/page_svg.h"

#include "base/texte.h"
#include "draw/svg.h"
#include "feuille/largeur_texte.h"

#include <cmath>

namespace {

std::string nombre(double valeur) {
    return std::string(texte_double15(std::round(valeur * 1e3) / 1e3).vue());
}

std::string attribut(const char* nom, double valeur) {
    return std::string(" ") + nom + "=\"" + nombre(valeur) + "\"";
}

std::string texte_svg(const TexteDePage& t) {
    return "<text" + attribut("x", t.x) + attribut("y", t.y) +
           attribut("font-size", t.corps * mm_par_point) + (t.gras ? " font-weight=\"bold\"" : "") +
           ">" + echapper_svg(t.texte) + "</text>\n";
}

std::string filet_svg(const FiletDePage& f) {
    return "<line" + attribut("x1", f.x1) + attribut("y1", f.y1) + attribut("x2", f.x2) +
           attribut("y2", f.y2) + " stroke=\"" + couleur_svg(f.couleur) +
           "\" stroke-width=\"0.2\"/>\n";
}

} // namespace

TailleImage taille_sur_page(const Page& page) {
    return {static_cast<int>(page.image_largeur / pixel_de_page),
            static_cast<int>(page.image_hauteur / pixel_de_page)};
}

// Labels of more robots hide each other and the table.
VueDuMatch vue_de_feuille(const Analyse& a) {
    return {.temps = {},
            .trace = true,
            .constats = true,
            .etiquettes = a.match.NbRobot <= 3,
            .cotes = a.match.NbRobot <= 2};
}

std::string page_en_svg(const Page& page, const Etat& e, const Analyse& a) {
    std::string svg = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                      "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"210mm\" height=\"297mm\" "
                      "viewBox=\"0 0 210 297\" font-family=\"DejaVu Sans, Verdana, sans-serif\">\n"
                      "<rect width=\"210\" height=\"297\" fill=\"#ffffff\"/>\n";
    const std::string image = vue_en_svg(e, a, vue_de_feuille(a), taille_sur_page(page));
    svg += "<g transform=\"translate(" + nombre(page.image_x) + " " + nombre(page.image_y) +
           ") scale(" + nombre(pixel_de_page) + ")\">\n" + image.substr(image.find("<svg")) +
           "</g>\n";
    for (const FiletDePage& filet : page.filets)
        svg += filet_svg(filet);
    for (const TexteDePage& texte : page.textes)
        svg += texte_svg(texte);
    return svg + "</svg>\n";
}
