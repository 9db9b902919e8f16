#include "config/projet.h"

#include "base/brouillon.h"
#include "base/fichiers.h"
#include "config/defauts.h"
#include "config/ecriture.h"
#include "config/lecteur_general.h"
#include "config/lecteur_robot.h"
#include "config/lecteur_table.h"
#include "config/lecteur_trajet.h"
#include "config/nom_projet.h"
#include "sim/secours.h"

#include <utility>

namespace fs = std::filesystem;

namespace {

/// A reader accepts 32767 lines at most: this leaves more than a hundred characters for each.
constexpr std::size_t taille_lisible = std::size_t{4} << 20;

constexpr const char* nom_general = "Tavolmex.ini";

bool est_libre(const fs::path& chemin) {
    std::error_code erreur;
    return fs::symlink_status(chemin, erreur).type() == fs::file_type::not_found;
}

/// Writes a default file unless something of that name is there.
template <typename Contenu>
void creer_si_absent(const fs::path& chemin, Contenu contenu) {
    if (!est_libre(chemin))
        return;
    const std::string octets = contenu();
    try {
        remplacer_fichier(chemin, octets);
    } catch (const ErreurFichier&) { // NOLINT(bugprone-empty-catch)
        // The file stays missing; its reader says so.
    }
}

} // namespace

Projet::Projet(Etat& etat, Fenetres& fenetres, fs::path dossier_application)
    : etat_(etat),
      fenetres_(fenetres),
      dossier_(std::move(dossier_application)),
      configuration_((dossier_configuration() / "").string()) {}

const fs::path& Projet::dossier_application() const {
    return dossier_;
}
fs::path Projet::dossier_configuration() const {
    return dossier_ / "Configuration";
}
fs::path Projet::chemin_general() const {
    return trouver_fichier(dossier_configuration(), nom_general);
}
fs::path Projet::chemin(std::string_view suite) const {
    return fichier_de_projet(dossier_configuration(), etat_.NomProjet, suite);
}
fs::path Projet::chemin_table() const {
    return chemin(suite_table);
}
fs::path Projet::chemin_robot(int n) const {
    return chemin(suite_robot(n));
}
fs::path Projet::chemin_trajet(int n) const {
    return chemin(suite_trajet(n));
}

void Projet::imposer_projet(std::string nom) {
    exiger_projet_possible(nom);
    projet_impose_ = std::move(nom);
}

void Projet::lire_trajet_autrement(int n, std::function<std::string(std::string_view)> texte) {
    autre_trajet_ = n;
    autre_texte_ = std::move(texte);
}

void Projet::Installe() {
    std::error_code ignoree;
    // Deliberate: created where the process stands, while the files go below the application
    // directory.
    fs::create_directory("Configuration", ignoree);
    for (const fs::path& dossier :
         {dossier_configuration(), dossier_configuration() / "Sauvegardes"})
        retirer_brouillons(dossier);
    creer_si_absent(chemin_general(), general_par_defaut);
    if (!raison_projet_impossible(etat_.NomProjet).empty())
        return;
    creer_si_absent(chemin_table(), [this] {
        Init_Table_Old(etat_);
        return table_par_defaut();
    });
    for (int n = 1; n <= robots_des_fichiers; ++n) {
        creer_si_absent(chemin_robot(n), [&] { return robot_par_defaut(etat_.NomProjet, n); });
        creer_si_absent(chemin_trajet(n), [&] {
            Init_Jeu_Old(etat_);
            return trajet_par_defaut(etat_.NomProjet, n);
        });
    }
}

bool Projet::jamais_demarre() const {
    return est_libre(chemin_general());
}

void Projet::deposer_notice() const {
    creer_si_absent(dossier_ / "Readme.txt", texte_de_la_notice);
}

