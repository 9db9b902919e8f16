#pragma once

#include "sim/etat.h"

#include <string_view>

/// Reads the general settings into NomProjet and Options(1..4). A key that is missing leaves its
/// value as it is; a key given twice keeps its last value.
/// @param texte    the file's content, UTF-8
/// @param NoLigne  counts the lines: the faulty one after an exception
/// @throws ErreurExecution on the first faulty line; the values read before it stay
void lire_general(std::string_view texte, Etat& e, Entier16& NoLigne);
