#include "config/reprise_dessin.h"

#include "base/fichiers.h"
#include "config/fige.h"

namespace fs = std::filesystem;

namespace {

constexpr std::string_view marque = "Tavolmex dessin 1";
constexpr std::string_view suffixe = ".reprise";
constexpr int rang_max = 50;

} // namespace

std::string texte_dessin(const DessinGarde& dessin) {
    EcritureFigee texte;
    texte.mettre(marque);
    texte.mettre(dessin.fichier.string());
    texte.mettre(dessin.sur_le_disque);
    texte.mettre(dessin.document);
    return texte.texte();
}

DessinGarde lire_dessin(std::string_view octets) {
    LectureFigee lecture(octets);
    if (lecture.suivant() != marque)
        LectureFigee::refuser();
    DessinGarde dessin;
    dessin.fichier = std::string(lecture.suivant());
    dessin.sur_le_disque = lecture.suivant();
    dessin.document = lecture.suivant();
    lecture.finir();
    return dessin;
}

bool RepriseDessin::en_attente(const fs::path& configuration) {
    std::error_code erreur;
    for (fs::directory_iterator i(configuration, erreur), fin; !erreur && i != fin;
         i.increment(erreur))
        if (i->path().filename().string().ends_with(suffixe))
            return true;
    return false;
}

fs::path RepriseDessin::chemin(int rang, const char* fin) const {
    const std::string genre = genre_ == GenreFichier::table   ? "table"
                              : genre_ == GenreFichier::robot ? "robot"
                                                              : "trajet";
    return configuration_ / ("Dessin " + genre + " " + std::to_string(rang) + fin);
}

bool RepriseDessin::prendre(int rang) {
    auto verrou = Verrou::prendre(chemin(rang, ".verrou"));
    if (verrou) {
        verrou_ = std::move(verrou);
        rang_ = rang;
    }
    return rang_ == rang;
}

std::optional<fs::path> RepriseDessin::prendre_la_suivante() {
    while (derniere_vue_ < rang_max) {
        const fs::path fichier = chemin(++derniere_vue_, suffixe.data());
        std::error_code absent;
        if (fs::is_regular_file(fichier, absent) && prendre(derniere_vue_))
            return fichier;
    }
    return std::nullopt;
}

DessinGarde RepriseDessin::lire() const {
    return lire_dessin(lire_octets(chemin(rang_, suffixe.data())));
}

void RepriseDessin::ranger() {
    sauvegarder_version(chemin(rang_, suffixe.data()), configuration_ / "Sauvegardes");
    effacer();
}

void RepriseDessin::mettre_de_cote() {
    const fs::path fichier = chemin(rang_, suffixe.data());
    std::error_code erreur;
    fs::rename(fichier, fichier.string() + ".illisible", erreur);
    effacer();
}

void RepriseDessin::ecrire(const DessinGarde& dessin) {
    std::error_code absent;
    for (int rang = 1; rang_ == 0 && rang <= rang_max; ++rang)
        if (!fs::exists(chemin(rang, suffixe.data()), absent))
            prendre(rang);
    if (rang_ == 0)
        throw ErreurFichier(chemin(rang_max, suffixe.data()), "trop de dessins attendent déjà");
    remplacer_fichier(chemin(rang_, suffixe.data()), texte_dessin(dessin));
}

void RepriseDessin::effacer() {
    if (rang_ == 0)
        return;
    std::error_code erreur;
    fs::remove(chemin(rang_, suffixe.data()), erreur);
    rang_ = 0;
    verrou_.reset();
}
