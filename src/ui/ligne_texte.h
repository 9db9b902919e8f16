#pragma once

#include "sim/textes_etat.h"

#include <QWidget>

#include <string>
#include <string_view>
#include <variant>

/// A line of read-outs that changes with every tick. Unlike a label it keeps the values and makes
/// the text only when it is painted or when an assistive tool asks for it, and a new text never
/// re-lays out the window.
class LigneTexte final : public QWidget {
public:
    explicit LigneTexte(QWidget* parent);

    void ecrire(const LigneMess& valeurs) { changer(valeurs); }
    void ecrire(const LigneInfo& valeurs) { changer(valeurs); }
    void ecrire(std::string_view texte) { changer(std::string(texte)); }
    QString texte() const;

    QSize sizeHint() const override;

    /// Tells the assistive tools about this class; once, before the first window.
    static void installer_accessibilite();

protected:
    void paintEvent(QPaintEvent*) override;

private:
    using Contenu = std::variant<std::string, LigneMess, LigneInfo>;

    void changer(const Contenu& contenu);

    Contenu contenu_;
};
