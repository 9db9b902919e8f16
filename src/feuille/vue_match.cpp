#include "feuille/vue_match.h"

#include "analyse/trace.h"
#include "analyse/verdict.h"
#include "draw/disposition.h"
#include "draw/robot.h"
#include "draw/silhouette.h"
#include "draw/svg.h"
#include "draw/table.h"
#include "feuille/placement.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <memory>

namespace {

constexpr double lettres_des_cotes = 12; ///< pixels

/// The state's copy that the table is painted from: all of it, whatever a run left to redraw.
void peindre_la_table(const Etat& e, Surface& s) {
    const auto copie = std::make_unique<Etat>(e);
    copie->ZoneRedessin = {0, e.XMax, 0, e.YMax};
    peindre_table(*copie, s, arrondir16(std::min(twips_par_pixel / s.cm_par_pixel(), 32e3)));
}

void peindre_le_robot(const Etat& e, int i, const PoseTick& p, Surface& s) {
    Silhouette(e, i).peindre(p.x, p.y, p.cap, s);
    peindre_contour(Contour(e, i), p.x, p.y, p.cap, s);
}

void etiquette(PointTable milieu, const std::string& texte, Surface& s) {
    const double pixel = s.cm_par_pixel();
    const double l = (static_cast<double>(texte.size()) * 0.6 + 1) * lettres_des_cotes * pixel / 2;
    const double h = 0.75 * lettres_des_cotes * pixel;
    s.polygone(std::array<PointTable, 4>{{{milieu.x - l, milieu.y - h},
                                          {milieu.x + l, milieu.y - h},
                                          {milieu.x + l, milieu.y + h},
                                          {milieu.x - l, milieu.y + h}}},
               couleurs::blanc);
    s.texte(milieu, lettres_des_cotes, couleurs::noir, texte);
}

void cote(PointTable a, PointTable b, double cm, Surface& s) {
    s.epaisseur(3);
    s.ligne(a.x, a.y, b.x, b.y, couleurs::noir);
    s.epaisseur(1);
    s.ligne(a.x, a.y, b.x, b.y, couleurs::blanc);
    constexpr double vers_le_bord = 0.7; // beside the robot stand other labels
    etiquette({a.x + vers_le_bord * (b.x - a.x), a.y + vers_le_bord * (b.y - a.y)}, dixiemes(cm),
              s);
}

void coter(const Etat& e, int i, Surface& s) {
    const Placement p = placement_de(e, i);
    const PointTable r = p.reference;
    cote(r, {p.horizontale.bord == "gauche" ? 0.0 : double(e.XMax), r.y}, p.horizontale.cm, s);
    cote(r, {r.x, p.verticale.bord == "bas" ? 0.0 : double(e.YMax)}, p.verticale.cm, s);
}

} // namespace

TailleImage taille_image(const Etat& e, int largeur) {
    const double rapport = (e.YMax + 2.0 * marge_table) / std::max(e.XMax + 2.0 * marge_table, 1.0);
    const double hauteur =
        std::clamp(std::round(largeur * rapport), 1.0, double(cote_maximal_image));
    return {largeur, static_cast<int>(hauteur)};
}

void peindre_vue(const Etat& e, const Analyse& a, const VueDuMatch& vue, Surface& s) {
    s.coordonnees(-marge_table, e.YMax + marge_table, e.XMax + marge_table, -marge_table);
    peindre_la_table(e, s);
    const MatchCalcule& m = a.match;
    OptionsTrace options;
    if (vue.temps)
        options.jusqu_a = *vue.temps;
    options.secondes = options.actions = vue.etiquettes;
    if (vue.constats)
        options.constats = a.constats;
    if (vue.trace)
        dessiner_trace(e, m, options, s);
    const int robots = std::min(m.NbRobot, robots_des_fichiers);
    for (int i = 1; i <= robots; ++i)
        peindre_le_robot(e, i, m.pose(i, std::clamp(vue.temps.value_or(0), 0, m.duree)), s);
    for (int i = 1; vue.cotes && i <= robots; ++i)
        coter(e, i, s);
}

std::string vue_en_svg(const Etat& e, const Analyse& a, const VueDuMatch& vue, TailleImage taille) {
    SurfaceSvg svg(taille.largeur, taille.hauteur);
    peindre_vue(e, a, vue, svg);
    return svg.document(a.projet + (vue.temps ? ", " + secondes(*vue.temps) : std::string()));
}
