#pragma once

#include "config/ligne.h"
#include "config/ligne_trajet.h"
#include "sim/actions.h"
#include "sim/etat.h"

#include <string_view>
#include <vector>

/// Hands every action and start pose of a trajectory file to `prendre`.
/// @param texte    the file's content, UTF-8
/// @param NoLigne  counts the lines: the faulty one after an exception
/// @throws ErreurExecution on the first faulty line, HorsTable on that of the 1001st action
template <typename Prendre>
void parcourir_trajet(std::string_view texte, Entier16& NoLigne, Prendre prendre) {
    int nombre = 0;
    const auto lire_ligne = [&](std::string_view ligne) {
        const LigneTrajet lue = lire_ligne_trajet(ligne);
        if (lue.code != actions::INIT && ++nombre > actions_max)
            lever_HorsTable(nombre, actions_max);
        prendre(lue);
    };
    pour_chaque_ligne(texte, NoLigne, lire_ligne, compte_dans_un_trajet);
}

/// Reads trajectory files into the state, one after the other; one object for one reading of a
/// project's trajectories, because the two parameters live on: an action that has none stores what
/// an earlier line (of this or an earlier file) left there.
class LecteurTrajet {
public:
    explicit LecteurTrajet(Etat& etat) : etat_(etat) {}

    /// Replaces robot n's trajectory by the file's actions and takes its initial pose.
    /// @param texte    the file's content, UTF-8
    /// @param NoLigne  counts the lines: the faulty one after an exception
    /// @throws ErreurExecution on the first faulty line; the actions read before it stay
    void lire(std::string_view texte, Entier16 n, Entier16& NoLigne);

    /// The lines of the actions read last, counted within their file from 1.
    const std::vector<int>& lignes() const { return lignes_; }

private:
    void prendre_depart(const LigneTrajet& lue, Entier16 n);
    void ajouter(const LigneTrajet& lue, Entier16 n);

    Etat& etat_;
    Entier16 parametre_, parametre2_;
    std::vector<int> lignes_;
};
