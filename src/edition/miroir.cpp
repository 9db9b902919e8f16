#include "edition/miroir.h"

#include "sim/actions.h"

#include <numeric>

namespace {

std::string autre_cote(const std::string& cle) {
    const actions::Action* const action = actions::trouver(Nom10(cle));
    return action == nullptr ? cle : std::string(action->miroir.sans_blancs());
}

std::array<int, 3> pose_retournee(int x, int y, int cap, Retournement axe, const Etendue& table) {
    switch (axe) {
    case Retournement::vertical:
        return {table.XMax - x, y, 180 - cap};
    case Retournement::horizontal:
        return {x, table.YMax - y, -cap};
    case Retournement::demi_tour:
        break;
    }
    return {table.XMax - x, table.YMax - y, cap_oppose(cap)};
}

void exiger_lisible(const DocumentTrajet& trajet, std::string_view octets) {
    if (const auto refus = trajet.refus(); !refus.empty())
        throw LigneRefusee(refus.front().ligne, refus.front().raison);
    if (const auto refus = DocumentTrajet::relire(octets))
        throw LigneRefusee(refus->ligne, refus->raison);
    if (!trajet.depart())
        throw ErreurExecution("il n'y a pas de ligne « Init » : la position initiale vient du "
                              "fichier du robot ; ajoutez-la au trajet");
}

std::string une_fois(std::string_view octets, Retournement axe, const Etendue& table) {
    DocumentTrajet trajet = DocumentTrajet::depuis(octets);
    exiger_lisible(trajet, octets);
    std::vector<std::size_t> toutes(trajet.nombre());
    std::iota(toutes.begin(), toutes.end(), std::size_t{0});
    retourner(trajet, toutes, axe, table);
    return trajet.ecrire();
}

// Numbers with a plus sign, leading zeros or decimals do not come back as they were.
void exiger_memes_octets(std::string_view avant, std::string_view apres) {
    if (avant == apres)
        return;
    Lignes a(avant);
    Lignes b(apres);
    int ligne = 1;
    auto texte = a.suivante();
    while (texte && texte == b.suivante()) {
        texte = a.suivante();
        ++ligne;
    }
    throw LigneRefusee(ligne, "un second retournement ne rendrait pas « " +
                                  en_utf8(std::string(texte.value_or(""))) +
                                  " » : écrivez ses nombres en entiers simples");
}

} // namespace

int cap_oppose(int cap) {
    const int tour = cap >= 0 ? cap % 360 : (cap + 1) % 360 + 359; // 0..359
    return tour < 180 ? cap + 180 : cap - 180;
}

Fiche retournee(const Fiche& fiche, Retournement axe, const Etendue& table) {
    Fiche autre = fiche;
    if (fiche.cle == "INIT") {
        const auto pose =
            pose_retournee(fiche.entier(0), fiche.entier(1), fiche.entier(2), axe, table);
        for (std::size_t i = 0; i < pose.size(); ++i)
            autre.v[i] = static_cast<float>(Entier16(pose[i]));
    } else if (axe != Retournement::demi_tour) {
        autre.cle = autre_cote(fiche.cle);
    }
    return autre;
}

void retourner(DocumentTrajet& trajet, const std::vector<std::size_t>& choisies, Retournement axe,
               const Etendue& table) {
    DocumentTrajet nouveau = trajet;
    for (const std::size_t i : choisies) {
        try {
            nouveau.remplacer(i, retournee(trajet[i], axe, table));
        } catch (const ErreurExecution& erreur) {
            throw LigneRefusee(trajet.ligne(i), erreur.what());
        }
    }
    trajet = std::move(nouveau);
}

std::string fichier_retourne(std::string_view octets, Retournement axe, const Etendue& table) {
    std::string texte = une_fois(octets, axe, table);
    exiger_memes_octets(octets, une_fois(texte, axe, table));
    return texte;
}

void decaler_depart(DocumentTrajet& trajet, int dx, int dy, int dcap) {
    for (std::size_t i = trajet.nombre(); i-- > 0;) {
        Fiche depart = trajet[i];
        if (depart.cle != "INIT")
            continue;
        depart.v = {depart.v[0] + static_cast<float>(dx), depart.v[1] + static_cast<float>(dy),
                    depart.v[2] + static_cast<float>(dcap), 0};
        try {
            return trajet.remplacer(i, depart);
        } catch (const ErreurExecution& erreur) {
            throw LigneRefusee(trajet.ligne(i), erreur.what());
        }
    }
    throw ErreurExecution("Le trajet n'a pas de ligne « Init »");
}
