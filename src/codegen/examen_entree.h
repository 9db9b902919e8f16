#pragma once

#include "codegen/demande.h"

#include <set>
#include <string>
#include <string_view>
#include <vector>

/// Warnings of one kind: at most twenty, then how many more there are.
class Sorte {
public:
    explicit Sorte(std::vector<std::string>& liste) : liste_(liste) {}

    void ajouter(std::string phrase);
    /// To be called once, behind the last: says how many were left out.
    void clore();

private:
    std::vector<std::string>& liste_;
    std::size_t nombre_ = 0;
};

/// What the generated code calls and uses.
struct Besoins {
    std::set<std::string> sous_programmes;
    std::set<std::string> noms;
};

/// Reads the input's moves: what they need, and warnings about values that a byte of the robot does
/// not hold, lines that become comments, curves and turns that are not what the screen shows.
Besoins examiner_entree(const Demande& demande, std::string_view entree,
                        std::vector<std::string>& liste);
