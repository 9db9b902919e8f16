#pragma once

#include "ui/verdict/texte_verdict.h"

#include <QAbstractButton>

#include <vector>

/// The verdict, in the middle of the place it is given: all of it on one or two lines, or as many
/// parts as fit, the findings first; above it the project, where a line is left. A click opens
/// their list.
class LigneVerdict final : public QAbstractButton {
public:
    explicit LigneVerdict(QWidget* parent);

    void ecrire(const TexteVerdict& texte);
    /// Narrower than this it says nothing.
    int largeur_utile() const;

protected:
    void paintEvent(QPaintEvent*) override;
    void enterEvent(QEnterEvent* evenement) override;
    void leaveEvent(QEvent* evenement) override;
    void keyPressEvent(QKeyEvent* evenement) override;

private:
    struct Morceau {
        QString texte;
        bool lien = false; ///< the findings
    };
    using Rangee = std::vector<Morceau>;

    QFont police(bool lien) const;
    int largeur(const Morceau& morceau) const;
    std::vector<Rangee> ranger(const std::vector<Morceau>& morceaux) const;
    std::size_t rangees_possibles() const;
    std::vector<Rangee> rangees() const;
    std::vector<Rangee> rangees_du_verdict() const;
    void peindre_rangee(QPainter& peintre, const Rangee& rangee, int y) const;

    TexteVerdict texte_;
};
