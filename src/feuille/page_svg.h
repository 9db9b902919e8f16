#pragma once

#include "feuille/page.h"
#include "feuille/vue_match.h"

#include <string>

/// Size of the table's picture on a page, in its pixels.
TailleImage taille_sur_page(const Page& page);
/// What the sheet's picture shows: the whole trace, robots and distances at the start.
VueDuMatch vue_de_feuille(const Analyse& a);
/// The page as an SVG picture of A4 size.
std::string page_en_svg(const Page& page, const Etat& e, const Analyse& a);
