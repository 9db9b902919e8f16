#include "config/fiche_table.h"

#include "config/lecture_fiche.h"

#include <algorithm>
#include <utility>

namespace {

// A key of one or two characters as a number, so that a switch can dispatch on it.
constexpr int code(std::string_view cle) {
    if (cle.empty() || cle.size() > 2)
        return 0;
    const int premier = static_cast<unsigned char>(cle.front());
    return cle.size() == 1 ? premier : premier * 256 + static_cast<unsigned char>(cle.back());
}

constexpr std::size_t nombre(FormeTable forme) {
    if (forme == FormeTable::aucune)
        return 0;
    return forme == FormeTable::boite || forme == FormeTable::ligne ? 4 : 3;
}

bool a_un_negatif(const Fiche& f, std::size_t coordonnees) {
    return std::any_of(f.v.begin(), f.v.begin() + static_cast<std::ptrdiff_t>(coordonnees),
                       [](float x) { return x < 0; });
}

} // namespace

const std::vector<SorteTable>& sortes_table() {
    static const std::vector<SorteTable> sortes{
        {"zones", {"L", "O", "V", "T", "U", "W"}, 100},
        {"blocs", {"DC", "DR"}, 10},
        {"lignes", {"LN"}, 100},
        {"ellipses", {"LE"}, 10},
        {"pièces", {"PB", "PN", "BJ", "BB", "X", "Y"}, 100},
    };
    return sortes;
}

const SorteTable* sorte_table(std::string_view cle) {
    for (const SorteTable& s : sortes_table())
        if (std::find(s.cles.begin(), s.cles.end(), cle) != s.cles.end())
            return &s;
    return nullptr;
}

FormeTable forme_table(std::string_view cle) {
    switch (code(cle)) {
    case code("L"):
    case code("O"):
    case code("V"):
    case code("T"):
    case code("U"):
    case code("W"):
    case code("DC"):
    case code("LE"):
        return FormeTable::boite;
    case code("LN"):
        return FormeTable::ligne;
    case code("DR"):
        return FormeTable::disque;
    case code("PB"):
    case code("PN"):
    case code("BJ"):
    case code("BB"):
    case code("X"):
    case code("Y"):
        return FormeTable::pion;
    default:
        return FormeTable::aucune;
    }
}

std::size_t nombre_de_champs(std::string_view cle) {
    return nombre(forme_table(cle));
}

void remettre_d_aplomb(Fiche& boite) {
    if (boite.v[0] > boite.v[2])
        std::swap(boite.v[0], boite.v[2]);
    if (boite.v[1] > boite.v[3])
        std::swap(boite.v[1], boite.v[3]);
}

FicheLue GrammaireTable::lire(std::string_view ligne) {
    LectureFiche lecture(ligne);
    Fiche& f = lecture.fiche();
    if (f.cle == "M") {
        f.texte = lecture.champs().reste();
        std::replace(f.texte.begin(), f.texte.end(), ',', '\n');
        return lecture.lue();
    }
    const FormeTable forme = forme_table(f.cle);
    const std::size_t n = nombre(forme);
    if (n == 0) {
        lecture.refuser(cle_inconnue(f.cle));
        return lecture.lue();
    }
    for (std::size_t i = 0; i + 1 < n; ++i)
        lecture.entier(i);
    const bool disque = forme == FormeTable::disque;
    lecture.entier(n - 1, disque ? texte_du_rayon(lecture) : lecture.champs().reste());
    if (forme == FormeTable::boite)
        remettre_d_aplomb(f);
    if (forme != FormeTable::pion && a_un_negatif(f, disque ? 2 : 4))
        lecture.refuser(ErreurLecture("coordonnée négative"));
    if (n == 4 && !lecture.refusee())
        virgule4_ = lecture.champs().virgule();
    return lecture.lue();
}

// Deliberate: the radius ends where the latest four-field record had its fourth comma, as if that
// comma stood in this line.
std::string_view GrammaireTable::texte_du_rayon(LectureFiche& lecture) const {
    const Champs& champs = lecture.champs();
    const std::ptrdiff_t longueur = virgule4_ - champs.virgule() - 1;
    if (longueur < 0)
        lecture.refuser(ErreurLecture("disque sans enregistrement à quatre champs avant lui"));
    return champs.reste().substr(0,
                                 static_cast<std::size_t>(std::max<std::ptrdiff_t>(longueur, 0)));
}
