#pragma once

#include "config/document.h"

#include <optional>
#include <string>
#include <string_view>

/// How a line of a trajectory file is written: case of the keyword, blanks behind it, blanks around
/// the numbers.
class StyleTrajet {
public:
    /// Case of a keyword; the usual one is "Avance", "VirAvDr", "FIN".
    enum class Casse { usuelle, majuscules, minuscules };

    /// "Avance,80", "Balise droite".
    StyleTrajet() = default;
    /// The style of a line with numbers; nothing when it has none.
    /// @param octets  the line, its comment included
    /// @param fiche   the record that it holds
    static std::optional<StyleTrajet> de(std::string_view octets, const Fiche& fiche);

    /// A new line for a record.
    std::string ecrire(const Fiche& fiche) const;

private:
    Casse casse_ = Casse::usuelle;
    bool dix_colonnes_ = false; ///< the keyword is padded to ten: "AVANCE    ,80"
    std::string apres_mot_, avant_nombre_, apres_nombre_;
};

/// The line of a record that was changed: nothing but what differs is written anew. A keyword of
/// the same length takes the case of the old one letter by letter; a number stays between its
/// blanks.
/// @param octets  the line as it was read, its comment included
/// @param lue     the record that `octets` hold
std::string retoucher_ligne_trajet(std::string_view octets, const Fiche& lue, const Fiche& voulue);
