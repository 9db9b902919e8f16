#include "edition/alignement.h"

#include "config/document.h"

#include <algorithm>

namespace {

Bornes reunies(const Bornes& a, const Bornes& b) {
    return {std::min(a.gauche, b.gauche), std::min(a.bas, b.bas), std::max(a.droite, b.droite),
            std::max(a.haut, b.haut)};
}

Vecteur vers_le_bord(const Bornes& b, const Bornes& tout, Bord bord) {
    switch (bord) {
    case Bord::gauche:
        return {tout.gauche - b.gauche, 0};
    case Bord::droite:
        return {tout.droite - b.droite, 0};
    case Bord::haut:
        return {0, tout.haut - b.haut};
    case Bord::bas:
        return {0, tout.bas - b.bas};
    case Bord::milieu_x:
        return {tout.milieu().x - b.milieu().x, 0};
    case Bord::milieu_y:
        break;
    }
    return {0, tout.milieu().y - b.milieu().y};
}

} // namespace

std::vector<Vecteur> ecarts_au_bord(const Document& document, const Choix& choix, Bord bord) {
    Choix places = choix;
    std::erase_if(places, [&](std::size_t i) { return document[i].cle == "M"; });
    if (places.size() < 2)
        throw ErreurExecution("Choisissez au moins deux objets à aligner");
    Bornes tout = formes::bornes(document[places.front()]);
    for (const std::size_t i : places)
        tout = reunies(tout, formes::bornes(document[i]));
    std::vector<Vecteur> ecarts;
    for (const std::size_t i : choix)
        ecarts.push_back(document[i].cle == "M"
                             ? Vecteur{}
                             : vers_le_bord(formes::bornes(document[i]), tout, bord));
    return ecarts;
}
