#pragma once

#include <QString>

#include <string_view>

class QWidget;

/// The message boxes of the program, one at a time, modal. Knows whether one is open: the
/// simulation's clock is held meanwhile.
class Boites {
public:
    explicit Boites(QWidget& fenetre) : fenetre_(fenetre) {}

    /// A box with an OK button; returns once it is closed.
    void message(std::string_view texte, std::string_view explication = {});
    /// A box with "Oui" and "Non", which alone answer: Escape and the frame do nothing.
    /// @param explication  what the answers lead to, beneath the question
    /// @returns true for "Oui"
    bool question(std::string_view texte, std::string_view explication = {});
    bool ouverte() const { return ouvertes_ > 0; }

private:
    QWidget& fenetre_;
    int ouvertes_ = 0;
};

/// UTF-8 to QString, CR LF become line feeds: the text of a control.
QString texte_qt(std::string_view texte);
