#include "ui/principale/surveillance.h"

#include "base/fichiers.h"
#include "base/systeme.h"
#include "ui/commun/boites.h"

#include <algorithm>
#include <functional>

Surveillance::Surveillance(Seance& seance) : seance_(seance), veilleur_([this] { verifier(); }) {
    ecouter(seance.annonces());
}

std::filesystem::path Surveillance::fichier(std::size_t k) const {
    const Projet& projet = seance_.projet();
    if (k == 0)
        return projet.chemin_table();
    const int n = static_cast<int>((k - 1) % robots_des_fichiers) + 1;
    return k < premier_trajet ? projet.chemin_robot(n) : projet.chemin_trajet(n);
}

// A file that is missing or cannot be read keeps its print: it counts again once it is back.
Surveillance::Empreinte Surveillance::empreinte(const std::filesystem::path& fichier,
                                                const Empreinte& connue) {
    const auto infos = systeme::infos(fichier.string().c_str());
    if (!infos)
        return connue;
    const std::array<std::int64_t, 4> version{infos->numero,
                                              static_cast<std::int64_t>(infos->taille),
                                              infos->changement_s, infos->changement_ns};
    if (version == connue.version)
        return connue;
    try {
        return {version, std::hash<std::string>()(lire_octets(fichier))};
    } catch (const ErreurFichier&) {
        return connue;
    }
}

void Surveillance::prendre_note() {
    projet_ = seance_.etat().NomProjet;
    for (std::size_t k = 0; k < nombre; ++k)
        empreintes_.at(k) = empreinte(fichier(k), {});
    suivre();
}

void Surveillance::prendre_note_de(const std::filesystem::path& ecrit) {
    for (std::size_t k = 0; k < nombre; ++k)
        if (fichier(k).filename() == ecrit.filename())
            empreintes_.at(k) = empreinte(ecrit, empreintes_.at(k));
    suivre();
}

// The directory tells of files that come and go, a file of what is written into it.
void Surveillance::suivre() {
    std::vector<std::filesystem::path> chemins{seance_.projet().dossier_configuration()};
    for (std::size_t k = 0; k < nombre; ++k)
        chemins.push_back(fichier(k));
    veilleur_.suivre(std::move(chemins));
}

std::vector<std::size_t> Surveillance::chercher_changements() {
    std::vector<std::size_t> changes;
    for (std::size_t k = 0; k < nombre; ++k) {
        const Empreinte nouvelle = empreinte(fichier(k), empreintes_.at(k));
        if (nouvelle.contenu != empreintes_.at(k).contenu)
            changes.push_back(k);
        empreintes_.at(k) = nouvelle;
    }
    return changes;
}

void Surveillance::verifier() {
    if (seance_.terminee())
        return;
    if (boite_ouverte())
        return veilleur_.remettre(); // one question at a time
    if (projet_ != seance_.etat().NomProjet)
        return prendre_note();
    const std::vector<std::size_t> changes = chercher_changements();
    if (changes.empty())
        return;
    const bool table_seule = changes.back() == 0;
    const std::string quoi = noms(changes);
    if (!permis(table_seule, quoi))
        return;
    if (seance_.en_marche())
        seance_.moteur().Fin_Jeu();
    if (table_seule)
        seance_.relire_table();
    else
        seance_.relire_tout();
    seance_.fenetres().ecrire_texte_Mess("Relu après un changement : " + quoi);
}

bool Surveillance::permis(bool table_seule, const std::string& quoi) {
    std::string question = "Modifié par un autre programme : " + quoi + std::string(RetourLigne);
    const bool perte = !table_seule && seance_.trajet_non_sauve();
    if (perte)
        question += "Relire ferait perdre le trajet enregistré qui n'est pas sauvegardé. "
                    "Faut-il relire quand même ?";
    else if (seance_.en_marche())
        question += "Faut-il arrêter la course et relire ?";
    else
        return true;
    return seance_.fenetres().question(
        question, perte ? "Oui : le trajet enregistré reste dans Sauvegardes ; « Reprendre un "
                          "trajet » de la télécommande le rend."
                        : "");
}

std::string Surveillance::noms(const std::vector<std::size_t>& changes) const {
    constexpr std::size_t nommes = 3;
    std::string texte;
    for (std::size_t i = 0; i < std::min(changes.size(), nommes); ++i)
        texte += (i > 0 ? ", " : "") + fichier(changes[i]).filename().string();
    if (changes.size() > nommes)
        texte += " et " + std::to_string(changes.size() - nommes) + " de plus";
    return texte;
}
