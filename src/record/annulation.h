#pragma once

#include "sim/moteur.h"

/// Everything that one action of the console, or the start of a recording, changes, as it was
/// before: taking it back leaves no trace of it, on the table or in the recording.
class Instantane {
public:
    /// Before an action of robot `robot`, 0..10, which will be recorded as trajectory entry
    /// `entree`.
    Instantane(const Etat& e, Entier16 robot, Entier16 entree);

    /// Puts the recording, every robot and the clock back. The run is ended again when the action
    /// had begun one, and goes on when it ended since; the driven robot stays the driven one.
    void retablir(Etat& e, Moteur& moteur, Fenetres& f) const;
    Entier16 robot() const { return robot_; }

private:
    void retablir_enregistrement(Etat& e) const;

    Course course_;
    Entier16 TableHorizontale_;
    bool en_course_;

    Entier16 robot_, entree_;
    float XInit_, YInit_, CapInit_;
    Entier16 TrajNbActions_;
    Nom10 action_;
    Entier16 param1_, param2_;
    Entier16 nb_a_generer_;
};
