#pragma once

#include <string>
#include <string_view>

/// The text of a configuration file in the making: UTF-8, every line ended by CR LF.
class Ecrivain {
public:
    /// One line, its pieces put together without separator.
    template <typename... Morceaux>
    Ecrivain& ligne(const Morceaux&... morceaux) {
        (texte_.append(std::string_view(morceaux)), ...);
        return fin_de_ligne();
    }

    /// The three comment lines that open every file.
    /// @param titre  the file's name, with the blank (if any) that parts it from the words after it
    Ecrivain& entete(std::string_view titre);
    /// "#", "# " + what the file describes, "#", where its description is found, "#".
    Ecrivain& description(std::string_view contenu, std::string_view notice);

    const std::string& texte() const { return texte_; }

private:
    Ecrivain& fin_de_ligne();

    std::string texte_;
};

/// A whole number in print form: a blank in place of the plus sign, and a blank after it.
std::string forme_imprimee(int valeur);
