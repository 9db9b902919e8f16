#include "codegen/retrait.h"

namespace {

constexpr std::string_view filet = "'********************************************************";
constexpr std::string_view debut_site = "'*** Site ";
constexpr std::size_t rang_site = 4;

// The last seven lines that were kept, as a ring.
class DernieresLignes {
public:
    void ajouter(const LigneProgramme& ligne) { lignes_[nombre_++ % lignes_de_banniere] = ligne; }
    void vider() { nombre_ = 0; }

    // Where a banner that ends here begins, or `sinon`.
    std::size_t debut_de_banniere(std::size_t sinon) const {
        if (nombre_ < lignes_de_banniere)
            return sinon;
        const std::array<std::string, lignes_de_banniere> attendues = banniere();
        for (std::size_t i = 0; i < lignes_de_banniere; ++i) {
            // The web address may have been another one when the banner was written.
            const bool pareille = i == rang_site ? ligne(i).texte.starts_with(debut_site)
                                                 : ligne(i).texte == attendues[i];
            if (!pareille)
                return sinon;
        }
        return ligne(0).debut;
    }

private:
    const LigneProgramme& ligne(std::size_t i) const {
        return lignes_[(nombre_ + i) % lignes_de_banniere];
    }

    std::array<LigneProgramme, lignes_de_banniere> lignes_;
    std::size_t nombre_ = 0;
};

bool est_etiquette(std::string_view ligne, std::string_view etiquette) {
    const std::string_view nue = rogner(ligne);
    return nue.size() == etiquette.size() && minuscules(nue) == etiquette;
}

bool est_return(std::string_view ligne) {
    const std::string_view nue = rogner(ligne);
    return nue.size() == std::string_view("return").size() && contient_sans_casse(nue, "return");
}

// Goes past the first "return" and gives the byte after it; nothing when there is none.
std::optional<std::size_t> fin_de_fonction(LignesProgramme& lignes) {
    while (const auto ligne = lignes.suivante()) {
        if (est_return(ligne->texte))
            return ligne->suite;
    }
    return std::nullopt;
}

} // namespace

std::array<std::string, lignes_de_banniere> banniere() {
    return {std::string(filet),
            std::string(filet),
            "'*** Code généré pour les trajectoires du Robot Brindalo",
            "'*** Projet Ardanel. Equipe Brindalo",
            std::string(debut_site) + TAVOLMEX_SITE,
            std::string(filet),
            std::string(filet)};
}

Retrait retirer_fonction(const Programme& programme, std::string_view fonction,
                         const Repondre& repondre) {
    const std::string etiquette = minuscules(fonction) + ":";
    Retrait retrait;
    DernieresLignes dernieres;
    LignesProgramme lignes = programme.lignes();
    bool reponse = false;
    while (const auto ligne = lignes.suivante()) {
        if (est_etiquette(ligne->texte, etiquette)) {
            reponse = repondre(std::string(ligne->texte) +
                               " : Cette fonction existe déjà dans le fichier. "
                               "Voulez-vous l'écraser?");
            if (reponse) {
                retrait.remplacee = true;
                const std::size_t debut = dernieres.debut_de_banniere(ligne->debut);
                const auto fin = fin_de_fonction(lignes);
                retrait.sans_return = !fin;
                retrait.modifications.push_back(
                    {debut, fin.value_or(programme.octets().size()), ""});
                dernieres.vider();
                continue;
            }
        }
        dernieres.ajouter(*ligne);
    }
    // Deliberate: the last answer decides whether the program changes at all.
    if (!reponse)
        retrait.modifications.clear();
    return retrait;
}
