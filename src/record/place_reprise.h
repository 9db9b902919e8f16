#pragma once

#include "base/verrou.h"

#include <filesystem>
#include <optional>
#include <string>

/// A recovery file that belongs to no living program but this one.
struct RepriseEnAttente {
    std::string projet;
    int place = 1;
    std::filesystem::path fichier;
    std::optional<Verrou> verrou; ///< keeps others from it; none: it is this program's own
};

/// Which recovery file of a project is this program's own. Programs that have the same project open
/// each hold a place, 1, 2 and so on, by a lock that ends with the program, however that ends:
/// "<project> Reprise.ini" and "<project> Verrou" for the first, with the number for the others.
class PlaceReprise {
public:
    explicit PlaceReprise(std::filesystem::path configuration)
        : configuration_(std::move(configuration)) {}

    /// Gives the place held back and takes the first one of `projet` that is free.
    /// @param vierge  leaves a place alone whose recovery file waits for being offered
    /// @returns true when another program has the project open
    bool prendre(const std::string& projet, bool vierge);
    /// Holds the place of a recovery file that is taken up instead of its own.
    void adopter(RepriseEnAttente attente);

    /// The recovery file of `projet`: this program's own of the project it holds a place of, the
    /// first of any other. @throws ErreurExecution when no project can bear the name
    std::filesystem::path fichier(const std::string& projet) const;
    /// The next recording that can be taken up: of `projet` first, then, if `tous`, of the others.
    std::optional<RepriseEnAttente> en_attente(const std::string& projet, bool tous) const;

private:
    bool essayer(const std::string& projet, int place, bool vierge);
    bool un_autre_tient(const std::string& projet) const;
    std::filesystem::path chemin(const std::string& projet, int place) const;

    std::filesystem::path configuration_;
    std::string projet_;
    int place_ = 1;
    std::optional<Verrou> verrou_;
};
