#pragma once

#include "config/ligne.h"
#include "sim/etat.h"

#include <string_view>
#include <vector>

/// Reads trajectory files into the state, one after the other; one object for one reading of a
/// project's trajectories, because the two parameters live on: an action that has none stores what
/// an earlier line (of this or an earlier file) left there.
class LecteurTrajet {
public:
    explicit LecteurTrajet(Etat& etat) : e(etat) {}

    /// Replaces robot n's trajectory by the file's actions and takes its initial pose.
    /// @param texte    the file's content, UTF-8
    /// @param NoLigne  counts the lines: the faulty one after an exception
    /// @throws ErreurExecution on the first faulty line; the actions read before it stay
    void lire(std::string_view texte, Entier16 n, Entier16& NoLigne);

    /// The lines of the actions read last, counted within their file from 1.
    const std::vector<int>& lignes() const { return lignes_; }

private:
    void lire_ligne(std::string_view ligne, Entier16 n);
    void ajouter(const Nom10& action, Entier16 n);

    Etat& e;
    Entier16 parametre_, parametre2_;
    std::vector<int> lignes_;
};
