#pragma once

#include <string>
#include <string_view>
#include <vector>

// The little of PICBASIC that the warnings and the browser read. Names have no case.

/// A letter or "_", then letters, digits and "_".
bool est_nom(std::string_view texte);

/// Where the comment of a line begins ("'" or ";" outside a text, or Rem as first word); its length
/// when there is none.
std::size_t debut_de_commentaire(std::string_view ligne);

/// The name of the label at the start of a line; empty if there is none.
std::string_view etiquette_definie(std::string_view ligne);

/// The names, in lower case, that a line declares: Dim a, b As Byte; a Var Byte; Const a = 3.
std::vector<std::string> noms_declares(std::string_view ligne);

/// True for a line that reads another file in (Include).
bool est_inclusion(std::string_view ligne);
