#include "record/sauvegarde.h"

#include "base/fichiers.h"
#include "config/nom_projet.h"
#include "record/generation.h"
#include "record/trajet.h"
#include "sim/orientation.h"

#include <utility>

namespace fs = std::filesystem;

namespace {

constexpr int dernier_robot_propose = 9;

// One saving: the state, where it goes, and what failed on the way.
class Ecriture {
public:
    Ecriture(Etat& etat, fs::path dossier, const Ecrit& ecrit)
        : e(etat), dossier_(std::move(dossier)), ecrit_(ecrit) {}

    std::string nom(const char* sorte, int i) const {
        return nom_de_fichier(e.NomProjet, sorte + std::to_string(i) + ".ini");
    }
    fs::path chemin(const std::string& nom) const { return trouver_fichier(dossier_, nom); }

    // Runs `action`; its error is kept, under the file that it was for, instead of going further.
    template <typename Action>
    bool essayer(const fs::path& fichier, Action action) {
        try {
            action();
            return true;
        } catch (const ErreurFichier& erreur) {
            const bool le_meme = erreur.chemin() == fichier;
            echecs_.push_back({fichier, le_meme ? erreur.raison() : erreur.what()});
        } catch (const ErreurExecution& erreur) {
            echecs_.push_back({fichier, erreur.what()});
        }
        return false;
    }

    template <typename Texte>
    void ecrire(const fs::path& fichier, Texte texte) {
        essayer(fichier, [&] {
            const std::string contenu = texte();
            sauvegarder_version(fichier, dossier_ / "Sauvegardes");
            remplacer_fichier(fichier, contenu);
            if (ecrit_)
                ecrit_(fichier);
        });
    }

    std::vector<EchecEcriture> echecs() && { return std::move(echecs_); }

private:
    Etat& e;
    fs::path dossier_;
    const Ecrit& ecrit_;
    std::vector<EchecEcriture> echecs_;
};

// Turns the table as the files have it; when a coordinate does not allow it, everything stays as it
// was.
bool redresser(Etat& e, Ecriture& ecriture, const fs::path& dossier) {
    if (!e.TableHorizontale)
        return false;
    return ecriture.essayer(dossier, [&] { vertical(e); });
}

bool demander(Etat& e, Fenetres& f, int i, const fs::path& chemin) {
    std::string texte = "Vous avez modifié le trajet du robot " + std::to_string(i);
    texte += RetourLigne;
    texte += "Doit-on le sauvegarder ?";
    texte += RetourLigne;
    texte += "( Fichier : " + chemin.string();
    f.ecrire_texte_Mess(texte);
    const bool oui = f.question(texte);
    e.TrajetModifie(i) = false;
    return oui;
}

} // namespace

void Set_Sauv_Robot(Etat& e, Entier16 I) {
    e.TrajetModifie(I) = true;
}

std::vector<EchecEcriture> SauvRobot(Etat& e, Fenetres& f, const fs::path& dossier_configuration,
                                     const Ecrit& ecrit) {
    if (const std::string raison = raison_projet_impossible(e.NomProjet); !raison.empty())
        return {EchecEcriture{dossier_configuration, raison}};
    Ecriture ecriture(e, dossier_configuration, ecrit);
    const bool tournee = redresser(e, ecriture, dossier_configuration);
    bool oui = false; // the last answer decides about the generation input file
    int i = 0;
    for (; i <= dernier_robot_propose; ++i) {
        if (!e.TrajetModifie(i))
            continue;
        const std::string nom = ecriture.nom(" Trajet", i);
        const fs::path chemin = ecriture.chemin(nom);
        oui = demander(e, f, i, chemin);
        if (oui)
            ecriture.ecrire(chemin, [&] { return texte_trajet(e, i, nom); });
    }
    if (oui) {
        const std::string nom = ecriture.nom(" PourGenerer", i);
        const fs::path chemin = ecriture.chemin(nom);
        f.message(chemin.string());
        ecriture.ecrire(chemin, [&] { return texte_generation(e, nom); });
    }
    if (tournee)
        ecriture.essayer(dossier_configuration, [&] { horizontal(e); });
    return std::move(ecriture).echecs();
}
