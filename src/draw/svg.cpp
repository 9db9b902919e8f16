#include "draw/svg.h"

#include "base/texte.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace {

// Four decimals of a centimetre are more than any screen shows.
TexteCourt decimal(double valeur) {
    return texte_double15(std::round(valeur * 1e4) / 1e4);
}

} // namespace

std::string couleur_svg(Couleur c) {
    constexpr std::string_view chiffres = "0123456789abcdef";
    std::string texte = "#";
    for (const unsigned octet : {c.rouge, c.vert, c.bleu}) {
        texte += chiffres[octet >> 4U];
        texte += chiffres[octet & 15U];
    }
    return texte;
}

std::string echapper_svg(std::string_view texte) {
    std::string resultat;
    for (const char c : texte) {
        if (c == '&')
            resultat += "&amp;";
        else if (c == '<')
            resultat += "&lt;";
        else if (static_cast<unsigned char>(c) >= 0x20)
            resultat += c;
    }
    return resultat;
}

void SurfaceSvg::coordonnees(double gauche, double haut, double droite, double bas) {
    gauche_ = gauche;
    haut_ = haut;
    droite_ = droite;
    bas_ = bas;
}

void SurfaceSvg::nombre(std::string_view attribut, double valeur) {
    corps_.append(" ").append(attribut).append("=\"").append(decimal(valeur).vue()).append("\"");
}

// SVG's y grows downwards: every y changes its sign.
void SurfaceSvg::rectangle(double x1, double y1, double x2, double y2) {
    corps_ += "<rect";
    nombre("x", std::min(x1, x2));
    nombre("y", -std::max(y1, y2));
    nombre("width", std::fabs(x2 - x1));
    nombre("height", std::fabs(y2 - y1));
}

void SurfaceSvg::contour(Couleur couleur, bool rempli) {
    corps_ += " fill=\"" + (rempli ? couleur_svg(fond_) : "none") + "\" stroke=\"" +
              couleur_svg(couleur) + "\"";
    nombre("stroke-width", std::max(epaisseur_, 1));
    if (pointille_)
        corps_ += " stroke-dasharray=\"1 2\"";
    if (opacite_ < 1)
        nombre("opacity", opacite_);
    corps_ += " vector-effect=\"non-scaling-stroke\"/>\n";
}

void SurfaceSvg::plein(Couleur couleur) {
    corps_ += " fill=\"" + couleur_svg(couleur) + "\" stroke=\"none\"";
    if (opacite_ < 1)
        nombre("opacity", opacite_);
}

void SurfaceSvg::boite_pleine(double x1, double y1, double x2, double y2) {
    rectangle(x1, y1, x2, y2);
    plein(trait_);
    corps_ += "/>\n";
}

void SurfaceSvg::boite(double x1, double y1, double x2, double y2, Couleur couleur) {
    rectangle(x1, y1, x2, y2);
    contour(couleur, plein_);
}

void SurfaceSvg::ligne(double x1, double y1, double x2, double y2, Couleur couleur) {
    corps_ += "<line";
    nombre("x1", x1);
    nombre("y1", -y1);
    nombre("x2", x2);
    nombre("y2", -y2);
    contour(couleur, false);
}

void SurfaceSvg::cercle(double x, double y, double rayon, Couleur couleur) {
    corps_ += "<circle";
    nombre("cx", x);
    nombre("cy", -y);
    nombre("r", std::fabs(rayon));
    contour(couleur, plein_);
}

void SurfaceSvg::arc(double x, double y, double rayon, Couleur couleur, double debut, double fin,
                     double aspect) {
    const double rx = aspect > 1 ? rayon / aspect : rayon;
    const double ry = aspect > 1 ? rayon : rayon * aspect;
    if (ry == 0)
        return ligne(x - rx, y, x + rx, y, couleur); // a flat ellipse
    const std::array<double, 7> valeurs{
        x + rx * std::cos(debut), -(y + ry * std::sin(debut)), rx, ry, fin - debut > Pi ? 1.0 : 0.0,
        x + rx * std::cos(fin),   -(y + ry * std::sin(fin))};
    constexpr std::array<std::string_view, 7> devant{"<path d=\"M", " ",   " A", " ",
                                                     " 0 ",         " 0 ", " "};
    for (std::size_t i = 0; i < valeurs.size(); ++i)
        corps_.append(devant[i]).append(decimal(valeurs[i]).vue());
    corps_ += "\"";
    contour(couleur, false);
}

void SurfaceSvg::points(std::span<const PointTable> points) {
    for (const PointTable& p : points)
        corps_.append(decimal(p.x).vue()).append(",").append(decimal(-p.y).vue()).append(" ");
}

void SurfaceSvg::chemin(std::span<const PointTable> points, Couleur couleur) {
    corps_ += "<polyline points=\"";
    this->points(points);
    corps_ += "\"";
    contour(couleur, false);
}

void SurfaceSvg::polygone(std::span<const PointTable> points, Couleur couleur) {
    corps_ += "<polygon points=\"";
    this->points(points);
    corps_ += "\"";
    plein(couleur);
    corps_ += "/>\n";
}

void SurfaceSvg::reunion(std::span<const Forme> formes, Couleur couleur) {
    corps_ += "<path d=\"";
    for (const Forme& forme : formes) {
        corps_ += "M";
        points(forme);
        corps_ += "Z";
    }
    corps_ += "\" fill-rule=\"nonzero\"";
    plein(couleur);
    corps_ += "/>\n";
}

void SurfaceSvg::repere(PointTable centre, double rayon, Couleur couleur, std::string_view bulle) {
    corps_ += "<circle";
    nombre("cx", centre.x);
    nombre("cy", -centre.y);
    nombre("r", rayon);
    plein(couleur);
    corps_ += "><title>" + echapper_svg(bulle) + "</title></circle>\n";
}

void SurfaceSvg::texte(PointTable milieu, double hauteur, Couleur couleur, std::string_view texte) {
    corps_ += "<text";
    nombre("x", milieu.x);
    nombre("y", -milieu.y);
    nombre("font-size", hauteur * cm_par_pixel()); // user units are centimetres
    corps_ += " text-anchor=\"middle\" dominant-baseline=\"central\" font-family=\"sans-serif\"";
    plein(couleur);
    corps_ += ">" + echapper_svg(texte) + "</text>\n";
}

std::string SurfaceSvg::document(std::string_view titre) const {
    std::string texte = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                        "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"";
    texte.append(decimal(largeur_).vue()).append("\" height=\"").append(decimal(hauteur_).vue());
    texte += "\" viewBox=\"";
    for (const double valeur : {gauche_, -haut_, droite_ - gauche_})
        texte.append(decimal(valeur).vue()).append(" ");
    texte.append(decimal(haut_ - bas_).vue());
    // The window squeezes the margin into its picture: the two scales differ by a hair.
    texte += "\" preserveAspectRatio=\"none\">\n<title>" + echapper_svg(titre) + "</title>\n";
    return texte + corps_ + "</svg>\n";
}