template <typename Lecteur>
bool Projet::lire(std::string_view projet, std::string_view suite, const Entier16& NoLigne,
                  Lecteur lecteur, int robot, std::string_view consequence) {
    const int ligne_avant = NoLigne; // trajectories count on from one file to the next
    // Other spellings are looked for only when there is no such file: looking takes longer than
    // reading.
    std::string chemin = (configuration_ + std::string(projet)).append(suite);
    const auto contenu = [&] {
        exiger_projet_possible(projet);
        try {
            return lire_octets_natif(chemin.c_str(), taille_lisible);
        } catch (const ErreurFichier&) {
            chemin = fichier_de_projet(dossier_configuration(), projet, suite).string();
            return lire_octets_natif(chemin.c_str(), taille_lisible);
        }
    };
    ErreurDeLecture faute;
    try {
        const std::string texte = en_utf8(contenu());
        lecteur(std::string_view(texte));
        return true;
    } catch (const ErreurFichier& erreur) {
        faute.nature = ErreurDeLecture::Nature::acces;
        faute.raison = erreur.raison();
    } catch (const ErreurExecution& erreur) {
        faute.raison = erreur.what();
    }
    faute.fichier = chemin;
    faute.robot = robot;
    faute.ligne = NoLigne - ligne_avant;
    faute.ligne_annoncee = NoLigne;
    faute.consequence = consequence;
    faute.suite = suite;
    fenetres_.message(annonce(faute), explication(faute));
    erreurs_.push_back(std::move(faute));
    return false;
}

void Projet::oublier_erreurs(std::string_view sorte) {
    std::erase_if(erreurs_,
                  [sorte](const auto& erreur) { return erreur.suite.starts_with(sorte); });
}

void Projet::LoadGeneral() {
    erreurs_.clear();
    const std::string ancien = std::exchange(etat_.NomProjet, "Defaut");
    Entier16 NoLigne;
    lire("", nom_general, NoLigne,
         [&](std::string_view texte) { lire_general(texte, etat_, NoLigne); });
    if (projet_impose_)
        etat_.NomProjet = *projet_impose_;
    if (etat_.NomProjet != ancien && installation_)
        Installe();
}

void Projet::LoadTable() {
    oublier_erreurs(suite_table);
    Entier16 NoLigne;
    vider_table(etat_);
    fenetres_.ecrire_LNom("");
    const auto nommer = [this](std::string_view nom) { fenetres_.ecrire_LNom(nom); };
    if (!lire(etat_.NomProjet, suite_table, NoLigne,
              [&](std::string_view texte) { lire_table(texte, etat_, nommer, NoLigne); }))
        Init_Table_Old(etat_);
}

void Projet::LoadRobot() {
    oublier_erreurs(" Robot");
    LecteurRobot lecteur(etat_);
    for (int n = 1; n <= robots_des_fichiers; ++n) {
        Entier16 NoLigne;
        if (!lire(
                etat_.NomProjet, suite_robot(n), NoLigne,
                [&](std::string_view texte) { lecteur.lire(texte, n, NoLigne); }, n))
            return Init_Robot_Old(etat_, n);
    }
}

void Projet::LoadTrajet() {
    constexpr std::string_view sans_trajets = "Tous les robots restent immobiles, ceux des "
                                              "autres fichiers aussi, tant que ce fichier "
                                              "n'est pas corrigé.";
    oublier_erreurs(" Trajet");
    LecteurTrajet lecteur(etat_);
    Entier16 NoLigne; // deliberately counts over all nine files
    for (int n = 1; n <= robots_des_fichiers; ++n) {
        const auto lire_le_texte = [&](std::string_view texte) {
            const bool autre = n == autre_trajet_;
            lecteur.lire(autre ? autre_texte_(texte) : texte, n, NoLigne);
        };
        if (!lire(etat_.NomProjet, suite_trajet(n), NoLigne, lire_le_texte, n, sans_trajets)) {
            lignes_trajet_.remplir({});
            return Init_Jeu_Old(etat_);
        }
        lignes_trajet_(n) = lecteur.lignes();
    }
}

void Projet::Init_Robot() {
    LoadRobot();
    Init_Jeu_Old(etat_);
}

void Projet::Init_Jeu() {
    LoadTrajet();
    for (int i = 1; i <= robots_des_fichiers; ++i) {
        etat_.CapRobot(i) = etat_.CapInit(i);
        etat_.XRobot(i) = etat_.XInit(i);
        etat_.YRobot(i) = etat_.YInit(i);
    }
}

void Projet::verifier() {
    installation_ = false;
    LoadGeneral();
    LoadTable();
    Init_Robot();
    Init_Jeu();
    installation_ = true;
}

void Projet::SaveGeneral(std::string_view nom, const ReglagesGeneraux& reglages) {
    try {
        exiger_projet_possible(nom);
        remplacer_fichier(chemin_general(), general_en_texte(nom, reglages));
    } catch (const ErreurExecution&) { // NOLINT(bugprone-empty-catch)
        // The settings of the last successful writing stay.
    }
}
