#pragma once

#include "sim/textes_etat.h"

#include <QWidget>

#include <string>
#include <string_view>
#include <variant>

class QPainter;

/// A line of read-outs that changes with every tick. Unlike a label it keeps the values and makes
/// the text only when it is painted or when an assistive tool asks for it, and a new text never
/// re-lays out the window. Where it is
/// narrow, a status line goes on below after its action's name.
class LigneTexte final : public QWidget {
public:
    explicit LigneTexte(QWidget* parent);

    void ecrire(const LigneMess& valeurs) { changer(valeurs); }
    void ecrire(const LigneInfo& valeurs) { changer(valeurs); }
    void ecrire(std::string_view texte) { changer(std::string(texte)); }
    QString texte() const;

    /// Height (logical pixels) for a width: one line, or two if the longest usual text asks for it.
    int hauteur(int largeur) const;

    /// Tells the assistive tools about this class; once, before the first window.
    static void installer_accessibilite();

protected:
    void paintEvent(QPaintEvent*) override;

private:
    using Contenu = std::variant<std::string, LigneMess, LigneInfo>;

    void changer(const Contenu& contenu);
    void peindre_valeurs(QPainter& peintre, const QRect& place) const;

    Contenu contenu_;
};
