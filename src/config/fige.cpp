#include "config/fige.h"

#include "base/erreurs.h"

#include <charconv>
#include <cmath>

void LectureFigee::refuser() {
    throw ErreurExecution("le fichier de reprise est abîmé");
}

std::string_view LectureFigee::suivant() {
    std::size_t longueur = 0;
    const char* fin = reste_.data() + reste_.size();
    const auto lu = std::from_chars(reste_.data(), fin, longueur);
    if (lu.ec != std::errc() || lu.ptr == fin || *lu.ptr != ':')
        refuser();
    const std::string_view suite = reste_.substr(std::size_t(lu.ptr - reste_.data()) + 1);
    if (longueur > suite.size())
        refuser();
    reste_ = suite.substr(longueur);
    return suite.substr(0, longueur);
}

std::size_t LectureFigee::nombre() {
    const std::string_view texte = suivant();
    std::size_t n = 0;
    const auto lu = std::from_chars(texte.data(), texte.data() + texte.size(), n);
    if (lu.ec != std::errc() || lu.ptr != texte.data() + texte.size() || n > reste_.size())
        refuser();
    return n;
}

float LectureFigee::simple() {
    const std::string_view texte = suivant();
    float x = 0;
    const auto lu = std::from_chars(texte.data(), texte.data() + texte.size(), x);
    if (lu.ec != std::errc() || lu.ptr != texte.data() + texte.size() || !std::isfinite(x))
        refuser();
    return x;
}
