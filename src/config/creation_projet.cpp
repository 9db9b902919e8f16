#include "config/creation_projet.h"

#include "base/fichiers.h"
#include "config/defauts.h"
#include "config/document_table.h"
#include "config/ecriture.h"
#include "config/nom_projet.h"

#include <algorithm>
#include <memory>

namespace fs = std::filesystem;

namespace {

// The first line of most files says their name.
std::string sous_le_nom(std::string octets, const std::string& ancien, const std::string& nom) {
    const std::string debut = "# Fichier ";
    if (octets.starts_with(debut + ancien + " "))
        octets.replace(debut.size(), ancien.size(), nom);
    return octets;
}

struct Pose {
    int x, y;
};

/// Robot 1 stands at the middle of the table's foot; the others wait side by side along its top.
Pose place(const Etat& table, int n) {
    constexpr int du_bord = 22;
    constexpr int du_coin = 12;
    const int largeur = table.XMax;
    const int hauteur = table.YMax;
    if (n == 1)
        return {largeur / 2, du_bord};
    return {du_coin + (largeur - 2 * du_coin) * (n - 2) / (robots_des_fichiers - 2),
            hauteur - du_bord};
}

std::string trajet_immobile(const std::string& nom, int n, Pose p) {
    Ecrivain texte;
    texte.entete(nom + suite_trajet(n) + " ")
        .ligne()
        .description("Fichier de description du déplacement du robot.", "Readme.txt")
        .ligne("Init,", std::to_string(p.x), ",", std::to_string(p.y), ",90")
        .ligne("FIN");
    return texte.texte();
}

const FichierDeProjet* trouver(const std::vector<FichierDeProjet>& fichiers,
                               const std::string& suite) {
    const auto ici = std::ranges::find(fichiers, suite, &FichierDeProjet::suite);
    return ici != fichiers.end() ? &*ici : nullptr;
}

void completer(std::vector<FichierDeProjet>& fichiers, const std::string& nom) {
    if (trouver(fichiers, suite_table) == nullptr)
        fichiers.push_back({suite_table, DocumentTable::nouveau().ecrire()});
    const auto table = std::make_unique<Etat>();
    DocumentTable::depuis(trouver(fichiers, suite_table)->octets).remplir(*table);
    for (int n = 1; n <= robots_des_fichiers; ++n) {
        if (const std::string suite = suite_robot(n); trouver(fichiers, suite) == nullptr)
            fichiers.push_back({suite, robot_par_defaut(nom, n)});
        if (const std::string suite = suite_trajet(n); trouver(fichiers, suite) == nullptr)
            fichiers.push_back({suite, trajet_immobile(nom, n, place(*table, n))});
    }
}

fs::path ici(const fs::path& configuration, const std::string& nom, const std::string& suite) {
    return fichier_de_projet(configuration, nom, suite);
}

} // namespace

const std::vector<std::string>& suites_de_projet() {
    static const std::vector<std::string> suites = [] {
        std::vector<std::string> s{suite_table, " PourGenerer10.ini", ".bas"};
        for (int n = 1; n <= robots_des_fichiers; ++n)
            s.insert(s.end(), {suite_robot(n), suite_trajet(n)});
        return s;
    }();
    return suites;
}

std::vector<FichierDeProjet> projet_vide(const std::string& nom) {
    std::vector<FichierDeProjet> fichiers;
    completer(fichiers, nom);
    return fichiers;
}

std::vector<FichierDeProjet>
copie_de_projet(const std::string& ancien, const std::string& nom,
                const std::function<std::optional<std::string>(const std::string& suite)>& lire) {
    std::vector<FichierDeProjet> fichiers;
    for (const std::string& suite : suites_de_projet())
        if (auto octets = lire(suite))
            fichiers.push_back({suite, sous_le_nom(*std::move(octets), ancien, nom)});
    completer(fichiers, nom);
    return fichiers;
}

std::vector<FichierDeProjet> copie_de_projet(const fs::path& configuration,
                                             const std::string& ancien, const std::string& nom) {
    return copie_de_projet(ancien, nom,
                           [&](const std::string& suite) -> std::optional<std::string> {
                               const fs::path source = ici(configuration, ancien, suite);
                               std::error_code absent;
                               if (!fs::exists(source, absent))
                                   return std::nullopt;
                               return lire_octets(source);
                           });
}

std::string raison_projet_refuse(const fs::path& configuration, const std::string& nom) {
    if (nom.empty())
        return "Un projet a un nom";
    if (std::string raison = raison_nom_impossible(nom + " Table"); !raison.empty())
        return raison;
    std::error_code absent;
    for (const std::string& suite : suites_de_projet())
        if (const fs::path fichier = ici(configuration, nom, suite); fs::exists(fichier, absent))
            return "Il existe déjà un fichier « " + fichier.filename().string() + " »";
    return "";
}

// The table comes last: it makes the project one.
void creer_projet(const fs::path& configuration, const std::string& nom,
                  const std::vector<FichierDeProjet>& fichiers) {
    if (const std::string raison = raison_projet_refuse(configuration, nom); !raison.empty())
        throw ErreurExecution(raison);
    std::vector<fs::path> ecrits;
    try {
        for (const bool table : {false, true})
            for (const FichierDeProjet& f : fichiers) {
                if ((f.suite == suite_table) != table)
                    continue;
                const fs::path chemin = chemin_de_projet(configuration, nom, f.suite);
                remplacer_fichier(chemin, f.octets);
                ecrits.push_back(chemin);
            }
    } catch (const ErreurExecution&) {
        std::error_code ignoree;
        for (const fs::path& chemin : ecrits)
            fs::remove(chemin, ignoree);
        throw;
    }
}
