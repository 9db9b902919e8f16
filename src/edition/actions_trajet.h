#pragma once

#include "config/document_trajet.h"
#include "edition/choix.h"
#include "sim/actions.h"

#include <string>
#include <string_view>

// What the table of actions does to a trajectory. Records are chosen by their indices in increasing
// order; each function leaves the document as it was when it throws. Undoing is keeping the
// document from before: it is a value.

/// An action that is put in, with usual numbers.
Fiche action_usuelle(const actions::Action& action);
/// Another action in the place of one: it keeps the numbers that measure the same thing.
Fiche action_changee(const Fiche& avant, const actions::Action& en);

/// The chosen records as lines of a trajectory file, with their comments: UTF-8, CR LF.
std::string copier(const DocumentTrajet& trajet, const Choix& choix);

/// Lines of a trajectory file in front of record i; the one past the last is the end.
/// @returns the new records
/// @throws LigneRefusee for a line that the reader refuses, ErreurExecution beyond 1000 actions
Choix coller(DocumentTrajet& trajet, std::size_t i, std::string_view lignes);

/// Copies behind the last one chosen. @returns them @throws ErreurExecution beyond 1000 actions
Choix dupliquer(DocumentTrajet& trajet, const Choix& choix);

/// Takes the chosen records, together and in their order, in front of record `devant`; the one past
/// the last is the end. @returns where they are then
Choix deplacer(DocumentTrajet& trajet, const Choix& choix, std::size_t devant);
