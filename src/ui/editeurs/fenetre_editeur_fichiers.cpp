// The editors' files: opened, saved, recovered, closed without losing work.
#include "ui/editeurs/fenetre_editeur.h"

#include "base/fichiers.h"
#include "sim/fenetres.h"
#include "ui/commun/vue_echelle.h"
#include "ui/editeurs/foutil.h"
#include "ui/editeurs/nouveau_projet.h"

#include <QFileInfo>
#include <QLocale>
#include <QStatusBar>
#include <QUndoStack>

namespace {

QString nom_court(const std::filesystem::path& chemin) {
    return texte_qt(chemin.filename().string());
}

} // namespace

void FenetreEditeur::nouveau() {
    if (!peut_partir())
        return;
    chemin_.clear();
    veilleur_.suivre({});
    commencer();
    autre_fichier();
}

// The drawing that was there is not wanted any more.
void FenetreEditeur::autre_fichier() {
    remplacement_accepte_ = false;
    nom_propose_.clear();
    ecrire_reprise();
    montrer_titre();
    vue().ajuster();
    fichier_change();
}

void FenetreEditeur::choisir_un_fichier() {
    if (!peut_partir())
        return;
    const QString nom = boites_.choisir_fichier(
        "Ouvrir ...", texte_qt(programme_.configuration.string()), description_.filtre);
    if (!nom.isEmpty())
        ouvrir(nom.toStdString());
}

bool FenetreEditeur::ouvrir(const std::filesystem::path& chemin) {
    try {
        std::string lus = lire_octets(chemin);
        const std::vector<int> incomprises = ouvert().lire(lus);
        chemin_ = chemin;
        sur_le_disque_ = std::move(lus);
        veilleur_.suivre({chemin_, chemin_.parent_path()});
        autre_fichier();
        if (!incomprises.empty())
            boites_.message("Fichier " + chemin.string() + " : " +
                            std::to_string(incomprises.size()) +
                            " ligne(s) non comprise(s), gardée(s) à leur place. Première : ligne " +
                            std::to_string(incomprises.front()));
        return true;
    } catch (const ErreurExecution& erreur) {
        boites_.message(erreur.what());
        return false;
    }
}

void FenetreEditeur::ouvrir_nouveau(const std::filesystem::path& chemin) {
    if (!ouvrir(chemin))
        return;
    remplacement_accepte_ = true;
    nom_propose_ = chemin.stem().string();
}

void FenetreEditeur::proposer(const std::filesystem::path& chemin) {
    const bool le_sien = !chemin_.empty() && chemin_ != propose_;
    std::error_code absent;
    if (isVisible() || le_sien || chemin_ == chemin || !pile().isClean() ||
        !std::filesystem::is_regular_file(chemin, absent))
        return;
    if (ouvrir(chemin))
        propose_ = chemin;
}

// Another program has saved the file: it is read again, after a question when that would lose
// changes. What is seen of the drawing stays.
void FenetreEditeur::verifier_disque() {
    std::error_code absent;
    if (chemin_.empty() || !std::filesystem::is_regular_file(chemin_, absent))
        return;
    if (boite_ouverte())
        return veilleur_.remettre(); // one question at a time
    try {
        std::string lus = lire_octets(chemin_);
        if (lus == sur_le_disque_ || lus == refuses_)
            return;
        const std::string nom = chemin_.filename().string();
        if (!pile().isClean() &&
            !boites_.question("Le fichier " + nom +
                              " a été modifié par un autre programme. Doit-on le relire et perdre "
                              "les changements du " +
                              description_.sujet + " ?")) {
            refuses_ = std::move(lus);
            return;
        }
        ouvert().lire(lus);
        sur_le_disque_ = std::move(lus);
        montrer_titre();
        fichier_change();
        statusBar()->showMessage("Relu après un changement : " + texte_qt(nom), 10000);
    } catch (const ErreurExecution& erreur) {
        boites_.message(erreur.what());
    }
}

bool FenetreEditeur::peut_remplacer(const std::filesystem::path& chemin) {
    std::error_code absent;
    if (!std::filesystem::exists(chemin, absent))
        return true;
    const bool le_mien = chemin == chemin_;
    const bool change = le_mien && lire_octets(chemin) != sur_le_disque_;
    // A trajectory is changed a little many times: what was opened to that end is not asked about.
    const bool accepte = remplacement_accepte_ || description_.genre == GenreFichier::trajet;
    if (le_mien && accepte && !change)
        return true;
    const std::string nom = chemin.filename().string();
    return boites_.question(
        change ? "Le fichier " + nom + " a été modifié depuis son ouverture. Doit-on le remplacer ?"
               : "Le fichier " + nom + " existe déjà. Doit-on le remplacer ?");
}

bool FenetreEditeur::genererFic(const std::filesystem::path& chemin) {
    try {
        if (const QString attendu = en_suspens(); !attendu.isEmpty())
            throw ErreurExecution(attendu.toStdString());
        const std::string texte = ouvert().octets();
        if (const auto refus = relire(texte);
            refus && !boites_.question("Le simulateur refusera ce fichier à la ligne " +
                                       std::to_string(refus->ligne) + " (" + refus->raison +
                                       "). Doit-on l'enregistrer quand même ?"))
            return false;
        if (!peut_remplacer(chemin))
            return false;
        ecrire(chemin, texte);
    } catch (const std::exception& erreur) { // the drawing stays, whatever the disk says
        boites_.message("Le " + description_.sujet + " n'a pas été enregistré : " + erreur.what());
        return false;
    }
    apres_ecriture();
    proposer_de_charger();
    return true;
}

