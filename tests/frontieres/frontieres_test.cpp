#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <regex>
#include <set>
#include <sstream>
#include <string>

namespace {

namespace fs = std::filesystem;
using Dossiers = std::set<std::string>;

// What each folder of src/ may include and link besides itself; the picture is in ARCHITECTURE.md.
const Dossiers sans_qt{"base",   "sim",     "config",  "edition", "draw",
                       "record", "codegen", "analyse", "feuille", "seance"};

Dossiers et(Dossiers dossiers, const Dossiers& autres) {
    dossiers.insert(autres.begin(), autres.end());
    return dossiers;
}

const std::map<std::string, Dossiers> permis{
    {"base", {}},
    {"sim", {"base"}},
    {"config", {"base", "sim"}},
    {"edition", {"base", "sim", "config"}},
    {"draw", {"base", "sim"}},
    {"record", {"base", "sim", "config"}},
    {"codegen", {"base", "sim", "config"}},
    {"analyse", {"base", "sim", "config", "draw", "codegen"}},
    {"feuille", {"base", "sim", "config", "draw", "analyse"}},
    {"seance", {"base", "sim", "config", "record"}},
    {"cli", sans_qt},
    {"ui/commun", et(sans_qt, {"Qt"})},
    {"ui/aide", et(sans_qt, {"Qt", "ui/commun"})},
    {"ui/console", et(sans_qt, {"Qt", "ui/commun"})},
    {"ui/editeurs", et(sans_qt, {"Qt", "ui/commun"})},
    {"ui/feuille", et(sans_qt, {"Qt", "ui/commun", "cli"})},
    {"ui/generation", et(sans_qt, {"Qt", "ui/commun"})},
    {"ui/verdict", et(sans_qt, {"Qt", "ui/commun"})},
    {"ui/principale", et(sans_qt, {"Qt", "ui/commun", "ui/aide", "ui/console", "ui/editeurs",
                                   "ui/feuille", "ui/generation", "ui/verdict"})},
};

const fs::path sources = fs::path(RACINE_DU_PROJET) / "src";

std::string contenu(const fs::path& fichier) {
    std::ifstream flux(fichier);
    return {std::istreambuf_iterator<char>(flux), {}};
}

/// "sim" for sim/etat.h, "ui/aide" for ui/aide/manuel.h: the rooms of ui/ are folders of their own.
std::string dossier_de(const fs::path& chemin) {
    auto partie = chemin.begin();
    const std::string premiere = partie->string();
    return premiere == "ui" ? premiere + "/" + std::next(partie)->string() : premiere;
}

/// The folders that a file's #include lines name, "Qt" and "système" (what one system alone has).
Dossiers inclus(const fs::path& fichier) {
    static const std::regex du_projet(R"re(^\s*#\s*include\s*"([^"/]+/[^"]*)")re");
    static const std::regex du_systeme(
        R"(^\s*#\s*include\s*<(sys/|(unistd|fcntl|pwd|pthread|dirent|poll|termios|io|windows)\.h))");
    static const std::regex de_qt(R"(^\s*#\s*include\s*<Q[A-Za-z])");
    Dossiers trouves;
    std::ifstream texte(fichier);
    std::smatch partie;
    for (std::string ligne; std::getline(texte, ligne);)
        if (std::regex_search(ligne, partie, du_projet))
            trouves.insert(dossier_de(partie[1].str()));
        else if (std::regex_search(ligne, de_qt))
            trouves.insert("Qt");
        else if (std::regex_search(ligne, du_systeme))
            trouves.insert("système");
    return trouves;
}

/// The folders that a folder's library links, and "Qt".
Dossiers lies(const std::string& dossier) {
    static const std::regex liste(R"(bibliotheque\([^)]*DEPENDANCES\s([^)]*)\))");
    const std::string texte = contenu(sources / dossier / "CMakeLists.txt");
    std::smatch partie;
    Dossiers trouves;
    if (!std::regex_search(texte, partie, liste))
        return trouves;
    std::istringstream mots(partie[1].str());
    for (std::string mot; mots >> mot;)
        if (mot.starts_with("Qt6::"))
            trouves.insert("Qt");
        else if (mot.find("::") == std::string::npos)
            trouves.insert(mot.starts_with("ui_") ? "ui/" + mot.substr(3) : mot);
    return trouves;
}

std::string interdits(const Dossiers& voulus, const std::string& dossier) {
    std::string texte;
    for (const std::string& voulu : voulus)
        if (voulu != dossier && !permis.at(dossier).contains(voulu))
            texte += " " + voulu;
    return texte;
}

} // namespace

TEST(Frontieres, chaque_dossier_n_inclut_que_ceux_du_dessous) {
    int lus = 0;
    for (const auto& entree : fs::recursive_directory_iterator(sources)) {
        const std::string extension = entree.path().extension().string();
        if (extension != ".h" && extension != ".cpp")
            continue;
        const std::string dossier = dossier_de(entree.path().lexically_relative(sources));
        ASSERT_TRUE(permis.contains(dossier)) << dossier << "/ has no line in the table";
        Dossiers voisins = inclus(entree.path());
        if (entree.path().filename().string().starts_with("systeme_"))
            voisins.erase("système");
        EXPECT_EQ(interdits(voisins, dossier), "") << entree.path();
        ++lus;
    }
    EXPECT_GT(lus, 30) << "the sources were not found";
}

// A room that links another one compiles its includes before anybody reads them.
TEST(Frontieres, chaque_bibliotheque_ne_lie_que_ce_que_son_dossier_peut_inclure) {
    for (const auto& [dossier, voisins] : permis) {
        EXPECT_EQ(interdits(lies(dossier), dossier), "") << dossier << "/CMakeLists.txt";
        EXPECT_TRUE(dossier == "base" || !lies(dossier).empty())
            << dossier << "/CMakeLists.txt was not understood";
    }
}
