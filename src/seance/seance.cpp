#include "seance/seance.h"

#include "sim/damier.h"
#include "sim/orientation.h"

#include <string>
#include <utility>

Seance::Seance(Etat& etat, Fenetres& fenetres, Hote& hote,
               std::filesystem::path dossier_application)
    : etat_(etat),
      fenetres_(fenetres),
      hote_(hote),
      projet_(etat, fenetres, std::move(dossier_application)),
      moteur_(etat, fenetres),
      reprise_(etat, projet_.dossier_configuration()) {}

bool Seance::trajet_non_sauve() const {
    for (int i = 0; i <= robots_max; ++i)
        if (etat_.TrajetModifie(i))
            return true;
    return false;
}

bool Seance::demarrer() {
    return etape([this] { lire_projet(); }) && etape([this] { hote_.appliquer_reglages(); }) &&
           etape([this] { dessiner(); });
}

bool Seance::etape(const std::function<void()>& procedure) {
    try {
        procedure();
    } catch (const std::exception& erreur) {
        fenetres_.message(texte_erreur_execution(erreur.what()));
        return hote_.apres_panne();
    }
    return !hote_.terminee();
}

void Seance::lire_projet() {
    etat_.NomProjet = "Defaut";
    fenetres_.ecrire_LNom("\r\n\r\nArdanel Fichier de configuration par défaut");
    const bool premier = projet_.jamais_demarre();
    projet_.Installe();
    if (premier)
        projet_.deposer_notice();
    projet_.LoadGeneral();
    annonces_.annoncer(&Ecouteur::projet_va_etre_lu);
    projet_.LoadTable();
    hote_.Init_Table();
    projet_.Init_Robot();
    projet_.Init_Jeu();
    initDamier(etat_);
    if (etat_.TableHorizontale)
        horizontal(etat_);
}

void Seance::dessiner() {
    fenetres_.Dessine_Table();
    fenetres_.Dessine_Robot();
}

void Seance::prendre_projet() {
    if (const AvisPartage avis = reprise_.prendre_projet(); !avis.texte.empty())
        fenetres_.message(avis.texte, avis.explication);
}

bool Seance::proposer_reprise() {
    prendre_projet();
    return annoncer_reprise(reprise_.proposer(fenetres_, [this](const std::string& nom) {
        etat_.NomProjet = nom;
        recharger();
    }));
}

bool Seance::proposer_reprise_du_projet() {
    return annoncer_reprise(reprise_.proposer(fenetres_));
}

bool Seance::annoncer_reprise(bool reprise) {
    if (reprise)
        annonces_.annoncer(&Ecouteur::trajet_change);
    return reprise;
}

bool Seance::reprendre(const Enregistrement& enregistrement) {
    return annoncer_reprise(reprise_.reprendre(fenetres_, enregistrement));
}

void Seance::recharger() {
    projet_.Installe();
    annonces_.annoncer(&Ecouteur::projet_va_etre_lu);
    moteur_.Fin_Jeu();
    projet_.LoadTable();
    projet_.Init_Robot();
    projet_.Init_Jeu();
    if (etat_.TableHorizontale)
        horizontal(etat_);
    hote_.Init_Table();
    dessiner();
    annonces_.annoncer(&Ecouteur::projet_change, Lecture::projet);
    prendre_projet();
}

void Seance::tourner_la_table(bool horizontalement) {
    horizontalement ? horizontal(etat_) : vertical(etat_);
    etat_.TableHorizontale = vrai16(horizontalement);
    hote_.Init_Table();
    etat_.persistant = true;
    fenetres_.Dessine_Table();
    if (!etat_.AffichageLent)
        etat_.persistant = false;
    fenetres_.Dessine_Robot();
    annonces_.annoncer(&Ecouteur::reglages_changes);
}

void Seance::changer_NbRobot(Entier16 nombre) {
    etat_.NbRobot = nombre;
    annonces_.annoncer(&Ecouteur::reglages_changes);
    dessiner();
}

// The robots stay where they stand: turned back with the old table, turned again with the new one.
void Seance::relire_table() {
    if (etat_.TableHorizontale)
        vertical(etat_);
    projet_.LoadTable();
    if (etat_.TableHorizontale)
        horizontal(etat_);
    annonces_.annoncer(&Ecouteur::projet_change, Lecture::table);
    hote_.redessiner();
}

void Seance::relire_tout() {
    reprise_.abandonner(fenetres_);
    projet_.LoadTable();
    projet_.Init_Robot();
    projet_.Init_Jeu();
    if (etat_.TableHorizontale)
        horizontal(etat_);
    annonces_.annoncer(&Ecouteur::projet_change, Lecture::fichiers);
    hote_.redessiner();
}

BilanSauvegarde Seance::sauver() {
    return reprise_.sauver(fenetres_, [this](const std::filesystem::path& fichier) {
        annonces_.annoncer(&Ecouteur::fichier_ecrit, fichier);
    });
}

bool Seance::SauvRobot() {
    BilanSauvegarde bilan = sauver();
    if (!bilan.en_surete())
        return sauver_ailleurs(std::move(bilan));
    if (!bilan.complete())
        fenetres_.message(bilan.message());
    return true;
}

// Nothing could be written: a full disk, a stick that is gone.
bool Seance::sauver_ailleurs(BilanSauvegarde bilan) {
    constexpr auto non = "Non : rien n'est fermé, le trajet reste dans le programme.";
    const auto demander = [&](const char* question) {
        return fenetres_.question(bilan.message() + std::string(RetourLigne) + question, non);
    };
    if (bilan.acceptes.none())
        return demander("Faut-il continuer sans garder ce trajet ?");
    while (demander("Faut-il l'écrire dans un autre dossier ?")) {
        const std::filesystem::path dossier = hote_.choisir_dossier("Où écrire le trajet ?");
        if (dossier.empty())
            continue;
        bilan.echecs = reprise_.sauver_ailleurs(bilan, dossier);
        if (bilan.complete()) {
            fenetres_.information("Le trajet est écrit dans " + dossier.string());
            return true;
        }
    }
    return false;
}
