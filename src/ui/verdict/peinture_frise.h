#pragma once

#include "analyse/frise.h"
#include "ui/commun/axe.h"
#include "ui/verdict/disposition_frise.h"

#include <QBrush>

#include <vector>

class QPainter;
class QPalette;

/// A finding on the timeline.
struct MarqueFrise {
    int robot = 0; ///< 0: no single one
    std::int32_t temps = 0;
    QString texte;
};

/// What the timeline shows.
struct ContenuFrise {
    const Analyse* analyse = nullptr;
    std::vector<MarqueFrise> marques{};
    int robot = 1; ///< chosen
};

/// Paints all of the timeline but its cursor and loop.
/// @param axe  seconds, laid over the disposition's times
void peindre_frise(QPainter& peintre, const ContenuFrise& contenu, const DispositionFrise& places,
                   const Axe& axe, const QPalette& couleurs);
