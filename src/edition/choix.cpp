#include "edition/choix.h"

#include "config/document.h"

void retirer(Document& document, const Choix& choix) {
    for (auto i = choix.rbegin(); i != choix.rend(); ++i)
        document.retirer(*i);
}
