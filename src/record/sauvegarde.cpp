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
        : etat_(etat), dossier_(std::move(dossier)), ecrit_(ecrit) {}

    std::string nom(const char* sorte, int i) const {
        return nom_de_fichier(etat_.NomProjet, sorte + std::to_string(i) + ".ini");
    }
    fs::path chemin(const std::string& nom) const { return trouver_fichier(dossier_, nom); }
    fs::path chemin_trajet(int i) const { return chemin(nom(" Trajet", i)); }
    // Deliberate: its number is the robot counter's after the last robot.
    fs::path chemin_generation() const {
        return chemin(nom(" PourGenerer", dernier_robot_propose + 1));
    }

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

    void ecrire_trajet(int i) {
        ecrire(chemin_trajet(i), [&] { return texte_trajet(etat_, i, nom(" Trajet", i)); });
    }
    void ecrire_generation() {
        ecrire(chemin_generation(), [&] {
            return texte_generation(etat_, nom(" PourGenerer", dernier_robot_propose + 1));
        });
    }

    // Runs `action` with the table as the files have it; when a coordinate does not allow that,
    // everything stays as it was.
    template <typename Action>
    void sur_la_table_droite(Action action) {
        const bool tournee = etat_.TableHorizontale && essayer(dossier_, [&] { vertical(etat_); });
        action();
        if (tournee)
            essayer(dossier_, [&] { horizontal(etat_); });
    }

    std::vector<EchecEcriture> echecs() && { return std::move(echecs_); }

private:
    Etat& etat_;
    fs::path dossier_;
    const Ecrit& ecrit_;
    std::vector<EchecEcriture> echecs_;
};

bool demander(Etat& e, Fenetres& f, int i, const fs::path& chemin, const std::string& explication) {
    std::string texte = "Vous avez modifié le trajet du robot " + std::to_string(i);
    texte += RetourLigne;
    texte += "Doit-on le sauvegarder ?";
    texte += RetourLigne;
    texte += "( Fichier : " + chemin.string();
    f.ecrire_texte_Mess(texte);
    const bool oui = f.question(texte, explication);
    e.TrajetModifie(i) = false;
    return oui;
}

int dernier_modifie(const Etat& e) {
    int i = dernier_robot_propose;
    while (i >= 0 && !e.TrajetModifie(i))
        --i;
    return i;
}

} // namespace

void Set_Sauv_Robot(Etat& e, Entier16 I) {
    e.TrajetModifie(I) = true;
}

std::string BilanSauvegarde::message() const {
    if (echecs.empty())
        return {};
    std::string texte = "Le trajet enregistré n'a pas pu être sauvegardé en entier :";
    for (const EchecEcriture& echec : echecs)
        texte.append(RetourLigne).append(echec.chemin.string() + " : " + echec.raison);
    texte += RetourLigne;
    if (en_surete())
        return texte + "L'enregistrement est gardé dans " + reprise.string() +
               " : il sera proposé au prochain démarrage.";
    return texte + "L'enregistrement n'est gardé nulle part ailleurs (" + echec_reprise + ").";
}

BilanSauvegarde SauvRobot(Etat& e, Fenetres& f, const fs::path& dossier_configuration,
                          std::string_view apres_un_refus, const Ecrit& ecrit) {
    BilanSauvegarde bilan;
    if (const std::string raison = raison_projet_impossible(e.NomProjet); !raison.empty()) {
        bilan.echecs.push_back({dossier_configuration, raison});
        return bilan;
    }
    Ecriture ecriture(e, dossier_configuration, ecrit);
    const int dernier = dernier_modifie(e);
    ecriture.sur_la_table_droite([&] {
        for (int i = 0; i <= dernier; ++i) {
            if (!e.TrajetModifie(i))
                continue;
            std::string explication = "Non : ce trajet ne sera plus proposé.";
            explication.append(apres_un_refus);
            if (i == dernier)
                explication.append(RetourLigne)
                    .append("Cette réponse décide aussi du fichier de génération.");
            bilan.generation = demander(e, f, i, ecriture.chemin_trajet(i), explication);
            (bilan.generation ? bilan.acceptes : bilan.refuses).set(static_cast<std::size_t>(i));
            if (bilan.generation)
                ecriture.ecrire_trajet(i);
        }
        if (bilan.generation) {
            f.information(ecriture.chemin_generation().string());
            ecriture.ecrire_generation();
        }
    });
    bilan.echecs = std::move(ecriture).echecs();
    return bilan;
}

std::vector<EchecEcriture> ecrire_ailleurs(Etat& e, const BilanSauvegarde& reponses,
                                           const fs::path& dossier) {
    const Ecrit personne;
    Ecriture ecriture(e, dossier, personne);
    ecriture.sur_la_table_droite([&] {
        for (int i = 0; i <= dernier_robot_propose; ++i) {
            if (reponses.acceptes.test(static_cast<std::size_t>(i)))
                ecriture.ecrire_trajet(i);
        }
        if (reponses.generation)
            ecriture.ecrire_generation();
    });
    return std::move(ecriture).echecs();
}
