#pragma once

#include "seance/seance.h"
#include "ui/commun/veilleur.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

/// Watches the loaded project's table, robot and trajectory files. One that another program has
/// saved is read again at once when nothing runs and nothing unsaved would be lost, after a
/// question otherwise. A table read again alone leaves robots and trajectories as they are.
class Surveillance final : private Ecouteur {
public:
    explicit Surveillance(Seance& seance);

private:
    /// What is written from now on is news.
    void projet_va_etre_lu() override { prendre_note(); }
    void fichier_ecrit(const std::filesystem::path& fichier) override { prendre_note_de(fichier); }

    /// The table, then the robots, then the trajectories.
    static constexpr std::size_t nombre = 19, premier_trajet = 10;

    /// A file as it was last seen; `version` tells without reading it whether it was touched.
    struct Empreinte {
        std::array<std::int64_t, 4> version{};
        std::size_t contenu = 0;
    };

    static Empreinte empreinte(const std::filesystem::path& fichier, const Empreinte& connue);
    std::filesystem::path fichier(std::size_t k) const;
    void prendre_note();
    void prendre_note_de(const std::filesystem::path& fichier);
    void suivre();
    void verifier();
    std::vector<std::size_t> chercher_changements();
    bool permis(bool table_seule, const std::string& quoi);
    std::string noms(const std::vector<std::size_t>& changes) const;

    Seance& seance_;
    Veilleur veilleur_;
    std::string projet_; ///< whose files the prints are
    std::array<Empreinte, nombre> empreintes_;
};
