#pragma once

#include <filesystem>
#include <optional>

/// An advisory lock: one holder among all programs. It ends with the object and with the program,
/// however that ends; its file, which holds nothing, goes with it where possible.
class Verrou {
public:
    /// @returns none while somebody else holds it @throws ErreurFichier when its file cannot be
    /// made
    static std::optional<Verrou> prendre(const std::filesystem::path& fichier);

    Verrou(Verrou&& autre) noexcept;
    Verrou& operator=(Verrou&& autre) noexcept;
    ~Verrou();

private:
    Verrou(std::filesystem::path fichier, int numero)
        : fichier_(std::move(fichier)), numero_(numero) {}
    void rendre();

    std::filesystem::path fichier_;
    int numero_; ///< file descriptor, -1: moved away
};
