#include "codegen/examen_entree.h"

#include "base/erreurs.h"
#include "codegen/traduction.h"
#include "sim/actions.h"

#include <array>

namespace {

constexpr std::size_t maximum_par_sorte = 20;

void ajouter_besoins(const RegleTraduction& regle, Besoins& besoins) {
    if (!regle.sous_programme.empty())
        besoins.sous_programmes.emplace(regle.sous_programme);
    const std::size_t egal = regle.affectation.find('=');
    if (egal != std::string_view::npos)
        besoins.noms.emplace(rogner(regle.affectation.substr(0, egal)));
}

bool est(const Mouvement& m, std::string_view mot) {
    return m.regle != nullptr && m.regle->mot == mot;
}
bool est_droit(const Mouvement& m) {
    return est(m, actions::mots::avance) || est(m, actions::mots::recule);
}
bool est_tour(const Mouvement& m) {
    return est(m, actions::mots::gauche) || est(m, actions::mots::droite);
}

// A recorded curve comes as a straight run, a quarter turn and a straight run of the same way; both
// runs have decimals, or no length at all.
class Virages {
public:
    /// @returns true when the move ends a curve
    bool lire(const Mouvement& m) {
        derniers_ = {derniers_[1], derniers_[2], m};
        const auto& [premier, quart, second] = derniers_;
        const bool virage = est_droit(premier) && premier.regle == second.regle &&
                            est_tour(quart) && quart.valeur == 90 &&
                            n_est_pas_tape(premier, second);
        tours_ += est_tour(m) ? 1 : 0;
        if (virage)
            --tours_;
        return virage;
    }
    std::string phrase() const {
        const auto& [premier, quart, second] = derniers_;
        const auto n = [](const Mouvement& m) { return std::to_string(m.valeur); };
        return "lignes " + std::to_string(premier.numero) + " à " + std::to_string(second.numero) +
               " : le virage enregistré devient une ligne droite de " + n(premier) +
               ", un quart de tour et une ligne droite de " + n(second) +
               " ; ces longueurs ne suivent pas l'arc dessiné à l'écran";
    }
    /// The moves of a curve count for one curve only.
    void oublier() { derniers_ = {}; }
    bool des_tours() const { return tours_ > 0; }

private:
    static bool n_est_pas_tape(const Mouvement& a, const Mouvement& b) {
        const auto decimales = [](const Mouvement& m) {
            return m.ligne.find('.') != std::string_view::npos;
        };
        return (decimales(a) && decimales(b)) || (a.valeur == 0 && b.valeur == 0);
    }

    std::array<Mouvement, 3> derniers_;
    int tours_ = 0; ///< on the spot, quarter turns of curves left out
};

// Lines of an ordinary header are expected to become comments.
void signaler_muettes(const std::string& nom, std::string_view entree,
                      std::vector<std::string>& liste) {
    const LignesMuettes muettes = compter_les_muettes(entree);
    if (muettes.inattendues > 0)
        liste.push_back(nom + " : lignes qui deviennent des commentaires ('***) : " +
                        std::to_string(muettes.toutes) +
                        ", dont hors de l'en-tête : " + std::to_string(muettes.inattendues) +
                        " ; ce ne sont pas des mouvements (la première est la ligne " +
                        std::to_string(muettes.premiere) + ")");
}

} // namespace

void Sorte::ajouter(std::string phrase) {
    if (++nombre_ <= maximum_par_sorte)
        liste_.push_back(std::move(phrase));
}

void Sorte::clore() {
    if (nombre_ > maximum_par_sorte)
        liste_.push_back("… et " + std::to_string(nombre_ - maximum_par_sorte) +
                         " autres avertissements de cette sorte");
}

Besoins examiner_entree(const Demande& demande, std::string_view entree,
                        std::vector<std::string>& liste) {
    const std::string nom = demande.entree.filename().string();
    signaler_muettes(nom, entree, liste);
    Besoins besoins;
    Sorte valeurs(liste);
    std::vector<std::string> liste_virages;
    Sorte sorte_virages(liste_virages);
    Virages virages;
    try {
        LecteurMouvements lecteur(entree, demande.entree);
        while (const auto m = lecteur.suivant()) {
            if (m->regle != nullptr)
                ajouter_besoins(*m->regle, besoins);
            if (!actions::tient_dans_un_octet(m->valeur))
                valeurs.ajouter(nom + ", ligne " + std::to_string(m->numero) + " : la valeur " +
                                std::to_string(m->valeur) + " est hors de 0 à 255");
            if (virages.lire(*m)) {
                sorte_virages.ajouter(nom + ", " + virages.phrase());
                virages.oublier();
            }
        }
    } catch (const ErreurExecution&) { // NOLINT(bugprone-empty-catch)
        // The composition has met the same line: it is reported there.
    }
    valeurs.clore();
    sorte_virages.clore();
    liste.insert(liste.end(), liste_virages.begin(), liste_virages.end());
    if (virages.des_tours())
        liste.emplace_back("Les tours sur place sont croisés, c'est voulu : un tour à droite de la "
                           "télécommande appelle Action_Gauche, un tour à gauche Action_Droite, à "
                           "cause du nom de ces sous-programmes dans le robot");
    return besoins;
}
