#include "codegen/generateur.h"

#include "base/chemins.h"
#include "base/fichiers.h"
#include "codegen/composition.h"

namespace fs = std::filesystem;

namespace {

void verifier_dossier(const fs::path& cible) {
    const fs::path dossier = cible.has_parent_path() ? cible.parent_path() : fs::path(".");
    std::error_code erreur;
    if (!fs::is_directory(dossier, erreur))
        throw ErreurFichier(cible, "le dossier n'existe pas");
}

void sauvegarder(const fs::path& fichier, const fs::path& dossier, Generation& generation) {
    fs::path copie = sauvegarder_version(fichier, dossier);
    if (!copie.empty())
        generation.sauvegardes.push_back(std::move(copie));
}

} // namespace

Generation generer(const Demande& demande, const fs::path& sauvegardes, const Repondre& repondre) {
    const fs::path cible = demande.cible;
    const Programme depart(lire_octets(demande.depart));
    const std::string entree = lire_octets(demande.entree);
    const Composition c = composer(demande, depart, entree, repondre);

    // All that can fail without harm comes first: folder and copies, then the files themselves.
    verifier_dossier(cible);
    Generation generation;
    generation.depart_reecrit = c.depart != depart.octets() && !meme_fichier(demande.depart, cible);
    if (generation.depart_reecrit)
        sauvegarder(demande.depart, sauvegardes, generation);
    sauvegarder(cible, sauvegardes, generation);
    // The hand-written program last: a target that cannot be written leaves it untouched.
    remplacer_fichier(cible, c.cible);
    if (generation.depart_reecrit)
        remplacer_fichier(demande.depart, c.depart);
    if (!c.erreur.empty())
        throw GenerationInterrompue(c.erreur, std::move(generation));
    return generation;
}
