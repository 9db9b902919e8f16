#pragma once

#include "draw/a_vide.h"
#include "sim/fenetres_muettes.h"

#include <ostream>

/// The engine's outlet without a window: messages go to one stream, a line each; the drawing's
/// arithmetic is done on an empty surface; the timer is a number that a loop reads.
class FenetresTerminal : public FenetresMuettes {
public:
    FenetresTerminal(Etat& etat, std::ostream& erreurs) : etat_(etat), erreurs_(erreurs) {}

    void message(std::string_view texte, std::string_view explication = {}) override;
    void information(std::string_view texte) override;
    bool question(std::string_view texte, std::string_view explication = {}) override;
    void regler_Timer(Entier16 ms) override { intervalle_ = ms; }
    void Dessine_Table() override {
        if (!terminee_)
            dessin_.table(etat_, *this);
    }
    void Dessine_Robot() override {
        if (!terminee_)
            dessin_.robots(etat_, *this);
    }
    void montrer_course(bool en_cours) override;
    void fin_du_programme() override { terminee_ = true; }

    /// The simulation clock runs.
    bool en_marche() const { return intervalle_ > 0 && !terminee_; }
    /// A major error has asked for the end of the program.
    bool terminee() const { return terminee_; }
    int nb_messages() const { return nb_messages_; }
    /// 0 when no message was shown, 1 when one was, 3 after a major error.
    int code_de_sortie() const;

protected:
    Etat& etat_;

private:
    void ecrire_en_une_ligne(std::string_view texte);

    std::ostream& erreurs_;
    DessinAVide dessin_;
    Entier16 intervalle_;
    bool terminee_ = false;
    int nb_messages_ = 0;
};
