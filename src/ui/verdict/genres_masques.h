#pragma once

#include "analyse/constat.h"

#include <QString>

#include <filesystem>
#include <set>
#include <span>
#include <string>

struct GenreNomme {
    Genre genre;
    const char* legende;
};
/// Every kind of finding, as the user reads it: "Sorties de la table".
std::span<const GenreNomme> genres_nommes();

/// The kinds of findings that the user does not want to see for a project, kept in the user's own
/// settings and not among the project's files.
class GenresMasques {
public:
    GenresMasques() = default;
    GenresMasques(const std::filesystem::path& dossier, const std::string& projet);

    bool contient(Genre genre) const { return genres_.contains(genre); }
    int nombre() const { return static_cast<int>(genres_.size()); }
    void masquer(Genre genre, bool masque);

private:
    QString cle_;
    std::set<Genre> genres_;
};
