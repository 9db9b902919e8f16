#include "record/reprise.h"

#include "base/fichiers.h"

#include <utility>

namespace fs = std::filesystem;

namespace {

Robots robots_modifies(const Etat& e) {
    Robots robots;
    for (int i = 0; i <= robots_max; ++i)
        robots.set(static_cast<std::size_t>(i), e.TrajetModifie(i));
    return robots;
}

void supprimer(const fs::path& fichier) {
    std::error_code erreur;
    fs::remove(fichier, erreur);
}

std::string question_de_reprise(const std::string& projet, const Enregistrement& enregistrement) {
    std::string texte = "Un trajet enregistré n'a pas été sauvegardé :";
    texte += RetourLigne;
    texte += "projet " + projet;
    for (const Enregistrement::Robot& robot : enregistrement.robots)
        texte += ", robot " + std::to_string(robot.numero) + " (" +
                 std::to_string(robot.actions.size()) + " actions)";
    texte += RetourLigne;
    return texte + "Faut-il le reprendre ?";
}

} // namespace

std::string BilanSauvegarde::message() const {
    if (echecs.empty())
        return {};
    std::string texte = "Le trajet enregistré n'a pas pu être sauvegardé en entier :";
    for (const EchecEcriture& echec : echecs)
        texte.append(RetourLigne).append(echec.chemin.string() + " : " + echec.raison);
    texte += RetourLigne;
    if (echec_reprise.empty())
        return texte + "L'enregistrement est gardé dans " + reprise.string() +
               " : il sera proposé au prochain démarrage.";
    return texte + "L'enregistrement n'est gardé nulle part ailleurs (" + echec_reprise + ").";
}

AvisPartage Reprise::prendre_projet(bool vierge) {
    if (!place_.prendre(e.NomProjet, vierge))
        return {};
    return {
        "Le projet « " + e.NomProjet + " » est déjà ouvert dans un autre programme Tavolmex.",
        "Les deux écrivent les mêmes fichiers : le dernier qui sauvegarde l'emporte, la version "
        "précédente reste dans Sauvegardes. Chacun garde l'enregistrement qu'il n'a pas encore "
        "sauvegardé dans un fichier de reprise à lui."};
}

fs::path Reprise::chemin() const {
    return place_.fichier(e.NomProjet);
}

void Reprise::ecrire() {
    en_attente_ |= robots_modifies(e);
    if (en_attente_.none())
        return;
    remplacer_fichier(chemin(), texte_enregistrement(prendre_enregistrement(e, en_attente_)));
}

void Reprise::ecrire_ou_prevenir(Fenetres& f) {
    try {
        ecrire();
        prevenu_ = false;
    } catch (const ErreurExecution& erreur) {
        if (!std::exchange(prevenu_, true))
            f.message(std::string("Le fichier de reprise n'a pas pu être écrit : ") +
                      erreur.what() + ". L'enregistrement continue.");
    }
}

BilanSauvegarde Reprise::sauver(Fenetres& f, const Ecrit& ecrit) {
    const Robots demandes = robots_modifies(e); // SauvRobot forgets the flags
    en_attente_ |= demandes;
    BilanSauvegarde bilan{SauvRobot(e, f, dossier_, ecrit), chemin(), {}};
    if (bilan.complete())
        en_attente_ &= ~demandes;
    try {
        if (en_attente_.any())
            ecrire();
        else if (demandes.any())
            supprimer(chemin());
    } catch (const ErreurExecution& erreur) {
        bilan.echec_reprise = erreur.what();
    }
    return bilan;
}

void Reprise::mettre_de_cote(Fenetres& f, const fs::path& fichier,
                             const std::string& raison) const {
    const fs::path a_cote = fichier.string() + ".illisible";
    std::error_code erreur;
    fs::rename(fichier, a_cote, erreur);
    f.message("Le trajet enregistré ne peut pas être repris : " + raison +
              (erreur ? "" : ". Le fichier est mis de côté : " + a_cote.string()));
}

bool Reprise::proposer(Fenetres& f, const std::function<void(const std::string&)>& charger_projet) {
    en_attente_.reset();
    auto attente = place_.en_attente(e.NomProjet, charger_projet != nullptr);
    if (!attente)
        return false;
    const fs::path fichier = attente->fichier;
    const std::string projet = attente->projet;
    int ligne = 0;
    try {
        const Enregistrement lu = lire_enregistrement(en_utf8(lire_octets(fichier)), ligne);
        if (!f.question(question_de_reprise(projet, lu))) {
            supprimer(fichier);
            return false;
        }
        place_.adopter(std::move(*attente));
        if (projet != e.NomProjet)
            charger_projet(projet);
        restaurer_enregistrement(e, lu);
        for (const Enregistrement::Robot& robot : lu.robots)
            en_attente_.set(static_cast<std::size_t>(robot.numero));
        return true;
    } catch (const ErreurFichier& erreur) {
        mettre_de_cote(f, fichier, erreur.what());
    } catch (const ErreurExecution& erreur) {
        mettre_de_cote(f, fichier,
                       fichier.string() + " Ligne " + std::to_string(ligne) + " : " +
                           erreur.what());
    }
    return false;
}
