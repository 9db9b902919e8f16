#pragma once

#include "base/texte.h"
#include "draw/surface.h"

#include <string>
#include <vector>

/// Writes every drawing call into a list: "boite_pleine 0 0 200 320 #008000".
class SurfaceNotee final : public Surface {
public:
    std::vector<std::string> appels;
    Couleur trait, fond;

    void coordonnees(double, double, double, double) override {}
    void couleur_trait(Couleur c) override { trait = c; }
    void couleur_fond(Couleur c) override { fond = c; }
    void fond_plein(bool plein) override { appels.emplace_back(plein ? "plein" : "transparent"); }
    void trait_pointille(bool p) override { appels.emplace_back(p ? "pointille" : "continu"); }
    void epaisseur(Entier16 pixels) override { noter("epaisseur", {double(pixels)}, ""); }
    void boite_pleine(double x1, double y1, double x2, double y2) override {
        noter("boite_pleine", {x1, y1, x2, y2}, nom(trait));
    }
    void boite(double x1, double y1, double x2, double y2, Couleur c) override {
        noter("boite", {x1, y1, x2, y2}, nom(c));
    }
    void ligne(double x1, double y1, double x2, double y2, Couleur c) override {
        noter("ligne", {x1, y1, x2, y2}, nom(c));
    }
    void cercle(double x, double y, double r, Couleur c) override {
        noter("cercle", {x, y, r}, nom(fond) + "/" + nom(c));
    }
    void arc(double x, double y, double r, Couleur c, double debut, double fin,
             double aspect) override {
        noter("arc", {x, y, r, debut, fin, aspect}, nom(c));
    }
    void opacite(double part) override { noter("opacite", {part}, ""); }
    void chemin(std::span<const PointTable> points, Couleur c) override {
        noter("chemin", points, nom(c));
    }
    void polygone(std::span<const PointTable> points, Couleur c) override {
        noter("polygone", points, nom(c));
    }
    void reunion(std::span<const Forme> formes, Couleur c) override {
        for (const Forme& forme : formes)
            noter("reunion", forme, nom(c));
    }
    void repere(PointTable p, double rayon, Couleur c, std::string_view bulle) override {
        noter("repere", {p.x, p.y, rayon}, nom(c) + " " + std::string(bulle));
    }
    void texte(PointTable p, double hauteur, Couleur c, std::string_view texte) override {
        noter("texte", {p.x, p.y, hauteur}, nom(c) + " " + std::string(texte));
    }
    double cm_par_pixel() const override { return 0.5; }

private:
    static std::string nom(Couleur c) {
        return std::to_string(c.rouge) + "," + std::to_string(c.vert) + "," +
               std::to_string(c.bleu);
    }
    void noter(std::string appel, std::span<const PointTable> points, const std::string& fin) {
        std::vector<double> valeurs;
        for (const PointTable& p : points)
            valeurs.insert(valeurs.end(), {p.x, p.y});
        noter(std::move(appel), valeurs, fin);
    }
    void noter(std::string appel, const std::vector<double>& valeurs, const std::string& fin) {
        for (const double v : valeurs)
            appel.append(" ").append(texte_double15(v).vue());
        appels.push_back(fin.empty() ? appel : appel + " " + fin);
    }
};
