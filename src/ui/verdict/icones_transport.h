#pragma once

#include <QIcon>

/// What a button of the transport row shows, in the colours of the moment.
enum class Symbole {
    debut,
    action_precedente,
    pas_precedent,
    lecture,
    pause,
    pas_suivant,
    action_suivante,
    fin,
    boucle_debut,
    boucle_fin,
    sans_boucle,
    ajuster
};

QIcon icone(Symbole symbole);
