#pragma once

#include <cstddef>
#include <vector>

class Document;

/// Records chosen in a document, by their indices in increasing order.
using Choix = std::vector<std::size_t>;

/// Takes the chosen records out, with their lines.
void retirer(Document& document, const Choix& choix);
