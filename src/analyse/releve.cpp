#include "analyse/releve.h"

#include "analyse/phrases.h"

#include <algorithm>
#include <cmath>

std::vector<Obstacle> obstacles(const AireDeJeu& table) {
    std::vector<Obstacle> blocs;
    for (int n = 1; n <= table.NbBlocs; ++n) {
        const Quatre& b = table.Blocs(n);
        const Point coin{double(b.X1), double(b.Y1)};
        if (b.Y2 == marque_disque)
            blocs.push_back({coin, coin, std::fabs(double(b.X2))});
        else
            blocs.push_back({coin, {double(b.X2), double(b.Y2)}});
    }
    return blocs;
}

namespace {

std::vector<Parcours> parcours_de_tous(const Etat& e, const MatchCalcule& m) {
    std::vector<Parcours> parcours;
    parcours.reserve(static_cast<std::size_t>(m.NbRobot));
    for (int i = 1; i <= m.NbRobot; ++i)
        parcours.emplace_back(e, m, i);
    return parcours;
}

/// Calls `voir` with every pair of robots and their ways.
template <typename Voir>
void pour_chaque_paire(const std::vector<Parcours>& parcours, Voir voir) {
    for (std::size_t i = 0; i < parcours.size(); ++i) {
        for (std::size_t j = i + 1; j < parcours.size(); ++j)
            voir(static_cast<int>(i) + 1, static_cast<int>(j) + 1, parcours[i], parcours[j]);
    }
}

} // namespace

Releve relever(const Etat& e, const MatchCalcule& m) {
    const std::vector<Parcours> parcours = parcours_de_tous(e, m);
    const std::vector<Obstacle> blocs = obstacles(e);
    Releve r;
    for (int i = 1; i <= m.NbRobot; ++i) {
        const Parcours& a = parcours[static_cast<std::size_t>(i - 1)];
        r.sorties(i) = sortie_de_table(a, e.XMax, e.YMax);
        for (std::size_t n = 0; n < blocs.size(); ++n) {
            if (const auto contact = premier_contact(a, blocs[n]))
                r.blocs.push_back({i, static_cast<int>(n) + 1, *contact});
        }
    }
    pour_chaque_paire(parcours, [&r](int i, int j, const Parcours& a, const Parcours& b) {
        if (const auto contact = premier_contact(a, b))
            r.robots.push_back({i, j, *contact});
    });
    return r;
}

std::vector<EcartDeRobots> ecarts_de(const Etat& e, const MatchCalcule& m) {
    std::vector<EcartDeRobots> ecarts;
    // Where both stand still, the tick that brought them there.
    const auto arrivee = [&m](std::size_t tick, int i, int j) {
        const auto immobile = [](const std::vector<PoseTick>& poses, std::size_t t) {
            return poses[t] == poses[t - 1];
        };
        while (tick > 0 && immobile(m.poses(i), tick) && immobile(m.poses(j), tick))
            --tick;
        return tick;
    };
    const auto mesurer = [&](int i, int j, const Parcours& p, const Parcours& q) {
        const Rencontre vue = rencontre(p, q);
        if (std::isfinite(vue.ecart))
            ecarts.push_back({i, j, vue.ecart, m.temps(arrivee(vue.tick_ecart, i, j))});
    };
    pour_chaque_paire(parcours_de_tous(e, m), mesurer);
    return ecarts;
}

void constater_terrain(const Enquete& q, const Releve& releve) {
    for (int i = 1; i <= q.m.NbRobot; ++i) {
        const auto& sortie = releve.sorties(i);
        if (!sortie)
            continue;
        Constat& c = q.au_moment(Genre::sortie, i, q.m.temps(sortie->premier));
        c.duree = q.m.temps(sortie->nb_ticks);
        c.ecart = sortie->ecart;
        c.texte = "le contour sort de la table pendant " + q.l_action(i, q.numero_au(i, *c.temps)) +
                  ", de " + dixiemes(sortie->ecart) + " cm au plus et " + secondes(*c.duree) +
                  " en tout : le vrai robot tomberait ou heurterait le bord. Éloignez ce mouvement "
                  "du bord ou partez d'une autre place.";
    }
    for (const Releve::Contact& contact : releve.robots) {
        Constat& c = q.au_moment(Genre::contact_robot, contact.robot, q.m.temps(contact.tick));
        c.autre = contact.autre;
        c.texte = "touche le robot " + std::to_string(contact.autre) +
                  " : sur la vraie table les deux se heurteraient et ne sauraient plus où ils "
                  "sont. Faites attendre l'un des deux ou écartez leurs chemins.";
    }
    for (const Releve::Contact& contact : releve.blocs) {
        Constat& c = q.au_moment(Genre::contact_bloc, contact.robot, q.m.temps(contact.tick));
        c.autre = contact.autre;
        c.texte = "touche le bloc " + std::to_string(contact.autre) +
                  " de la table : le vrai robot s'y bloquerait et ne saurait plus où il est. "
                  "Passez plus loin de ce bloc.";
    }
}
