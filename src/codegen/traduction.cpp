#include "codegen/traduction.h"

#include "codegen/programme.h"
#include "sim/actions.h"

#include <array>
#include <utility>

namespace {

constexpr std::array<RegleTraduction, 8> regles{{
    {actions::mots::avance, "Val_Action=", "Action_Avance"},
    {actions::mots::recule, "Val_Action=", "Action_Recule"},
    {actions::mots::gauche, "Val_Action=", "Action_Gauche"},
    {actions::mots::droite, "Val_Action=", "Action_Droite"},
    {actions::mots::delai, "Delay ", ""},
    {actions::mots::bd, "", "position_balise"},
    {actions::mots::bg, "", "position_balise_g"},
    {actions::mots::carreaux, "NBRE_CARREAUX =", "VERIFIER_NBRE_CARREAUX"},
}};
constexpr std::size_t longueur_cle = 6;

const RegleTraduction* regle_de(std::string_view ligne) {
    const std::string cle = majuscules(premiers_caracteres(ligne, longueur_cle));
    for (const RegleTraduction& regle : regles) {
        if (regle.mot.substr(0, longueur_cle) == cle)
            return &regle;
    }
    return nullptr;
}

} // namespace

LecteurMouvements::LecteurMouvements(std::string_view octets, std::filesystem::path fichier)
    : texte_(en_utf8(std::string(octets))), fichier_(std::move(fichier)), lignes_(texte_) {
    lignes_.suivante();
}

std::optional<Mouvement> LecteurMouvements::suivant() {
    const std::optional<std::string_view> ligne = lignes_.suivante();
    if (!ligne)
        return std::nullopt;
    Mouvement m{++numero_, *ligne, regle_de(*ligne), 0};
    if (m.regle == nullptr || m.regle->affectation.empty())
        return m;
    const std::size_t debut = premiers_caracteres(*ligne, m.regle->mot.size()).size();
    try {
        m.valeur = lire_entier16(ligne->substr(debut));
    } catch (const ErreurConversion& erreur) {
        refuser_ligne(fichier_, numero_, *ligne, erreur.what());
    }
    return m;
}

void traduire(const Mouvement& mouvement, std::string_view fin, std::string& sortie) {
    if (mouvement.regle == nullptr) {
        (sortie += "\t'*** ").append(mouvement.ligne).append(fin);
        return;
    }
    const RegleTraduction& r = *mouvement.regle;
    if (!r.affectation.empty()) {
        const TexteCourt valeur = texte_entier(mouvement.valeur);
        (sortie += '\t').append(r.affectation).append(valeur.vue()).append(fin);
    }
    if (!r.sous_programme.empty())
        (sortie += "\tGosub ").append(r.sous_programme).append(fin);
}

std::span<const RegleTraduction> regles_de_traduction() {
    return regles;
}

bool est_une_ligne_d_entete(std::string_view ligne) {
    const std::string_view contenu = rogner(ligne);
    return contenu.empty() || contenu.front() == '#';
}

LignesMuettes compter_les_muettes(std::string_view octets) {
    const std::string texte = en_utf8(std::string(octets));
    Lignes lignes(texte);
    lignes.suivante();
    LignesMuettes muettes;
    for (std::size_t numero = 2; const auto ligne = lignes.suivante(); ++numero) {
        if (regle_de(*ligne) != nullptr)
            continue;
        ++muettes.toutes;
        if (est_une_ligne_d_entete(*ligne))
            continue;
        if (++muettes.inattendues == 1)
            muettes.premiere = numero;
    }
    return muettes;
}
