#include "analyse/verdict.h"

#include "base/texte.h"

#include <algorithm>
#include <cmath>

namespace {

std::string place(double x, double y) {
    return "(" + dixiemes(x) + " ; " + dixiemes(y) + ")";
}

} // namespace

std::optional<std::int32_t> fin_des_plans(const Analyse& a) {
    std::optional<std::int32_t> fin;
    for (const Bilan& b : a.robots) {
        if (b.actions_du_plan == 0)
            continue;
        if (a.match.arret || !b.fin)
            return std::nullopt;
        fin = std::max(fin.value_or(0), *b.fin);
    }
    return fin;
}

std::string sans_fin(const Analyse& a) {
    if (a.match.arret)
        return "match arrêté par une erreur à " + secondes(a.match.duree);
    for (const Bilan& b : a.robots)
        if (b.actions_du_plan > 0 && !b.fin)
            return "robot " + std::to_string(b.robot) + " pas fini à 90 s";
    return "aucune action";
}

std::string fin_des_trajets(const Analyse& a) {
    const auto fin = fin_des_plans(a);
    return fin ? "dernière action finie à " + secondes(*fin) + ", marge " +
                     secondes(duree_du_match - *fin)
               : sans_fin(a);
}

std::string verdict(const Analyse& a, int robot) {
    const PoseTick& p = a.robots.at(static_cast<std::size_t>(robot - 1)).arrivee;
    return a.projet + " : " + fin_des_trajets(a) + " ; robot " + std::to_string(robot) +
           " arrivé en " + place(p.x, p.y) + ", cap " + dixiemes(cap_ramene(p.cap)) + "° ; " +
           (a.constats.empty() ? "aucun constat"
                               : compte(static_cast<int>(a.constats.size()), "constat"));
}

std::string en_ligne(const Constat& constat) {
    std::string ligne;
    const auto ajouter = [&ligne](const std::string& partie) {
        ligne += (ligne.empty() ? "" : ", ") + partie;
    };
    if (constat.temps)
        ajouter(secondes(*constat.temps));
    if (constat.robot)
        ajouter("robot " + std::to_string(*constat.robot));
    if (constat.lieu)
        ajouter("en " + place(constat.lieu->x, constat.lieu->y));
    if (!constat.fichier.empty())
        ajouter(constat.fichier +
                (constat.ligne ? " ligne " + std::to_string(*constat.ligne) : ""));
    return (ligne.empty() ? "" : ligne + " : ") + constat.texte;
}

std::string en_ligne(const EcartDeRobots& ecart) {
    return "Robots " + std::to_string(ecart.robot) + " et " + std::to_string(ecart.autre) + " : " +
           (ecart.ecart == 0 ? "se touchent" : "au plus près " + dixiemes(ecart.ecart) + " cm") +
           " à " + secondes(ecart.temps);
}

std::string_view nom(Genre genre) {
    switch (genre) {
    case Genre::arret:
        return "arret";
    case Genre::duree:
        return "duree";
    case Genre::inatteinte:
        return "inatteinte";
    case Genre::apres_fin:
        return "apres-fin";
    case Genre::valeur:
        return "valeur";
    case Genre::sortie:
        return "sortie";
    case Genre::contact_robot:
        return "contact-robot";
    case Genre::contact_bloc:
        return "contact-bloc";
    case Genre::balise:
        return "balise";
    case Genre::prediction:
        return "prediction";
    case Genre::pas:
        return "pas";
    case Genre::code:
        return "code";
    case Genre::damier:
        return "damier";
    case Genre::lecture:
        return "lecture";
    }
    return "";
}
