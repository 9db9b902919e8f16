#pragma once

#include "codegen/demande.h"
#include "codegen/programme.h"

#include <cstddef>
#include <string>
#include <vector>

enum class SorteLigne {
    contexte, ///< stays; shown around changes
    coupure,  ///< stands for lines that are not shown
    retiree,  ///< the starting file loses it
    inseree,  ///< the starting file gains it (menu)
    ajoutee   ///< follows the program in the generated file
};

/// One line of the difference between the starting file and the generated file.
struct LigneApercu {
    SorteLigne sorte = SorteLigne::contexte;
    std::size_t avant = 0; ///< line number in the starting file; 0: not there
    std::size_t apres = 0; ///< line number in the generated file; 0: not there
    std::string texte;     ///< UTF-8
};

/// What a generation would do.
struct Apercu {
    std::vector<LigneApercu> lignes;
    std::vector<std::string> avertissements; ///< French sentences; never a reason to refuse
    bool ecrase = false; ///< an older subroutine goes: what the user is asked about
};

/// One line each, "- " or "+ " in front of what goes or comes, "@ " where lines are left out.
std::string texte_apercu(const Apercu& apercu);

/// Works a generation out without writing or asking anything.
/// @param ecraser  the answer to every question about an older subroutine
/// @throws ErreurExecution as generer() does before it writes
Apercu preparer_apercu(const Demande& demande, bool ecraser);

/// The same for a program and the bytes of an input file that are already read.
Apercu preparer_apercu(const Demande& demande, const Programme& depart, std::string_view entree,
                       bool ecraser);
