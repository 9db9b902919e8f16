#pragma once

#include "base/erreurs.h"
#include "base/nombres.h"

#include <optional>
#include <string_view>

/// What lire_entier16 and lire_simple give, without exceptions: nothing for what they refuse, and
/// what they then say.
std::optional<Entier16> entier16_ou_rien(std::string_view texte);
std::optional<float> simple_ou_rien(std::string_view texte);
ErreurConversion pas_un_entier16(std::string_view texte);
ErreurConversion pas_un_simple(std::string_view texte);
