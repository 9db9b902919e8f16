#pragma once

#include "base/systeme.h"

#include <filesystem>
#include <optional>

/// An advisory lock: one holder among all programs. It ends with the object and with the program,
/// however that ends; its file, which holds nothing, goes with it where possible.
class Verrou {
public:
    /// @returns none while somebody else holds it @throws ErreurFichier when its file cannot be
    /// made
    static std::optional<Verrou> prendre(const std::filesystem::path& fichier);

    Verrou(Verrou&& autre) = default;
    Verrou& operator=(Verrou&& autre) noexcept;
    ~Verrou();

private:
    Verrou(std::filesystem::path fichier, systeme::Descripteur d)
        : fichier_(std::move(fichier)), descripteur_(std::move(d)) {}
    void rendre();

    std::filesystem::path fichier_;
    systeme::Descripteur descripteur_; ///< closed: moved away
};
