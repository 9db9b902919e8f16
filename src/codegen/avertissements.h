#pragma once

#include "codegen/composition.h"

#include <string>
#include <string_view>
#include <vector>

/// Why PICBASIC would refuse that name of a subroutine; empty when it would not.
std::string refus_du_nom(const std::string& fonction);

/// What would not compile or not run on the robot once generated, as French sentences: names that
/// the program does not define, labels that stand twice, missing menu anchors, values outside
/// 0..255, lines that the removal takes along. Advice only: nothing depends on it.
std::vector<std::string> avertissements(const Demande& demande, const Programme& depart,
                                        const Composition& composition, std::string_view entree);
