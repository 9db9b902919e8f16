#pragma once

#include <QString>

#include <optional>
#include <string_view>

class QWidget;

/// What becomes of changes that are about to go.
enum class Sauvegarde { enregistrer, ne_pas_enregistrer, annuler };

/// The boxes of a window, the only way to any: modal, so that the simulation's clock and the
/// watchers hold still while one is open (boite_ouverte). Each kind has its objectName, by which
/// the tests answer it.
class Boites {
public:
    explicit Boites(QWidget& fenetre) : fenetre_(fenetre) {}

    /// A box with an OK button; returns once it is closed.
    void message(std::string_view texte, std::string_view explication = {});
    /// The same for what is no fault.
    void information(std::string_view texte);
    /// Asks for a directory, a file to read or a file to write. Whoever writes it asks before one
    /// that exists is replaced. @returns its path; empty when the user gives up
    QString choisir_dossier(const QString& titre);
    QString choisir_fichier(const QString& titre, const QString& dossier, const QString& filtres);
    QString choisir_destination(const QString& titre, const QString& propose,
                                const QString& filtres = {});
    /// Asks for a number. @returns nothing when the user gives up
    std::optional<int> demander_entier(const QString& titre, const QString& question, int propose,
                                       int minimum, int maximum);
    /// A box with "Oui" and "Non", which alone answer: Escape and the frame do nothing.
    /// @param explication  what the answers lead to, beneath the question
    /// @returns true for "Oui"
    bool question(std::string_view texte, std::string_view explication = {});
    /// "Enregistrer", "Ne pas enregistrer" or "Annuler"; Escape and the frame are "Annuler".
    Sauvegarde demander_sauvegarde(std::string_view texte, std::string_view explication);

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
