#pragma once

#include "config/document_table.h"
#include "edition/choix.h"
#include "edition/formes.h"

#include <optional>
#include <string>
#include <string_view>

// What the table editor does to a table. Undoing is keeping the document from before: it is a
// value. A caption among the chosen records stays as it is.

/// All but captions; without the zones when those are locked.
Choix objets(const DocumentTable& table, bool sans_zones);
/// Those of them that lie in a frame.
Choix objets_dans(const DocumentTable& table, const Bornes& cadre, bool sans_zones);
/// The topmost of them at a point: what is drawn last, first.
std::optional<std::size_t> objet_sous(const DocumentTable& table, Vecteur cm, double tolerance,
                                      bool sans_zones);

/// Adds what was drawn, over those of its kind. @returns its index
/// @throws ErreurExecution, a sentence for the user: it would not be seen, or its kind is full
std::size_t creer(DocumentTable& table, Fiche objet);
/// Copies beside the originals (cm to the right and up). @returns them @throws when a kind is full
Choix dupliquer(DocumentTable& table, const Choix& choix, double ecart);
/// The chosen records, without captions, as lines of a table file: CR LF.
std::string copier(const DocumentTable& table, const Choix& choix);
/// Puts lines of a table file in, where they say, or beside what is there already: some cm to the
/// right and up. A caption is left out. @returns the new records
/// @throws LigneRefusee for a line that is no record; ErreurExecution when a kind is full
Choix coller(DocumentTable& table, std::string_view lignes, double ecart);
/// Moves records together, as far as the table's file can say. @returns false when that is nowhere
bool deplacer(DocumentTable& table, const Choix& choix, Vecteur ecart);
/// Pulls a record by one of its handles. @returns false, the table as it was, when nothing would be
/// left of it
bool redimensionner(DocumentTable& table, std::size_t i, std::size_t poignee, Vecteur cm);
void changer_sorte(DocumentTable& table, std::size_t i, const std::string& cle);
/// Changes the caption that counts, or adds one. @returns the chosen records' indices from then on
Choix regler_legende(DocumentTable& table, Choix choix, const std::string& texte);
