#include "ui/verdict/texte_verdict.h"

#include "analyse/releve.h"
#include "analyse/verdict.h"

#include <cctype>
#include <cmath>

namespace {

std::string avec_majuscule(std::string texte) {
    texte[0] = static_cast<char>(std::toupper(static_cast<unsigned char>(texte[0])));
    return texte;
}

std::string marge_de(std::int32_t fin, std::optional<std::int32_t> changement) {
    std::string texte = "marge " + secondes(duree_du_match - fin);
    if (changement.value_or(0) != 0)
        texte += " (" + std::string(*changement > 0 ? "+" : "") + secondes(*changement) + ")";
    return texte;
}

std::string arrivee_de(const Analyse& a) {
    if (a.robots.empty())
        return "";
    const PoseTick& p = a.robots.front().arrivee;
    return (a.robots.size() > 1 ? "robot 1 en x = " : "arrivée x = ") + longueur(p.x) +
           " cm, y = " + longueur(p.y) + " cm, cap = " + longueur(cap_ramene(p.cap)) + "°";
}

} // namespace

std::string longueur(double valeur) {
    std::string texte = dixiemes(valeur);
    if (texte.ends_with(",0"))
        texte.resize(texte.size() - 2);
    return texte == "-0" ? "0" : texte;
}

std::string TexteVerdict::entier() const {
    std::string texte;
    for (const std::string* partie : {&fin, &marge, &arrivee, &constats})
        if (!partie->empty())
            texte += (texte.empty() ? "" : " · ") + *partie;
    return texte;
}

TexteVerdict texte_du_verdict(const Analyse& a, std::optional<std::int32_t> changement,
                              int constats, int masques) {
    const auto fin = fin_des_plans(a);
    TexteVerdict t;
    t.projet = (a.projet.empty() ? "Projet sans nom" : "Projet " + a.projet) + " · " +
               compte(a.match.NbRobot, "robot");
    t.fin = fin ? "Fin à " + secondes(*fin) : avec_majuscule(sans_fin(a));
    if (fin)
        t.marge = marge_de(*fin, changement);
    t.arrivee = arrivee_de(a);
    t.constats = constats == 0 ? "aucun constat" : compte(constats, "constat");
    if (masques > 0)
        t.constats += ", " + compte(masques, "genre") + (masques > 1 ? " masqués" : " masqué");
    return t;
}
