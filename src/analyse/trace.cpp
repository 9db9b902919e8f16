#include "analyse/trace.h"

#include "analyse/balayage.h"
#include "analyse/etiquettes.h"
#include "draw/couleurs_robots.h"
#include "draw/silhouette.h"
#include "draw/table.h"
#include "sim/actions.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string>
#include <utility>

namespace {

// Lengths in pixels.
constexpr double moitie_d_une_seconde = 3.5; ///< of a tick mark
constexpr double moitie_de_cinq = 6;
constexpr double lettres = 11;
constexpr double largeur_d_une_lettre = 6.5;
constexpr double marge_d_une_etiquette = 3;
constexpr double rayon_de_pause = 3.5; ///< of the shortest; a second adds about as much
constexpr double rayon_max_de_pause = 9;
constexpr double demi_fleche = 5;
constexpr double hauteur_de_constat = 20;
constexpr double meme_place = 3;

constexpr float pas_d_un_arc = 2; ///< degrees
constexpr double opacite_de_la_bande = 0.3;
constexpr double opacite_d_une_pause = 0.7;
constexpr double opacite_du_temps = 0.75;
constexpr int cinq_secondes = 500;

double entre(PointTable a, PointTable b) {
    return std::hypot(a.x - b.x, a.y - b.y);
}

// Read on black as well as the lightest of the colours.
Couleur eclaircie(Couleur c) {
    const auto vers_blanc = [](std::uint8_t v) {
        return static_cast<std::uint8_t>(v + (255 - v) * 2 / 5);
    };
    return {vers_blanc(c.rouge), vers_blanc(c.vert), vers_blanc(c.bleu)};
}

/// One place that several numbers in a row name.
struct Jalon {
    PointTable lieu;
    double cap;
    int premier, dernier;

    std::string texte() const {
        return std::to_string(premier) +
               (dernier > premier ? "–" + std::to_string(dernier) : std::string());
    }
};

class Peintre {
public:
    Peintre(const Etat& etat, const MatchCalcule& match, const OptionsTrace& options,
            Surface& surface)
        : e(etat),
          m(match),
          o(options),
          s(surface),
          pixel_(s.cm_par_pixel()),
          places_(e.XMax, e.YMax, pixel_) {}

    void peindre() {
        if (o.bande)
            pour_chacun([this](int i) { bande(i); });
        pour_chacun([this](int i) { chemin(i); });
        if (o.secondes)
            pour_chacun([this](int i) { secondes(i); });
        if (o.chemin)
            pour_chacun([this](int i) { pauses(i); });
        reserver_les_constats();
        if (o.actions)
            pour_chacun([this](int i) { numeros(i); });
        if (o.secondes)
            pour_chacun([this](int i) { temps(i); });
        constats();
        s.epaisseur(1);
    }

private:
    template <typename Fonction>
    void pour_chacun(Fonction f) {
        for (int i = 1; i <= std::min(m.NbRobot, robots_des_fichiers); ++i)
            if ((o.robot == 0 || o.robot == i) && !m.poses(i).empty())
                f(i);
    }

    Couleur couleur(int i) const { return o.couleur.value_or(couleur_robot(i)); }
    std::int32_t fin() const { return std::min(o.jusqu_a, m.duree); }
    PointTable lieu(int i, std::int32_t t) const {
        const PoseTick& p = m.pose(i, t);
        return {p.x, p.y};
    }
    bool pres(PointTable a, PointTable b) const { return entre(a, b) < meme_place * pixel_; }

    void bande(int i) {
        s.opacite(opacite_de_la_bande);
        s.reunion(balayage(e, m, i, fin()), couleur(i));
        s.opacite(1);
    }

    Forme points(int i) const {
        Forme resultat;
        for (const PoseTick& p : etapes(m, i, m.tick(fin()), pas_d_un_arc))
            if (resultat.empty() || entre(resultat.back(), {p.x, p.y}) > 0)
                resultat.push_back({p.x, p.y});
        return resultat;
    }

    void chemin(int i) {
        const Forme chemin = points(i);
        for (std::size_t k = 1; k < chemin.size(); ++k)
            places_.occuper(chemin[k - 1], chemin[k]);
        if (!o.chemin)
            return;
        s.epaisseur(4);
        s.chemin(chemin, couleurs::noir);
        s.epaisseur(2);
        s.trait_pointille(o.pointille);
        s.chemin(chemin, couleur(i));
        s.trait_pointille(false);
        if (chemin.size() > 1)
            fleche(m.pose(i, fin()), couleur(i));
    }

    void fleche(const PoseTick& p, Couleur couleur) {
        for (const auto& [d, c] :
             {std::pair(demi_fleche + 2, couleurs::noir), std::pair(demi_fleche, couleur)}) {
            const double n = d * pixel_;
            s.polygone(placee({{1.4 * n, 0}, {-n, n}, {-n, -n}}, p.x, p.y, p.cap), c);
        }
    }

    void secondes(int i) {
        PointTable avant = lieu(i, 0);
        for (std::int32_t t = 100; t <= fin(); t += 100) {
            const PointTable p = lieu(i, t);
            if (pres(p, avant))
                continue;
            avant = p;
            const double demi =
                (t % cinq_secondes == 0 ? moitie_de_cinq : moitie_d_une_seconde) * pixel_;
            const Forme trait = placee({{0, demi}, {0, -demi}}, p.x, p.y, m.pose(i, t).cap);
            for (const auto& [largeur, c] :
                 {std::pair(3, couleurs::noir), std::pair(1, couleurs::blanc)}) {
                s.epaisseur(largeur);
                s.ligne(trait[0].x, trait[0].y, trait[1].x, trait[1].y, c);
            }
        }
    }

