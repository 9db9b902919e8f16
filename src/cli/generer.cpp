#include "base/systeme.h"
#include "base/texte.h"
#include "base/visible.h"
#include "cli/choix.h"
#include "cli/flux.h"
#include "cli/sortie.h"
#include "cli/verbes.h"
#include "codegen/apercu.h"
#include "codegen/generateur.h"
#include "config/dossier.h"
#include "record/origine.h"

#include <iostream>
#include <memory>

namespace fs = std::filesystem;

namespace {

struct ChoixGenerer {
    Demande demande;
    std::string depart;
    std::string entree;
    std::string ecraser; ///< "oui", "non", or empty: ask
    bool apercu = false;
    std::optional<fs::path> dossier;
};

// The answer of --ecraser, else the terminal's, else Non.
bool repondre(const ChoixGenerer& choix, std::string_view question) {
    if (!choix.ecraser.empty())
        return choix.ecraser == "oui";
    if (!systeme::est_un_terminal(systeme::Flux::entree))
        return false;
    std::cerr << visible(question) << " [o/N] " << std::flush;
    const std::string reponse = minuscules(rogner(lire_ligne().value_or("")));
    return reponse == "o" || reponse == "oui";
}

char signe(SorteLigne sorte) {
    if (sorte == SorteLigne::retiree)
        return '-';
    return sorte == SorteLigne::inseree || sorte == SorteLigne::ajoutee ? '+' : ' ';
}

void afficher_apercu(const Apercu& apercu) {
    const SortieDeLignes sortie;
    for (const LigneApercu& ligne : apercu.lignes)
        sortie.ligne(signe(ligne.sorte) + ligne.texte);
}

// Before anything is asked or written; they neither refuse nor change the exit code.
void avertir(const Demande& demande, const Apercu& apercu) {
    for (const auto& liste : {avertissements_d_origine(demande.entree), apercu.avertissements})
        for (const std::string& avertissement : liste)
            ecrire_ligne(std::cerr, "Avertissement : " + avertissement);
}

// What the generation will be answered, as far as it is known.
bool ecrasera(const ChoixGenerer& choix) {
    if (choix.ecraser.empty() && !choix.apercu)
        return systeme::est_un_terminal(systeme::Flux::entree);
    return choix.ecraser == "oui";
}

// What was changed besides the target.
void dire(const ChoixGenerer& choix, const Generation& generation) {
    for (const fs::path& copie : generation.sauvegardes)
        ecrire_ligne(std::cout, "Copie de sauvegarde : " + copie.string());
    if (generation.depart_reecrit)
        ecrire_ligne(std::cout, "Fichier de départ modifié : " + choix.depart);
}

int executer(ChoixGenerer& choix) {
    Demande& demande = choix.demande;
    demande.depart = choix.depart;
    demande.entree = choix.entree;
    demande.CheminCourant = fs::absolute(demande.entree).parent_path().string();
    if (const Refus refus = verifier(demande)) {
        ecrire_ligne(std::cerr, refus.message);
        if (!refus.conseil.empty())
            ecrire_ligne(std::cerr, refus.conseil);
        return cible_est_l_entree(demande) ? 2 : 1;
    }
    const Apercu apercu = preparer_apercu(demande, ecrasera(choix));
    if (choix.apercu)
        afficher_apercu(apercu);
    avertir(demande, apercu);
    if (choix.apercu)
        return 0;
    const fs::path sauvegardes =
        dossier_application(choix.dossier) / "Configuration" / "Sauvegardes";
    try {
        dire(choix, generer(demande, sauvegardes, [&choix](std::string_view question) {
                 return repondre(choix, question);
             }));
    } catch (const GenerationInterrompue& arret) {
        dire(choix, arret.faite);
        throw;
    }
    ecrire_ligne(std::cout, "Fichier généré : " + demande.cible);
    return 0;
}

void declarer_options(CLI::App& verbe, ChoixGenerer& choix) {
    verbe.add_option("--depart", choix.depart, "Programme PICBASIC de départ (codé à la main)")
        ->required()
        ->type_name("FICHIER");
    verbe.add_option("--entree", choix.entree, "Fichier de génération (« PourGenerer »)")
        ->required()
        ->type_name("FICHIER");
    verbe.add_option("--cible", choix.demande.cible, "Fichier .bas à générer")
        ->required()
        ->type_name("FICHIER");
    choix.demande.fonction = "TRAJECTOIRE";
    verbe.add_option("--fonction", choix.demande.fonction, "Nom de la fonction générée")
        ->type_name("NOM")
        ->capture_default_str();
    verbe.add_flag("--menu", choix.demande.menu, "Intégrer la fonction dans le menu PICBASIC");
    verbe
        .add_option("--ecraser", choix.ecraser,
                    "Écraser une fonction du même nom : oui ou non (sans cette option, la question "
                    "est posée sur le terminal)")
        ->check(oui_ou_non())
        ->type_name("oui|non");
    verbe.add_flag("--apercu", choix.apercu,
                   "Montrer ce qui changerait, avec les avertissements, sans rien écrire");
    verbe
        .add_option("--dossier", choix.dossier,
                    "Dossier de l'application (celui qui contient Configuration)")
        ->type_name("DOSSIER");
}

} // namespace

void declarer_generer(CLI::App& app, int& code_de_sortie) {
    const auto choix = std::make_shared<ChoixGenerer>();
    CLI::App* verbe = app.add_subcommand(
        "generer", "Génère le code PICBASIC d'un trajet dans le programme de l'équipe");
    declarer_options(*verbe, *choix);
    verbe->callback([choix, &code_de_sortie] { code_de_sortie = executer(*choix); });
}
