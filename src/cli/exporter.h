#pragma once

#include "feuille/page.h"
#include "feuille/vue_match.h"

#include <CLI/CLI.hpp>

#include <functional>
#include <string>
#include <vector>

/// A kind of file that a program can write pictures of a match into.
struct FormatImage {
    std::string extension; ///< ".svg"
    /// Make the file's bytes; a format without pages has no second one.
    std::function<std::string(const Etat&, const Analyse&, const VueDuMatch&, TailleImage)> image;
    std::function<std::string(const Page&, const Etat&, const Analyse&)> feuille{};
};

/// Writes a picture of the match, its sheet, its trace; exit code 1 when a message was shown.
/// @param formats  besides SVG
void declarer_exporter(CLI::App& app, int& code_de_sortie, std::vector<FormatImage> formats);