    void pauses(int i) {
        for (const ActionJouee& a : m.actions(i)) {
            if (!actions::est(a.action, actions::Genre::pause) || a.debut > fin())
                continue;
            const std::int32_t duree = std::min(a.finie() ? a.fin : m.duree, fin()) - a.debut;
            const double rayon =
                std::min(rayon_de_pause * std::sqrt(1 + duree / 100.0), rayon_max_de_pause);
            const std::string bulle = "robot " + std::to_string(i) + ", action " +
                                      std::to_string(a.numero) + " : pause de " +
                                      std::to_string(duree / 100) + " s";
            const PointTable p{a.avant.x, a.avant.y};
            s.opacite(opacite_d_une_pause);
            s.repere(p, (rayon + 1.5) * pixel_, couleurs::noir, bulle);
            s.repere(p, rayon * pixel_, couleur(i), bulle);
            s.opacite(1);
            s.repere(p, pixel_, couleurs::noir, bulle);
        }
    }

    void joindre(std::vector<Jalon>& jalons, const Jalon& jalon) const {
        if (!jalons.empty() && pres(jalons.back().lieu, jalon.lieu))
            jalons.back().dernier = jalon.dernier;
        else
            jalons.push_back(jalon);
    }

    void numeros(int i) {
        std::vector<Jalon> jalons;
        for (const ActionJouee& a : m.actions(i))
            if (a.debut <= fin())
                joindre(jalons, {{a.avant.x, a.avant.y}, a.avant.cap, a.numero, a.numero});
        for (const Jalon& j : jalons)
            etiquette(j.texte(), j.lieu, j.cap - 90, couleur(i), couleur_lisible_sur(couleur(i)),
                      1);
    }

    // Until the plan is over: what stands still afterwards says nothing.
    void temps(int i) {
        const auto& actions = m.actions(i);
        const bool finies = actions.empty() || actions.back().finie();
        const std::int32_t dernier = finies ? (actions.empty() ? 0 : actions.back().fin) : fin();
        std::vector<Jalon> jalons;
        for (std::int32_t t = cinq_secondes; t <= std::min(dernier, fin()); t += cinq_secondes)
            joindre(jalons, {lieu(i, t), m.pose(i, t).cap, t / 100, t / 100});
        for (const Jalon& j : jalons)
            etiquette(j.texte() + " s", j.lieu, j.cap + 90, couleurs::noir, eclaircie(couleur(i)),
                      opacite_du_temps);
    }

    // A text on a card of its own, beside the place.
    void etiquette(const std::string& texte, PointTable lieu, double direction, Couleur fond,
                   Couleur encre, double opacite) {
        const auto lettres_du_texte = std::ranges::count_if(
            texte, [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; });
        const double l = (static_cast<double>(lettres_du_texte) * largeur_d_une_lettre +
                          2 * marge_d_une_etiquette) *
                         pixel_;
        const double h = (lettres + marge_d_une_etiquette) * pixel_;
        const auto libre = places_.placer(lieu, direction, l, h);
        if (!libre)
            return;
        const PointTable p = *libre;
        s.opacite(opacite);
        s.polygone(std::array<PointTable, 4>{{{p.x - l / 2, p.y - h / 2},
                                              {p.x + l / 2, p.y - h / 2},
                                              {p.x + l / 2, p.y + h / 2},
                                              {p.x - l / 2, p.y + h / 2}}},
                   fond);
        s.opacite(1);
        s.texte(p, lettres, encre, texte);
    }

    std::vector<PointTable> lieux_des_constats() const {
        std::vector<PointTable> lieux;
        for (const Constat& c : o.constats) {
            const bool vu = c.lieu && c.temps.value_or(0) <= fin() &&
                            (o.robot == 0 || c.robot == o.robot || c.autre == o.robot);
            if (!vu)
                continue;
            const PointTable p{c.lieu->x, c.lieu->y};
            if (std::ranges::none_of(lieux, [&](PointTable q) { return pres(p, q); }))
                lieux.push_back(p);
        }
        return lieux;
    }

    // A warning triangle that stands on the place, or hangs from it near the table's upper edge.
    double sens(PointTable p) const {
        return p.y + hauteur_de_constat * pixel_ > e.YMax + marge_table ? -1 : 1;
    }

    void reserver_les_constats() {
        for (const PointTable& p : lieux_des_constats())
            places_.occuper_autour({p.x, p.y + sens(p) * hauteur_de_constat / 2 * pixel_},
                                   hauteur_de_constat / 2 * pixel_);
    }

    void constats() {
        const double h = hauteur_de_constat * pixel_;
        for (const PointTable& p : lieux_des_constats()) {
            const double y = sens(p);
            for (const auto& [bord, c] :
                 {std::pair(0.0, couleurs::noir), std::pair(2 * pixel_, couleurs::jaune)}) {
                const double demi = 0.6 * h - 1.5 * bord;
                s.polygone(
                    placee({{0, y * 1.7 * bord}, {demi, y * (h - bord)}, {-demi, y * (h - bord)}},
                           p.x, p.y, 0),
                    c);
            }
            s.texte({p.x, p.y + y * 0.64 * h}, lettres, couleurs::noir, "!");
        }
    }

    const Etat& e;
    const MatchCalcule& m;
    const OptionsTrace& o;
    Surface& s;
    double pixel_; ///< cm
    PlacesLibres places_;
};

} // namespace

void dessiner_trace(const Etat& e, const MatchCalcule& m, const OptionsTrace& o, Surface& s) {
    Peintre(e, m, o, s).peindre();
}
