#pragma once

#include <filesystem>
#include <iosfwd>
#include <string>
#include <string_view>

/// The place that a path on the command line means: relative to where the user stands, which must
/// be asked before the application directory becomes the current one. "-" and "" stay as they are.
std::filesystem::path place_demandee(const std::string& chemin);

/// Writes a result that the user asked for: "-" is standard output, a device or a pipe is written
/// to as it is, anything else is replaced as a whole. @throws ErreurFichier
void ecrire_resultat(const std::filesystem::path& chemin, std::string_view octets);

/// A line for a person, whatever file or name it quotes: nothing in it commands the terminal.
void ecrire_ligne(std::ostream& flux, std::string_view texte);

/// The same for a text of several lines.
void ecrire_lignes(std::ostream& flux, std::string_view texte);

/// Lines that are a result: as they are for a file or a program, harmless for a terminal.
class SortieDeLignes {
public:
    SortieDeLignes();
    void ligne(std::string_view texte) const;

private:
    bool terminal_;
};
