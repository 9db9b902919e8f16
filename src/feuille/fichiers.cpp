#include "feuille/fichiers.h"

#include "base/systeme.h"
#include "config/projet.h"

#include <zlib.h>

#include <array>
#include <fstream>
#include <iterator>

namespace {

std::string crc32_de(std::string_view octets) {
    constexpr std::string_view chiffres = "0123456789abcdef";
    const auto crc = ::crc32_z(0, reinterpret_cast<const Bytef*>(octets.data()), octets.size());
    std::string texte;
    for (unsigned rang = 32; rang > 0; rang -= 4)
        texte += chiffres[(crc >> (rang - 4)) & 15U];
    return texte;
}

FichierDeFeuille decrire(const std::filesystem::path& chemin) {
    FichierDeFeuille fichier{chemin.filename().string(), "absent", ""};
    const auto infos = systeme::infos(chemin.string().c_str());
    if (!infos || infos->sorte != systeme::Sorte::ordinaire)
        return fichier;
    std::ifstream flux(chemin, std::ios::binary);
    const std::string octets{std::istreambuf_iterator<char>(flux), {}};
    if (flux.bad())
        return fichier;
    fichier.date = date_lisible(infos->modifie);
    fichier.somme = crc32_de(octets);
    return fichier;
}

} // namespace

std::string date_lisible(std::time_t instant) {
    const auto local = systeme::heure_locale(instant);
    std::array<char, 32> texte{};
    if (!local)
        return "";
    return {texte.data(), std::strftime(texte.data(), texte.size(), "%d/%m/%Y %H:%M", &*local)};
}

std::vector<FichierDeFeuille> fichiers_du_projet(const Projet& projet, int robots) {
    std::vector<FichierDeFeuille> fichiers{decrire(projet.chemin_table())};
    for (int i = 1; i <= robots; ++i) {
        fichiers.push_back(decrire(projet.chemin_robot(i)));
        fichiers.push_back(decrire(projet.chemin_trajet(i)));
    }
    return fichiers;
}
