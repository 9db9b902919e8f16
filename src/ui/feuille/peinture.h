#pragma once

#include "feuille/page.h"
#include "feuille/vue_match.h"

#include <string>

class QPagedPaintDevice;

/// Paints the sheet on a printer or into a PDF: black on white, whatever the desktop's colours.
void imprimer_page(QPagedPaintDevice& papier, const Page& page, const Etat& e, const Analyse& a);
/// The sheet as a PDF of one A4 page.
std::string page_en_pdf(const Page& page, const Etat& e, const Analyse& a);

/// A picture of the match as the bytes of a file.
std::string vue_en_png(const Etat& e, const Analyse& a, const VueDuMatch& vue, TailleImage taille);
std::string vue_en_pdf(const Etat& e, const Analyse& a, const VueDuMatch& vue, TailleImage taille);
