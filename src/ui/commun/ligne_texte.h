#pragma once

#include "sim/textes_etat.h"

#include <QWidget>

#include <array>
#include <string>
#include <string_view>
#include <variant>

/// A line of read-outs that changes with every tick. Unlike a label it keeps the values and makes
/// the text only when it is painted or when an assistive tool asks for it, and a new text never
/// re-lays out the window; only the lines that changed are repainted. Where it is narrow, the
/// status line breaks before "Action" and after the action's name, the sensor's before the
/// distances of a beacon search.
class LigneTexte final : public QWidget {
public:
    enum class Sorte { etat, capteur };
    LigneTexte(Sorte sorte, QWidget* parent);

    void ecrire(const LigneMess& valeurs) { changer(valeurs); }
    void ecrire(const LigneInfo& valeurs) { changer(valeurs); }
    void ecrire(std::string_view texte) { changer(std::string(texte)); }
    QString texte() const;
    /// A free text stands in the line, not its values.
    bool est_texte() const { return std::holds_alternative<std::string>(contenu_); }

    bool est_vide() const;
    /// Where the text on the screen ends (logical pixels from the left); 0 without one.
    int fin_du_texte() const;

    /// Height (logical pixels) for a width: one to three lines (the sensor's: two), as the longest
    /// usual text asks; for a free text as many as it needs to be read whole.
    int hauteur(int largeur) const;

    /// Narrower than this a usual text is cut off.
    int largeur_minimale() const;

    /// Tells the assistive tools about this class; once, before the first window.
    static void installer_accessibilite();

protected:
    void changeEvent(QEvent* evenement) override;
    void paintEvent(QPaintEvent* evenement) override;
    void resizeEvent(QResizeEvent*) override { ranger(); }
    void showEvent(QShowEvent*) override { ranger(); }

private:
    using Contenu = std::variant<std::string, LigneMess, LigneInfo>;
    static constexpr int rangees_max = 3;

    void changer(const Contenu& contenu);
    void mesurer() const;
    int hauteur_du_texte(int largeur) const;
    void ranger();
    void ecrire_rangee(int numero, std::string_view texte);
    int rangees_possibles() const;
    QRect place(int numero) const;

    /// Widths (logical pixels) of the longest usual text and of its beginning up to the name.
    struct Largeurs {
        int entiere = 0;
        int debut = 0;
        int coupee = 0; ///< of the widest line when there are as many as there may be
    };

    Sorte sorte_;
    Contenu contenu_;
    mutable Largeurs largeurs_;                   ///< measured once for a font
    std::array<TexteCourt, rangees_max> rangees_; ///< what is on the screen, line by line
};
