#pragma once

#include <QString>

#include <string_view>

class QWidget;

/// The message boxes of a window, modal: the simulation's clock is held while one is open.
class Boites {
public:
    explicit Boites(QWidget& fenetre) : fenetre_(fenetre) {}

    /// A box with an OK button; returns once it is closed.
    void message(std::string_view texte, std::string_view explication = {});
    /// The same for what is no fault.
    void information(std::string_view texte);
    /// Asks for a directory. @returns its path; empty when the user gives up
    QString choisir_dossier(const QString& titre);
    /// A box with "Oui" and "Non", which alone answer: Escape and the frame do nothing.
    /// @param explication  what the answers lead to, beneath the question
    /// @returns true for "Oui"
    bool question(std::string_view texte, std::string_view explication = {});

private:
    QWidget& fenetre_;
};

/// A box with an OK button, over no particular window when there is none; returns once closed.
void montrer_message(QWidget* fenetre, std::string_view texte, std::string_view explication = {});

/// True while any box or dialog of the program is open, whichever window it belongs to, the
/// system's own file dialogs too.
bool boite_ouverte();

/// UTF-8 to QString, CR LF become line feeds: the text of a control.
QString texte_qt(std::string_view texte);
