// What the trajectory editor writes beside its own file: the generation input, another robot's
// trajectory, subroutines of the team's program.
#include "base/fichiers.h"
#include "config/nom_projet.h"
#include "record/preparation.h"
#include "ui/commun/cle_de_projet.h"
#include "ui/editeurs/copie_trajet.h"
#include "ui/editeurs/dessin_trajet.h"

#include <QSettings>
#include <QStatusBar>

#include <numeric>

namespace {

void exiger_un_programme(const std::filesystem::path& fichier) {
    if (fichier.empty())
        throw ErreurExecution("choisissez le programme PICBASIC de l'équipe.");
    if (minuscules(fichier.extension().string()) != ".bas")
        throw ErreurExecution("le programme doit se terminer par « .bas ».");
}

} // namespace

void dessinTrajet::apres_ecriture() {
    if (generation_.isChecked() && !projet().empty())
        preparer_la_generation(projet(), historique_.doc(), robot());
}

void dessinTrajet::ecrire_a_cote(const std::filesystem::path& fichier, const std::string& octets) {
    sauvegarder_version(fichier, programme().configuration / "Sauvegardes");
    remplacer_fichier(fichier, octets);
    programme().ecrit(fichier);
    statusBar()->showMessage("Enregistré : " + texte_qt(fichier.filename().string()), 5000);
}

void dessinTrajet::preparer_la_generation(const std::string& projet, const DocumentTrajet& trajet,
                                          int robot) {
    try {
        const auto fichier =
            fichier_de_projet(programme().configuration, projet, suite_de_l_entree);
        const GenerationPreparee generation = preparer_entree(seance_.etat(), robot, trajet);
        ecrire_a_cote(fichier, generation.texte);
        if (generation.hors_du_match)
            boites_.message(fichier.filename().string() +
                            " est prêt, mais le match de 90 s finit avant ou avec une action de ce "
                            "trajet.");
    } catch (const ErreurExecution& erreur) {
        boites_.message("L'entrée du générateur n'a pas été préparée : " +
                        std::string(erreur.what()));
    }
}

QString dessinTrajet::cle_de_copie(const char* quoi) const {
    return cle_de_projet("copie_de_trajet", chemin().parent_path(), projet()) + "/" + quoi;
}

// As the last one for this project was made, towards the next robot.
Copie dessinTrajet::copie_habituelle() const {
    const QSettings reglages;
    const auto texte = [&](const char* quoi, const char* sinon = "") {
        return reglages.value(cle_de_copie(quoi), sinon).toString().toStdString();
    };
    Copie c{.vers = robot() % robots_des_fichiers + 1,
            .generation = reglages.value(cle_de_copie("generation")).toBool(),
            .fonctions = reglages.value(cle_de_copie("fonctions")).toBool(),
            .programme = texte("programme"),
            .noms = {texte("fonction", "TRAJECTOIRE"), texte("fonction_copie")}};
    if (const int cote = reglages.value(cle_de_copie("cote"), -1).toInt(); cote >= 0 && cote < 3)
        c.cote = static_cast<Retournement>(cote);
    return c;
}

void dessinTrajet::retenir(const Copie& c) const {
    QSettings reglages;
    reglages.setValue(cle_de_copie("cote"), c.cote ? static_cast<int>(*c.cote) : -1);
    reglages.setValue(cle_de_copie("generation"), c.generation);
    reglages.setValue(cle_de_copie("fonctions"), c.fonctions);
    if (!c.fonctions)
        return;
    reglages.setValue(cle_de_copie("programme"), texte_qt(c.programme.string()));
    reglages.setValue(cle_de_copie("fonction"), texte_qt(c.noms[0]));
    reglages.setValue(cle_de_copie("fonction_copie"), texte_qt(c.noms[1]));
}

DocumentTrajet dessinTrajet::copie_de(const Copie& c) const {
    DocumentTrajet copie = historique_.doc();
    Selection tout(c.cote ? copie.nombre() : 0);
    std::iota(tout.begin(), tout.end(), std::size_t{0});
    if (c.cote)
        ::retourner(copie, tout, *c.cote, {etat_->XMax, etat_->YMax});
    return copie;
}

Ensemble dessinTrajet::composer(const Copie& c) const {
    exiger_un_programme(c.programme);
    if (c.vers == robot())
        throw ErreurExecution("choisissez un autre robot, la copie prendrait la place du trajet.");
    const auto entree = [this](int robot, const DocumentTrajet& trajet) {
        return preparer_entree(seance_.etat(), robot, trajet).texte;
    };
    const std::array fonctions{FonctionAEcrire{c.noms[0], entree(robot(), historique_.doc())},
                               FonctionAEcrire{c.noms[1], entree(c.vers, copie_de(c))}};
    return ecrire_fonctions(c.programme, lire_octets(c.programme), fonctions);
}

void dessinTrajet::copier_vers_un_robot() {
    CopieTrajet dialogue(this, copie_habituelle(), [this](const Copie& c) { return composer(c); });
    if (dialogue.exec() != QDialog::Accepted)
        return;
    const Copie c = dialogue.copie();
    retenir(c);
    const auto cible = seance_.projet().chemin_trajet(c.vers);
    if (cible == chemin())
        return changer("Copier vers ce robot", copie_de(c), {});
    // The program speaks of the trajectory as its file has it.
    if (c.fonctions && (!historique_.pile.isClean() || !en_suspens().isEmpty()) && !enregistrer())
        return;
    if (boites_.question("Le fichier " + cible.filename().string() +
                         " existe déjà. Doit-on le remplacer ?"))
        ecrire_la_copie(c);
}

// What can be refused comes before the first byte is written.
void dessinTrajet::ecrire_la_copie(const Copie& c) {
    const DocumentTrajet copie = copie_de(c);
    const std::string octets = copie.ecrire();
    const std::optional<Ensemble> code = c.fonctions ? std::optional(composer(c)) : std::nullopt;
    ecrire_a_cote(seance_.projet().chemin_trajet(c.vers), octets);
    if (c.generation)
        preparer_la_generation(seance_.etat().NomProjet, copie, c.vers);
    if (code)
        ecrire_a_cote(c.programme, code->octets);
    proposer_de_charger();
    QString ecrits = texte_qt(seance_.projet().chemin_trajet(c.vers).filename().string());
    if (code)
        ecrits += texte_qt(", " + c.programme.filename().string() + " (" + c.noms[0] + ", " +
                           c.noms[1] + ")");
    statusBar()->showMessage("Enregistré : " + ecrits, 10000);
}
