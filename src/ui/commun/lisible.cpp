#include "ui/commun/lisible.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace {

// The light of each value of a channel of sRGB, 0 to 1.
std::array<double, 256> lumieres() {
    std::array<double, 256> resultat{};
    for (std::size_t i = 0; i < resultat.size(); ++i) {
        const double v = static_cast<double>(i) / 255;
        resultat[i] = v <= 0.04045 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4);
    }
    return resultat;
}

// Relative luminance of sRGB, 0 to 1. A palette asks for it thousands of times.
double clarte(const QColor& c) {
    static const std::array<double, 256> table = lumieres();
    const auto lineaire = [](int canal) { return table[static_cast<std::size_t>(canal)]; };
    return 0.2126 * lineaire(c.red()) + 0.7152 * lineaire(c.green()) + 0.0722 * lineaire(c.blue());
}

double pire_contraste(const QColor& encre, std::initializer_list<QColor> fonds) {
    double pire = 21;
    for (const QColor& fond : fonds)
        pire = std::min(pire, contraste(encre, fond));
    return pire;
}

/// A text's role and those that may lie behind it.
struct Paire {
    QPalette::ColorRole texte;
    QPalette::ColorRole fonds[3];
};

using P = QPalette;
constexpr Paire paires[] = {
    {P::WindowText, {P::Window, P::Window, P::Window}},
    {P::Text, {P::Base, P::AlternateBase, P::Window}},
    {P::ButtonText, {P::Button, P::Button, P::Window}},
    {P::PlaceholderText, {P::Base, P::AlternateBase, P::Window}},
    {P::Link, {P::Window, P::Base, P::AlternateBase}},
    {P::LinkVisited, {P::Window, P::Base, P::AlternateBase}},
    {P::ToolTipText, {P::ToolTipBase, P::ToolTipBase, P::ToolTipBase}},
    {P::Highlight, {P::HighlightedText, P::HighlightedText, P::HighlightedText}}, // the ground
};

} // namespace

QColor melange(const QColor& encre, const QColor& fond, double part) {
    const auto canal = [part](int de, int vers) {
        return static_cast<int>(std::lround(de + (vers - de) * part));
    };
    return {canal(fond.red(), encre.red()), canal(fond.green(), encre.green()),
            canal(fond.blue(), encre.blue())};
}

double contraste(const QColor& encre, const QColor& fond) {
    const double a = clarte(melange(encre, fond, encre.alphaF())) + 0.05;
    const double b = clarte(fond) + 0.05;
    return std::max(a, b) / std::min(a, b);
}

QColor lisible(QColor encre, std::initializer_list<QColor> fonds) {
    encre = melange(encre, *fonds.begin(), encre.alphaF());
    const bool eclaircir = pire_contraste(Qt::white, fonds) > pire_contraste(Qt::black, fonds);
    const QColor vers = eclaircir ? Qt::white : Qt::black;
    constexpr int pas = 32;
    QColor essai = encre;
    for (int i = 1; i <= pas && pire_contraste(essai, fonds) < contraste_lisible; ++i)
        essai = melange(vers, encre, double(i) / pas);
    return essai;
}

void rendre_lisible(QPalette& palette) {
    for (const auto groupe : {P::Active, P::Inactive, P::Disabled})
        for (const Paire& paire : paires) {
            const auto couleur = [&](P::ColorRole role) { return palette.color(groupe, role); };
            const QColor voulue =
                lisible(couleur(paire.texte), {couleur(paire.fonds[0]), couleur(paire.fonds[1]),
                                               couleur(paire.fonds[2])});
            if (voulue != couleur(paire.texte))
                palette.setColor(groupe, paire.texte, voulue);
        }
}

bool est_sombre(const QPalette& palette) {
    return palette.color(QPalette::Base).lightness() < 128;
}

QColor couleur_d_alerte(const QPalette& palette) {
    return lisible(QColor(est_sombre(palette) ? 0xff966e : 0xb02400),
                   {palette.color(QPalette::Window), palette.color(QPalette::Base),
                    palette.color(QPalette::AlternateBase)});
}
