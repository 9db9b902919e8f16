#pragma once

#include "codegen/programme.h"
#include "codegen/traduction.h"

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

/// A move of the robot's code, with the value as the robot has it: a whole number.
struct MouvementRelu {
    const RegleTraduction* regle = nullptr; ///< never null
    Entier16 valeur;                        ///< cm, degrees, 1/100 s or tiles; 0 without a value
    std::size_t ligne = 0;

    /// "AVANCE 120"
    std::string texte() const;
};

/// What the robot's code does, and what nobody can tell from it.
struct CodeRelu {
    struct Incomprise {
        std::size_t ligne = 0;
        std::string raison; ///< a French sentence that quotes the line
    };
    std::vector<MouvementRelu> mouvements;
    std::vector<Incomprise> incomprises; ///< they move nothing here; they may move the robot
};

/// A generation input file. A bad value ends it, as it ends a generation.
CodeRelu relire_entree(std::string_view octets, const std::filesystem::path& fichier);

/// The subroutine `fonction` of a program, from its label to its Return. A value that was set stays
/// set for the next calls, as it does in the robot; what only the robot can work out is not
/// guessed.
/// @throws ErreurExecution when the program has no such label
CodeRelu relire_fonction(const Programme& programme, std::string_view fonction);
