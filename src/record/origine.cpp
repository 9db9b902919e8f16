#include "record/origine.h"

#include "base/fichiers.h"
#include "base/texte.h"
#include "config/lecteur_trajet.h"
#include "config/nom_projet.h"
#include "record/generation.h"

#include <algorithm>
#include <array>
#include <memory>

namespace fs = std::filesystem;

namespace {

using Mouvements = std::vector<std::string>;

constexpr std::size_t taille_d_un_trajet = std::size_t{4} << 20; // as its reader takes

constexpr std::size_t longueur_d_un_entete = 1024; // its first line

// The moves of an input: neither comments nor the tile counts that follow moves.
Mouvements mouvements_de(std::string_view texte) {
    Mouvements mouvements;
    Lignes lignes(texte);
    lignes.suivante();
    while (const auto brute = lignes.suivante()) {
        std::string ligne = majuscules(rogner(*brute));
        if (!ligne.empty() && !ligne.starts_with('#') && !ligne.starts_with('\'') &&
            !ligne.starts_with("CARREA"))
            mouvements.push_back(std::move(ligne));
    }
    return mouvements;
}

// A project's trajectories that are there and can be read, as moves, by robot.
class Trajets {
public:
    Trajets(const fs::path& dossier, const std::string& projet) {
        const auto e = std::make_unique<Etat>();
        LecteurTrajet lecteur(*e);
        for (int n = 1; n <= robots_des_fichiers; ++n) {
            try {
                const fs::path fichier = fichier_de_projet(dossier, projet, suite_trajet(n));
                std::error_code erreur;
                absents_ = absents_ && !fs::exists(fichier, erreur);
                Entier16 NoLigne;
                lecteur.lire(en_utf8(lire_octets(fichier, taille_d_un_trajet)), n, NoLigne);
                par_robot_.at(std::size_t(n)) = mouvements_du_trajet(*e, n);
            } catch (const ErreurExecution&) { // NOLINT(bugprone-empty-catch)
                // Told when the project is loaded; here this robot just cannot be the one.
            }
        }
    }

    bool absents() const { return absents_; }

    /// The robot with the longest trajectory that stands in `mouvements` as one piece; 0: none.
    std::size_t robot_dans(const Mouvements& mouvements) const {
        std::size_t meilleur = 0;
        for (std::size_t n = 1; n < par_robot_.size(); ++n) {
            const Mouvements& trajet = par_robot_.at(n);
            if (trajet.size() > par_robot_.at(meilleur).size() &&
                std::search(mouvements.begin(), mouvements.end(), trajet.begin(), trajet.end()) !=
                    mouvements.end())
                meilleur = n;
        }
        return meilleur;
    }
    std::size_t longueur(std::size_t robot) const { return par_robot_.at(robot).size(); }

private:
    std::array<Mouvements, robots_des_fichiers + 1> par_robot_; ///< 0 stays empty
    bool absents_ = true;
};

std::string comparer(const std::string& nom, const Mouvements& mouvements, const Trajets& trajets,
                     const std::string& projet) {
    if (mouvements.empty())
        return nom + " ne contient aucun mouvement";
    if (trajets.absents())
        return {};
    const std::size_t robot = trajets.robot_dans(mouvements);
    if (robot == 0)
        return nom + " ne correspond plus à aucun trajet du projet " + projet +
               " : le code ferait un autre parcours que celui que joue le simulateur";
    const std::size_t de_plus = mouvements.size() - trajets.longueur(robot);
    if (de_plus == 0)
        return {};
    return nom + " contient le trajet du robot " + std::to_string(robot) +
           " et d'autres mouvements (lignes en plus : " + std::to_string(de_plus) +
           ") : tout ce qui a été enregistré depuis le démarrage du programme, essais et autres "
           "robots compris, sera dans le code";
}

} // namespace

std::optional<std::string> projet_de_l_entree(std::string_view octets) {
    constexpr std::string_view debut = "# Fichier ";
    constexpr std::string_view genre = " PourGenerer";
    const std::string texte = en_utf8(std::string(octets.substr(0, octets.find_first_of("\r\n"))));
    const std::size_t place = texte.rfind(genre);
    if (!texte.starts_with(debut) || place == std::string::npos || place < debut.size())
        return std::nullopt;
    const std::size_t numero = place + genre.size();
    const std::size_t fin = texte.find_first_not_of("0123456789", numero);
    if (fin == numero || fin == std::string::npos || texte.compare(fin, 4, ".ini") != 0)
        return std::nullopt;
    return texte.substr(debut.size(), place - debut.size());
}

std::optional<std::string> projet_du_fichier(const fs::path& fichier) {
    try {
        return projet_de_l_entree(lire_debut(fichier, longueur_d_un_entete));
    } catch (const ErreurFichier&) {
        return std::nullopt;
    }
}

std::vector<std::string> avertissements_d_origine(const fs::path& fichier) {
    const std::string octets = lire_octets(fichier);
    const std::string nom = fichier.filename().string();
    const std::optional<std::string> projet = projet_de_l_entree(octets);
    if (!projet)
        return {nom + " n'est pas un fichier de génération (« … PourGenerer10.ini », écrit quand "
                      "un trajet de la télécommande est sauvegardé)"};
    const Mouvements mouvements = mouvements_de(en_utf8(octets));
    const std::string phrase =
        comparer(nom, mouvements, Trajets(fichier.parent_path(), *projet), *projet);
    return phrase.empty() ? std::vector<std::string>{} : std::vector<std::string>{phrase};
}
