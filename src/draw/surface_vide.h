#pragma once

#include "draw/surface.h"

/// Draws nothing: only the drawing's arithmetic, and its errors, remain. Whoever wants a few calls
/// overrides those.
class SurfaceVide : public Surface {
public:
    virtual ~SurfaceVide() = default;

    void coordonnees(double, double, double, double) override {}
    void couleur_trait(Couleur) override {}
    void couleur_fond(Couleur) override {}
    void fond_plein(bool) override {}
    void trait_pointille(bool) override {}
    void epaisseur(Entier16) override {}
    void boite_pleine(double, double, double, double) override {}
    void boite(double, double, double, double, Couleur) override {}
    void ligne(double, double, double, double, Couleur) override {}
    void cercle(double, double, double, Couleur) override {}
    void arc(double, double, double, Couleur, double, double, double) override {}
    void opacite(double) override {}
    void chemin(std::span<const PointTable>, Couleur) override {}
    void polygone(std::span<const PointTable>, Couleur) override {}
    void reunion(std::span<const Forme>, Couleur) override {}
    void repere(PointTable, double, Couleur, std::string_view) override {}
    void texte(PointTable, double, Couleur, std::string_view) override {}
    double cm_par_pixel() const override { return 1; }
};
