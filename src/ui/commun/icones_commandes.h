#pragma once

#include <QIcon>

/// What a command of the program does, beside its caption.
enum class Commande {
    demarrer,
    arreter,
    enregistrer_le_trajet,
    charger,
    telecommande,
    creer,
    generer,
    aide,
    quitter
};

/// @param sur_l_accent  for a button that style::mettre_en_avant was asked for
QIcon icone(Commande commande, bool sur_l_accent = false);
