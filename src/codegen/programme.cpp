#include "codegen/programme.h"

#include "base/erreurs.h"

#include <algorithm>

namespace {

char minuscule_ascii(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c | 0x20) : c;
}

} // namespace

std::string appliquer(const Programme& programme, const std::vector<Modification>& modifications) {
    const std::string_view octets = programme.octets();
    std::string resultat;
    resultat.reserve(octets.size() + 1024);
    std::size_t copie = 0;
    for (const Modification& m : modifications) {
        resultat += octets.substr(copie, m.debut - copie);
        resultat += encoder(m.texte, programme.encodage());
        copie = m.fin;
    }
    resultat += octets.substr(copie);
    return resultat;
}

bool contient_sans_casse(std::string_view texte, std::string_view motif) {
    return std::search(texte.begin(), texte.end(), motif.begin(), motif.end(),
                       [](char t, char m) { return minuscule_ascii(t) == m; }) != texte.end();
}

void refuser_ligne(const std::filesystem::path& fichier, std::size_t numero, std::string_view texte,
                   std::string_view raison) {
    constexpr std::size_t montres = 80;
    const std::string_view debut = premiers_caracteres(texte, montres);
    std::string message = fichier.string() + " Ligne " + std::to_string(numero) + " : « ";
    message += debut;
    message += debut.size() < texte.size() ? "… » : " : " » : ";
    message += raison;
    throw ErreurExecution(message);
}
