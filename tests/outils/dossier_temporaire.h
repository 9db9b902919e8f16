#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>

/// A directory of a test's own, deleted with everything in it.
class DossierTemporaire {
public:
    DossierTemporaire() {
        std::string modele =
            (std::filesystem::temp_directory_path() / "tavolmex-test-XXXXXX").string();
        chemin_ = ::mkdtemp(modele.data());
    }
    DossierTemporaire(const DossierTemporaire&) = delete;
    DossierTemporaire& operator=(const DossierTemporaire&) = delete;
    ~DossierTemporaire() {
        std::error_code erreur;
        std::filesystem::remove_all(chemin_, erreur);
    }

    const std::filesystem::path& chemin() const { return chemin_; }
    std::filesystem::path operator/(std::string_view nom) const { return chemin_ / nom; }

    std::filesystem::path ecrire(std::string_view nom, std::string_view octets) const {
        std::filesystem::path fichier = chemin_ / nom;
        std::filesystem::create_directories(fichier.parent_path());
        std::ofstream(fichier, std::ios::binary) << octets;
        return fichier;
    }
    std::string lire(std::string_view nom) const {
        std::ifstream flux(chemin_ / nom, std::ios::binary);
        return {std::istreambuf_iterator<char>(flux), {}};
    }

private:
    std::filesystem::path chemin_;
};
