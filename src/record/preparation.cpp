#include "record/preparation.h"

#include "record/appuis.h"
#include "record/generation.h"
#include "record/pose.h"
#include "sim/fenetres_muettes.h"
#include "sim/moteur.h"
#include "sim/orientation.h"

#include <memory>

namespace {

/// The console and its clock, without a window.
class Conduite final : public FenetresMuettes {
public:
    explicit Conduite(Etat& etat) : etat_(etat) {}

    void commencer(int robot) {
        console_.VScroll1_Change(robot);
        // The fields of the console and the file have the same frame.
        const Pose p = pose_des_fichiers(etat_, robot);
        console_.Command9_Click({std::string(texte_simple(p.x)), std::string(texte_simple(p.y)),
                                 std::string(texte_simple(p.cap))});
        tourner();
    }

    /// @returns why an action is refused
    std::optional<RefusLecture> conduire(const DocumentTrajet& trajet) {
        return rejouer(trajet, console_, [this] { return tourner(); });
    }

    bool hors_du_match() const { return hors_du_match_; }
    const std::string& panne() const { return panne_; }

private:
    void message(std::string_view texte, std::string_view) override {
        if (panne_.empty())
            panne_ = texte;
    }
    void regler_Timer(Entier16 ms) override { intervalle_ = ms; }
    void Active_Desactive(bool Status) override {
        if (Status)
            console_.action_finie();
    }
    void montrer_course(bool en_cours) override {
        if (!en_cours)
            console_.action_finie();
    }
    void fin_du_programme() override { terminee_ = true; }

    bool tourner() {
        while (intervalle_ > 0 && !terminee_ && moteur_.Timer_Timer()) {
        }
        hors_du_match_ = hors_du_match_ || !etat_.en_course;
        return !terminee_;
    }

    Etat& etat_;
    Moteur moteur_{etat_, *this};
    Console console_{etat_, *this, moteur_};
    Entier16 intervalle_;
    std::string panne_; ///< the first message
    bool terminee_ = false;
    bool hors_du_match_ = false;
};

void exiger(const std::optional<RefusLecture>& refus) {
    if (refus)
        throw LigneRefusee(refus->ligne, refus->raison);
}

} // namespace

GenerationPreparee preparer_generation(Etat& etat, int robot, const DocumentTrajet& trajet,
                                       const std::string& nom_de_fichier) {
    exiger(refus_de_generation(trajet));
    etat.TableauAGenerer = {};
    etat.nb_a_generer = 0;
    etat.NbRobot = std::max<int>(etat.NbRobot, robot);
    Conduite conduite(etat);
    conduite.commencer(robot);
    exiger(conduite.conduire(trajet));
    if (!conduite.panne().empty())
        throw ErreurExecution(conduite.panne());
    return {texte_generation(etat, nom_de_fichier), conduite.hors_du_match()};
}

GenerationPreparee preparer_entree(const Etat& etat, int robot, const DocumentTrajet& trajet) {
    const auto e = std::make_unique<Etat>(etat);
    if (e->TableHorizontale)
        vertical(*e);
    trajet.remplir(*e, robot); // files have the table upright
    if (e->TableHorizontale)
        horizontal(*e);
    return preparer_generation(*e, robot, trajet, e->NomProjet + std::string(suite_de_l_entree));
}
