#include "config/defauts.h"

#include "config/ecriture.h"

#include <array>

namespace {

constexpr std::string_view notice = "Readme.txt";

template <std::size_t N>
void lignes(Ecrivain& texte, const std::array<std::string_view, N>& contenu) {
    for (const std::string_view ligne : contenu)
        texte.ligne(ligne);
}

std::string titre(std::string_view projet, std::string_view genre, int n) {
    return std::string(projet).append(genre) + std::to_string(n) + ".ini";
}

void entete_generale(Ecrivain& texte) {
    texte.entete("Tavolmex.ini ")
        .ligne("#")
        .description("Fichier de configuration général", notice)
        .ligne();
}

} // namespace

std::string general_par_defaut() {
    Ecrivain texte;
    entete_generale(texte);
    constexpr std::array<std::string_view, 6> contenu{
        "Défaut , Defaut", "Rapide , 1", "Allege , 0", "NbRobot, 1", "Horizontale, 0", ""};
    lignes(texte, contenu);
    return texte.texte();
}

std::string general_en_texte(std::string_view projet, const ReglagesGeneraux& reglages) {
    const auto coche = [](bool b) { return b ? "1" : "0"; };
    Ecrivain texte;
    entete_generale(texte);
    texte.ligne("Défaut , ", projet)
        .ligne("Rapide,", coche(reglages.rapide))
        .ligne("Allege,", coche(reglages.allege))
        .ligne("NbRobot,", reglages.nb_robot)
        .ligne("Horizontale,", coche(reglages.horizontale))
        .ligne();
    return texte.texte();
}

std::string table_par_defaut() {
    Ecrivain texte;
    texte.entete("table.ini ")
        .ligne("#")
        .description("Fichier de description de l'aire de jeu", notice)
        .ligne("M,,,Fichier de configuration par défaut")
        .ligne();
    const auto nombre = [](int n) { return std::to_string(n); };
    for (int y = 20; y <= 300; y += 40)
        texte.ligne("L , 0, ", nombre(y - 1), ", 200, ", nombre(y + 1));
    texte.ligne();
    for (int x = 20; x <= 180; x += 40)
        texte.ligne("L , ", nombre(x - 1), ", 0, ", nombre(x + 1), ", 320");
    return texte.texte();
}

std::string robot_par_defaut(std::string_view projet, int n) {
    Ecrivain texte;
    texte.entete(titre(projet, " Robot", n))
        .ligne("#")
        .description("Fichier de description du robot", notice);
    constexpr std::array<std::string_view, 10> contenu{
        "",
        "V,100,90",
        "A,10,14,10",
        "",
        "R, 0, 0,20, 0",
        "R, 0,28,20,28",
        "R, 0, 0, 0,34",
        "R,20, 0,20,34",
        "R, 0, 0,10,28",
        "R,20, 0,10,28",
    };
    lignes(texte, contenu);
    return texte.texte();
}

std::string trajet_par_defaut(std::string_view projet, int n) {
    const int rang = n - 1;
    Ecrivain texte;
    texte.entete(titre(projet, " Trajet", n))
        .ligne()
        .description("Fichier de description du déplacement du robot.", notice)
        .ligne("Init,100,", std::to_string(30 * n), ",0")
        .ligne("Pause,", std::to_string(500 * rang))
        .ligne("Droite, 360")
        .ligne("Gauche, 360")
        .ligne("Pause,", forme_imprimee(4000 - 500 * rang))
        .ligne("Avance,80")
        .ligne("Recule,160")
        .ligne("Avance,80")
        .ligne("VirAvDr,360,30")
        .ligne("VirAvGa,360,30")
        .ligne("VirArDr,360,20")
        .ligne("VirArGa,360,20")
        .ligne("Pause,", forme_imprimee(60 * rang))
        .ligne("VirAvDr,90,10")
        .ligne("Avance,", forme_imprimee(30 * rang))
        .ligne("VirAvGa,90,0")
        .ligne("Avance,30")
        .ligne("VirAvGa,90,40")
        .ligne("Avance,160");
    for (int i = 0; i < 6; ++i)
        texte.ligne("VirAvGa,180,80").ligne("Avance,120");
    texte.ligne("VirAvGa,180,80").ligne("Avance,320").ligne("FIN");
    return texte.texte();
}
