#pragma once

#include "codegen/demande.h"
#include "codegen/menu.h"
#include "codegen/programme.h"
#include "codegen/retrait.h"

#include <optional>
#include <string>
#include <string_view>

/// Both files as a generation leaves them, worked out in memory: nothing is written.
struct Composition {
    std::string depart; ///< bytes of the starting file afterwards
    std::string cible;  ///< bytes of the generated file
    Retrait retrait;
    std::optional<PassageMenu> menu; ///< only when the menu pass took place
    std::string ajout;               ///< UTF-8: what follows the program in the generated file
    std::string erreur; ///< why `cible` breaks off before its end; empty when it does not

    /// What changes in the starting file: the removal or the menu's entries, never both.
    const std::vector<Modification>& modifications() const {
        return menu ? menu->modifications : retrait.modifications;
    }
};

/// Removal of the older subroutine, menu, banner, label, statements, Return. What is inserted takes
/// the program's encoding and its majority of line ends.
/// @param entree  bytes of the generation input file
/// @throws ErreurExecution for a name that spans lines and an unreadable menu constant; a bad value
///         in `entree` does not throw: see `erreur`
Composition composer(const Demande& demande, const Programme& depart, std::string_view entree,
                     const Repondre& repondre);
