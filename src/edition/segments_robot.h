#pragma once

#include "config/document_robot.h"
#include "edition/choix.h"
#include "edition/formes.h"

// What the robot editor does to a robot. Undoing is keeping the document from before: it is a
// value. Of the chosen records only the segments count; their numbers stay within 16 bits.

/// A new robot, in the middle of the foot of a table of that width (cm), its back to the border.
DocumentRobot robot_neuf(double largeur_table);

Choix segments(const DocumentRobot& robot);
Choix segments(const DocumentRobot& robot, const Choix& choix);

/// Those that lie in a frame with both ends.
Choix segments_dans(const DocumentRobot& robot, const Bornes& cadre);
/// The last one at a point.
std::optional<std::size_t> segment_sous(const DocumentRobot& robot, Vecteur cm, double tolerance);

/// Adds a line as a segment. @returns its index
/// @throws ErreurExecution, a sentence for the user: it would not be seen, or there are 50 of them
std::size_t creer(DocumentRobot& robot, Fiche ligne);
/// Copies beside the originals. @returns them @throws beyond 50 segments
Choix dupliquer(DocumentRobot& robot, const Choix& choix, double ecart);
/// The chosen segments as lines of a robot file: CR LF.
std::string copier(const DocumentRobot& robot, const Choix& choix);
/// Puts the segments of a robot file's lines in, where they say, or beside what is there already.
/// @returns them @throws LigneRefusee for a line that is no record; ErreurExecution beyond 50
Choix coller(DocumentRobot& robot, std::string_view lignes, double ecart);
void deplacer(DocumentRobot& robot, const Choix& choix, Vecteur ecart);
/// Images of the chosen segments (all of them when none is chosen) about the axis through the
/// reference point. What lies on the axis or has its image already is not doubled.
/// @returns them @throws beyond 50 segments
Choix copier_en_miroir(DocumentRobot& robot, const Choix& choix);
/// Changes one number of segments. @returns false, the robot as it was, when one of them would have
/// no length
bool changer_segments(DocumentRobot& robot, const Choix& choix, std::size_t champ, double valeur);
/// Pulls an end (0 or 1) of a segment. @returns false likewise
bool tirer_bout(DocumentRobot& robot, std::size_t i, std::size_t bout, Vecteur cm);

void placer_reference(DocumentRobot& robot, Vecteur cm);
void placer_extremite(DocumentRobot& robot, Vecteur cm);
/// The wheel track that brings a wheel to `x`.
void placer_roue(DocumentRobot& robot, double x);
/// One number of the record "V", "A", "E" or "I".
void regler_nombre(DocumentRobot& robot, std::string_view cle, std::size_t rang, double valeur);