void FenetreEditeur::ecrire(const std::filesystem::path& chemin, const std::string& octets) {
    std::error_code erreur;
    std::filesystem::create_directories(programme_.configuration, erreur);
    if (erreur)
        throw ErreurFichier(programme_.configuration, erreur.value());
    sauvegarder_version(chemin, programme_.configuration / "Sauvegardes");
    remplacer_fichier(chemin, octets);
    if (programme_.ecrit)
        programme_.ecrit(chemin);
    chemin_ = chemin;
    sur_le_disque_ = octets;
    remplacement_accepte_ = true;
    veilleur_.suivre({chemin_, chemin_.parent_path()});
    if (ouvert().octets() == octets) // nothing has changed under the questions
        pile().setClean();
    ecrire_reprise();
    montrer_titre();
    fichier_change();
    statusBar()->showMessage("Enregistré : " + nom_court(chemin), 5000);
}

void FenetreEditeur::proposer_de_charger() {
    const std::string projet = projet_du_nom(chemin_.stem().string(), description_.genre);
    std::error_code erreur;
    const bool a_sa_place =
        std::filesystem::equivalent(chemin_.parent_path(), programme_.configuration, erreur);
    if (!a_sa_place || projet.empty() || (programme_.relire && programme_.relire(projet)))
        return;
    if (boites_.question("Doit-on charger le projet " + projet + " maintenant ?"))
        programme_.charger(projet);
}

bool FenetreEditeur::enregistrer() {
    if (chemin_.empty())
        return enregistrer_sous();
    // "Ouvrir ..." takes files that no project could read back under their name.
    if (const std::string raison = raison_nom_impossible(chemin_.stem().string());
        !raison.empty()) {
        boites_.message("Le fichier " + chemin_.filename().string() +
                        " doit être enregistré sous un autre nom. " + raison);
        return enregistrer_sous();
    }
    return genererFic(chemin_);
}

bool FenetreEditeur::enregistrer_sous() {
    outils_.suivre(description_.genre);
    nouveauProjet dialogue(this, description_.genre, programme_.configuration);
    if (!nom_propose_.empty())
        dialogue.proposer(nom_propose_);
    dialogue.generer = [this](const std::filesystem::path& chemin) { return genererFic(chemin); };
    return dialogue.exec() == QDialog::Accepted;
}

FenetreEditeur::Depart FenetreEditeur::demander_depart() {
    if (!prendre_la_saisie())
        return Depart::annuler;
    if (pile().isClean() && en_suspens().isEmpty())
        return Depart::rien_a_perdre;
    switch (boites_.demander_sauvegarde(
        "Le " + description_.sujet + " a été modifié. Doit-on l'enregistrer ?",
        chemin_.empty() ? "Sans nom" : chemin_.filename().string())) {
    case Sauvegarde::enregistrer:
        return Depart::enregistrer;
    case Sauvegarde::ne_pas_enregistrer:
        return Depart::ne_pas_enregistrer;
    default:
        return Depart::annuler;
    }
}

bool FenetreEditeur::preparer_depart(Depart reponse) {
    return reponse == Depart::enregistrer ? enregistrer() : reponse != Depart::annuler;
}

void FenetreEditeur::partir() {
    if (!pile().isClean() || !en_suspens().isEmpty()) {
        if (chemin_.empty())
            commencer();
        else
            ouvert().lire(sur_le_disque_);
    }
    ecrire_reprise();
}

void FenetreEditeur::ecrire_reprise() {
    attente_reprise_.stop();
    try {
        if (pile().isClean())
            reprise_.effacer();
        else
            reprise_.ecrire({chemin_, sur_le_disque_, ouvert().figer()});
    } catch (const ErreurExecution& erreur) { // no box: the user is drawing
        statusBar()->showMessage(
            texte_qt("Le " + description_.sujet +
                     " n'est pas gardé pour le prochain démarrage : " + erreur.what()));
    }
}

// As changes that are not saved, on the file as it was then.
void FenetreEditeur::reprendre(const DessinGarde& garde) {
    ouvert().degeler(garde.document);
    chemin_ = garde.fichier;
    sur_le_disque_ = garde.sur_le_disque;
    veilleur_.suivre(chemin_.empty() ? std::vector<std::filesystem::path>{}
                                     : std::vector{chemin_, chemin_.parent_path()});
    pile().resetClean();
    autre_fichier();
}

bool FenetreEditeur::proposer_reprise(Fenetres& f) {
    while (const auto fichier = reprise_.prendre_la_suivante()) {
        try {
            const DessinGarde garde = reprise_.lire();
            const QDateTime date = QFileInfo(*fichier).lastModified();
            const QString question =
                QString("Un %1 n'a pas été enregistré :\n%2, le %3\nFaut-il le reprendre ?")
                    .arg(texte_qt(description_.sujet),
                         garde.fichier.empty() ? "sans nom" : nom_court(garde.fichier),
                         QLocale(QLocale::French).toString(date, "dd/MM/yyyy à HH:mm"));
            if (f.question(
                    question.toStdString(),
                    "Non : il ne sera plus proposé ; son fichier est rangé dans Sauvegardes.")) {
                reprendre(garde);
                return true;
            }
            reprise_.ranger();
        } catch (const ErreurExecution& erreur) {
            reprise_.mettre_de_cote();
            f.message("Un " + description_.sujet + " ne peut pas être repris : " + erreur.what(),
                      fichier->string() + ".illisible");
        }
    }
    return false;
}
