#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <string>

namespace {

namespace fs = std::filesystem;
using Dossiers = std::set<std::string>;

// What each folder of src/ may include besides itself; the picture is in ARCHITECTURE.md.
const std::map<std::string, Dossiers> permis{
    {"base", {}},
    {"sim", {"base"}},
    {"config", {"base", "sim"}},
    {"edition", {"base", "sim", "config"}},
    {"draw", {"base", "sim"}},
    {"record", {"base", "sim", "config"}},
    {"codegen", {"base", "sim", "config"}},
    {"analyse", {"base", "sim", "config", "draw", "codegen"}},
    {"seance", {"base", "sim", "config", "record"}},
    {"cli", {"base", "sim", "config", "edition", "draw", "record", "codegen", "analyse", "seance"}},
    {"ui", {"base", "sim", "config", "edition", "draw", "record", "codegen", "analyse", "seance"}},
};

/// The faults of one file's #include lines, a line each; empty when there is none.
std::string fautes(const fs::path& fichier, const std::string& dossier) {
    static const std::regex du_projet(R"re(^\s*#\s*include\s*"([^"/]+)/[^"]*")re");
    static const std::regex de_qt(R"(^\s*#\s*include\s*<Q[A-Za-z])");
    static const std::regex boite(R"(\bQ(Message|Error|Input|File|Color)(Box|Message|Dialog)\b)");
    const bool guichet = fichier.filename() == "boites.cpp"; // every box is made there
    const Dossiers& voisins = permis.at(dossier);
    std::ifstream texte(fichier);
    std::string trouvees;
    std::smatch partie;
    for (std::string ligne; std::getline(texte, ligne);) {
        const bool etranger = std::regex_search(ligne, partie, du_projet) && partie[1] != dossier &&
                              !voisins.contains(partie[1]);
        if (etranger || (dossier != "ui" && std::regex_search(ligne, de_qt)) ||
            (!guichet && std::regex_search(ligne, boite)))
            trouvees += fichier.string() + ": " + ligne + "\n";
    }
    return trouvees;
}

} // namespace

TEST(Frontieres, chaque_dossier_n_inclut_que_ceux_du_dessous) {
    const fs::path sources = fs::path(RACINE_DU_PROJET) / "src";
    int lus = 0;
    for (const auto& entree : fs::recursive_directory_iterator(sources)) {
        const std::string extension = entree.path().extension().string();
        if (extension != ".h" && extension != ".cpp")
            continue;
        const std::string dossier = entree.path().lexically_relative(sources).begin()->string();
        ASSERT_TRUE(permis.contains(dossier)) << dossier << "/ has no line in the table";
        EXPECT_EQ(fautes(entree.path(), dossier), "");
        ++lus;
    }
    EXPECT_GT(lus, 30) << "the sources were not found";
}
