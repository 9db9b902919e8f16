#include "record/reprise.h"

#include "base/fichiers.h"
#include "config/nom_projet.h"

#include <utility>

namespace fs = std::filesystem;

namespace {

constexpr std::string_view nom_garde = " Reprise.ini"; ///< of which the kept ones are versions

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

// A directory that has disappeared is made again; what cannot be made is told by what is written.
void recreer(const fs::path& dossier) {
    std::error_code erreur;
    fs::create_directories(dossier, erreur);
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

AvisPartage Reprise::prendre_projet(bool vierge) {
    if (!place_.prendre(etat_.NomProjet, vierge))
        return {};
    return {
        "Le projet « " + etat_.NomProjet + " » est déjà ouvert dans un autre programme Tavolmex.",
        "Les deux écrivent les mêmes fichiers : le dernier qui sauvegarde l'emporte, la version "
        "précédente reste dans Sauvegardes. Chacun garde l'enregistrement qu'il n'a pas encore "
        "sauvegardé dans un fichier de reprise à lui."};
}

fs::path Reprise::chemin() const {
    return place_.fichier(etat_.NomProjet);
}

std::string Reprise::texte(const Robots& robots) const {
    return texte_enregistrement(prendre_enregistrement(etat_, robots));
}

bool Reprise::contient(const std::string& texte) const {
    try {
        return lire_octets(chemin()) == texte;
    } catch (const ErreurFichier&) {
        return false;
    }
}

void Reprise::ecrire() {
    en_attente_ |= robots_modifies(etat_);
    if (en_attente_.none())
        return;
    const fs::path fichier = chemin();
    recreer(dossier_);
    // A recording that was there before and never came back is not ours to replace.
    std::error_code erreur;
    if (tenu_ != fichier && fs::exists(fichier, erreur))
        garder_texte(etat_.NomProjet, lire_octets(fichier));
    remplacer_fichier(fichier, texte(en_attente_));
    tenu_ = fichier;
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

std::string Reprise::ou_restent_les_refus() const {
    return " Il reste dans " + dossier_gardes().string() +
           " : « Reprendre un trajet » de la télécommande le rend.";
}

BilanSauvegarde Reprise::sauver(Fenetres& f, const Ecrit& ecrit) {
    const Robots demandes = robots_modifies(etat_); // SauvRobot forgets the flags
    en_attente_ |= demandes;
    if (demandes.any())
        recreer(dossier_);
    BilanSauvegarde bilan = SauvRobot(etat_, f, dossier_, ou_restent_les_refus(), ecrit);
    bilan.reprise = chemin();
    garder_les_refus(bilan);
    if (bilan.complete())
        en_attente_ &= ~demandes;
    try {
        if (en_attente_.any())
            ecrire();
        else if (tenu_ == chemin())
            supprimer(tenu_);
    } catch (const ErreurExecution& erreur) {
        if (!contient(texte(en_attente_)))
            bilan.echec_reprise = erreur.what();
    }
    for (int i = 0; i <= robots_max && !bilan.en_surete(); ++i)
        etat_.TrajetModifie(i) = en_attente_.test(static_cast<std::size_t>(i));
    return bilan;
}

// A refused path that cannot be kept waits in the recovery file instead.
void Reprise::garder_les_refus(BilanSauvegarde& bilan) {
    if (bilan.refuses.none())
        return;
    try {
        garder(bilan.refuses);
        en_attente_ &= ~bilan.refuses;
    } catch (const ErreurFichier& erreur) {
        bilan.echecs.push_back({erreur.chemin(), erreur.raison()});
    } catch (const ErreurExecution& erreur) {
        bilan.echecs.push_back({dossier_gardes(), erreur.what()});
    }
}

std::vector<EchecEcriture> Reprise::sauver_ailleurs(const BilanSauvegarde& bilan,
                                                    const fs::path& dossier) {
    std::vector<EchecEcriture> echecs = ecrire_ailleurs(etat_, bilan, dossier);
    const fs::path fichier = dossier / chemin().filename();
    try {
        if (bilan.refuses.any())
            remplacer_fichier(fichier, texte(bilan.refuses));
    } catch (const ErreurExecution& erreur) {
        echecs.push_back({fichier, erreur.what()});
    }
    if (echecs.empty()) {
        en_attente_.reset();
        etat_.TrajetModifie.remplir(false);
    }
    return echecs;
}

void Reprise::garder(const Robots& robots) {
    garder_texte(etat_.NomProjet, texte(robots));
}

// Whichever program's recovery file it was in: the kept ones are the project's.
void Reprise::garder_texte(const std::string& projet, const std::string& contenu) const {
    const fs::path fichier = chemin_de_projet(dossier_, projet, nom_garde);
    const std::vector<fs::path> versions = versions_gardees(fichier, dossier_gardes());
    try {
        if (!versions.empty() && lire_octets(versions.front()) == contenu)
            return;
    } catch (const ErreurFichier&) { // NOLINT(bugprone-empty-catch)
        // Not readable: not the same.
    }
    recreer(dossier_);
    garder_version(fichier, contenu, dossier_gardes());
}

bool Reprise::garder_ou_prevenir(Fenetres& f) {
    const Robots robots = en_attente_ | robots_modifies(etat_);
    if (robots.none())
        return false;
    try {
        garder(robots);
        return true;
    } catch (const ErreurExecution& erreur) {
        f.message(std::string("Le trajet enregistré n'a pas pu être mis dans les sauvegardes : ") +
                  erreur.what());
        return false;
    }
}

void Reprise::abandonner(Fenetres& f) {
    const bool garde = garder_ou_prevenir(f);
    etat_.TrajetModifie.remplir(false);
    en_attente_.reset();
    if (garde && tenu_ == chemin())
        supprimer(tenu_);
    tenu_.clear();
}

std::vector<EnregistrementGarde> Reprise::gardes() const {
    std::vector<EnregistrementGarde> lus;
    for (const fs::path& fichier : versions_gardees(
             chemin_de_projet(dossier_, etat_.NomProjet, nom_garde), dossier_gardes())) {
        try {
            int ligne = 0;
            lus.push_back({fichier, lire_enregistrement(en_utf8(lire_octets(fichier)), ligne)});
        } catch (const ErreurExecution&) { // NOLINT(bugprone-empty-catch)
            // What cannot be read is not offered.
        }
    }
    return lus;
}

void Reprise::restaurer(const Enregistrement& enregistrement) {
    restaurer_enregistrement(etat_, enregistrement);
    for (const Enregistrement::Robot& robot : enregistrement.robots)
        en_attente_.set(static_cast<std::size_t>(robot.numero));
    tenu_ = chemin();
}

bool Reprise::reprendre(Fenetres& f, const Enregistrement& enregistrement) {
    const bool rien_a_garder = (en_attente_ | robots_modifies(etat_)).none();
    if (!rien_a_garder && !garder_ou_prevenir(f))
        return false;
    etat_.TrajetModifie.remplir(false);
    en_attente_.reset();
    restaurer(enregistrement);
    ecrire_ou_prevenir(f);
    return true;
}

void Reprise::mettre_de_cote(Fenetres& f, const fs::path& fichier,
                             const std::string& raison) const {
    const fs::path a_cote = fichier.string() + ".illisible";
    std::error_code erreur;
    fs::rename(fichier, a_cote, erreur);
    f.message("Le trajet enregistré ne peut pas être repris : " + raison +
              (erreur ? "" : ". Le fichier est mis de côté : " + a_cote.string()));
}

int Reprise::dernier_robot() const {
    int i = robots_max;
    while (i > 0 && !en_attente_.test(static_cast<std::size_t>(i)))
        --i;
    return i;
}

std::optional<Enregistrement> Reprise::lire(Fenetres& f, const fs::path& fichier) const {
    int ligne = 0;
    try {
        return lire_enregistrement(en_utf8(lire_octets(fichier)), ligne);
    } catch (const ErreurFichier& erreur) {
        mettre_de_cote(f, fichier, erreur.what());
    } catch (const ErreurExecution& erreur) {
        mettre_de_cote(f, fichier,
                       fichier.string() + " Ligne " + std::to_string(ligne) + " : " +
                           erreur.what());
    }
    return {};
}

bool Reprise::proposer(Fenetres& f, const std::function<void(const std::string&)>& charger_projet) {
    en_attente_.reset();
    tenu_.clear();
    auto attente = place_.en_attente(etat_.NomProjet, charger_projet != nullptr);
    if (!attente)
        return false;
    const fs::path fichier = attente->fichier;
    const std::string projet = attente->projet;
    const std::optional<Enregistrement> lu = lire(f, fichier);
    if (!lu)
        return false;
    try {
        if (!f.question(question_de_reprise(projet, *lu),
                        "Non : ce trajet ne sera plus proposé." + ou_restent_les_refus())) {
            garder_texte(projet, texte_enregistrement(*lu));
            supprimer(fichier);
            return false;
        }
        place_.adopter(std::move(*attente));
        if (projet != etat_.NomProjet)
            charger_projet(projet);
        restaurer(*lu);
        return true;
    } catch (const ErreurExecution& erreur) {
        f.message("Le trajet enregistré n'a pas été repris : " + std::string(erreur.what()) +
                  ". Il reste dans " + fichier.string() +
                  " et sera proposé au prochain démarrage.");
    }
    return false;
}
