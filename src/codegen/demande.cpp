#include "codegen/demande.h"

#include "base/chemins.h"
#include "base/erreurs.h"
#include "base/texte.h"
#include "config/nom_projet.h"

namespace fs = std::filesystem;

Refus verifier(const Demande& demande) {
    // The first two messages name each other's list: they are known that way.
    if (demande.entree.empty())
        return {"Sélectionner une ligne dans la liste des Fichiers PICBASIC",
                "Choisissez le fichier de génération dans la liste de droite."};
    if (demande.depart.empty())
        return {"Sélectionner une ligne dans la liste des fichier du projet",
                "Choisissez le programme PICBASIC de départ dans la liste de gauche."};
    if (rogner(demande.cible).empty())
        return {"Sélectionner Fichier à générer.", ""};
    const std::size_t point = demande.cible.find('.');
    if (point == std::string::npos)
        throw ErreurExecution("le nom du fichier à générer n'a pas d'extension : « " +
                              demande.cible + " » (ajoutez « .bas »)");
    if (minuscules(std::string_view(demande.cible).substr(point)) != ".bas")
        return {"Nom de fichier incorrect" + demande.CheminCourant,
                "Le fichier à générer doit se terminer par « .bas », et ni son nom ni ses "
                "dossiers ne doivent contenir un autre point : « " +
                    demande.cible + " »."};
    if (cible_est_l_entree(demande))
        return {"Le fichier à générer est le fichier de génération lui-même",
                "Il serait perdu. Choisissez un autre nom pour le fichier à générer."};
    return {};
}

bool cible_est_l_entree(const Demande& demande) {
    return meme_fichier(demande.cible, demande.entree);
}

fs::path cible_par_defaut(const fs::path& dossier_configuration, const std::string& NomProjet) {
    return chemin_de_projet(dossier_configuration, NomProjet, "GENERE.BAS");
}
