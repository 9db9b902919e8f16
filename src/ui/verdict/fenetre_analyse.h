#pragma once

#include "ui/commun/ligne_texte.h"
#include "ui/verdict/liste_constats.h"
#include "ui/verdict/transport.h"
#include "ui/verdict/vue_frise.h"
#include "ui/verdict/vue_instant.h"

#include <QElapsedTimer>
#include <QSplitter>
#include <QTimer>

/// The computed match in time: the table at the cursor's instant, the findings, the timeline, and
/// what plays it.
class FenetreAnalyse final : public QWidget {
public:
    /// @param au_segment  the user wants to change a robot's action of that number
    FenetreAnalyse(QWidget* parent, std::function<void(Genre, bool masque)> au_choix_d_un_genre,
                   std::function<void(int robot, int numero)> au_segment);

    /// Another match or other kinds of findings. Cursor, scales and places stay.
    /// @param e, a  the state and what was computed from it; the caller's
    void montrer(const QString& verdict, const Etat& e, const Analyse& a,
                 const GenresMasques& masques);
    /// The findings alone, which know more now.
    void montrer_constats(const QString& verdict, const GenresMasques& masques);
    /// A real match runs, which is not the one that is shown.
    void signaler_la_course(bool oui);

protected:
    void keyPressEvent(QKeyEvent* evenement) override;
    void hideEvent(QHideEvent* evenement) override;

private:
    void nommer();
    void placer();
    void connecter();
    void composer_commandes();
    void composer_deplacements();
    void composer_boucle();
    void composer_vues();
    void raccourci(const QKeySequence& touche, std::function<void()> faire);

    const MatchCalcule& match() const { return analyse_->match; }
    bool vide() const { return analyse_ == nullptr || analyse_->robots.empty(); }
    void aller(std::int32_t temps);
    void deplacer(std::int32_t temps);
    void avancer(int sens);
    void aller_au_constat(const Constat& constat);
    void aller_au_rapprochement(int robot, std::int32_t temps);
    void choisir_robot(int robot);
    void chercher(const QString& texte);
    void lire_ou_arreter();
    void passer_le_temps();
    void suivre();
    void ecrire_lecture();

    Deroulement d_;
    const Etat* etat_ = nullptr;
    const Analyse* analyse_ = nullptr;
    QTimer horloge_;
    QElapsedTimer depuis_; ///< the last image of what is played
    QLabel course_;
    VueInstant instant_;
    ListeConstats constats_;
    Transport transport_;
    LigneTexte lecture_;
    VueFrise frise_;
    QAction* lecture_ou_pause_ = nullptr;
};
