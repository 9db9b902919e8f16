// The analysis window's commands: what their keys and buttons do.
#include "ui/commun/vitesses.h"
#include "ui/verdict/fenetre_analyse.h"

#include <QAction>
#include <QShortcut>

#include <utility>

void FenetreAnalyse::composer_commandes() {
    composer_deplacements();
    transport_.separer();
    composer_boucle();
    transport_.separer();
    composer_vues();
    transport_.finir();
    frise_.addActions(transport_.actions());
    frise_.setContextMenuPolicy(Qt::ActionsContextMenu);
}

void FenetreAnalyse::composer_deplacements() {
    transport_.ajouter("debut", "Début du match", Qt::Key_Home, Symbole::debut,
                       [this] { deplacer(0); });
    transport_.ajouter("action_precedente", "Début de l'action, ou celle d'avant",
                       Qt::CTRL | Qt::Key_Left, Symbole::action_precedente, [this] {
                           deplacer(limite_precedente(match(), frise_.robot(), d_.temps()));
                       });
    transport_.ajouter("pas_precedent", "Un pas en arrière", Qt::Key_Left, Symbole::pas_precedent,
                       [this] { avancer(-1); });
    lecture_ou_pause_ = &transport_.ajouter("lecture", "Lire, ou mettre en pause", Qt::Key_Space,
                                            Symbole::lecture, [this] { lire_ou_arreter(); });
    lecture_ou_pause_->setAutoRepeat(false);
    transport_.ajouter("pas_suivant", "Un pas en avant", Qt::Key_Right, Symbole::pas_suivant,
                       [this] { avancer(1); });
    transport_.ajouter("action_suivante", "Action suivante", Qt::CTRL | Qt::Key_Right,
                       Symbole::action_suivante,
                       [this] { deplacer(limite_suivante(match(), frise_.robot(), d_.temps())); });
    transport_.ajouter("fin", "Fin du match", Qt::Key_End, Symbole::fin,
                       [this] { deplacer(d_.duree()); });
}

void FenetreAnalyse::composer_boucle() {
    const auto boucler = [this](void (Deroulement::*poser)()) {
        return [this, poser] {
            (d_.*poser)();
            frise_.update();
        };
    };
    transport_.ajouter("boucle_debut", "La boucle commence ici", Qt::Key_A, Symbole::boucle_debut,
                       boucler(&Deroulement::poser_debut_boucle));
    transport_.ajouter("boucle_fin", "La boucle finit ici", Qt::Key_B, Symbole::boucle_fin,
                       boucler(&Deroulement::poser_fin_boucle));
    transport_.ajouter("sans_boucle", "Sans boucle", Qt::Key_L, Symbole::sans_boucle,
                       boucler(&Deroulement::oter_boucle));
}

void FenetreAnalyse::composer_vues() {
    transport_.ajouter("tout_voir", "Voir tout le match", Qt::CTRL | Qt::Key_0, Symbole::ajuster,
                       [this] { frise_.ajuster(); });
    constexpr double facteur = 1.5;
    raccourci(QKeySequence::ZoomIn, [this] { frise_.zoomer(facteur); });
    raccourci(QKeySequence::ZoomOut, [this] { frise_.zoomer(1 / facteur); });
    const auto vers = [this](int sens) {
        return [this, sens] { transport_.montrer_vitesse(vitesse_voisine(d_.vitesse(), sens)); };
    };
    raccourci(Qt::Key_Plus, vers(1));
    raccourci(Qt::Key_Minus, vers(-1));
    raccourci(Qt::Key_Equal, [this] { transport_.montrer_vitesse(1); });
    raccourci(QKeySequence::Find, [this] { transport_.commencer_recherche(); });
    raccourci(Qt::Key_F3, [this] { transport_.chercher_encore(); });
}

void FenetreAnalyse::raccourci(const QKeySequence& touche, std::function<void()> faire) {
    connect(new QShortcut(touche, this), &QShortcut::activated, this, std::move(faire));
}
