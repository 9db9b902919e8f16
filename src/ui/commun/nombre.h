#pragma once

#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QSpinBox>

#include <optional>
#include <type_traits>

/// What a field makes of a typed text: its number, or why it has none.
struct Saisie {
    std::optional<double> valeur;
    QString raison; ///< a sentence for the user; empty with a number
};

/// Digits with a sign and, where `decimales` is above 0, a comma or a point: the French way
/// whatever the system's language, without grouping.
Saisie lire_saisie(const QString& texte, int decimales, double mini, double maxi);

/// A number field that takes what was typed or refuses it with the reason, and never makes another
/// number of it. Its text is French whatever the system's language.
template <typename Base>
class ChampNombre : public Base {
public:
    explicit ChampNombre(QWidget* parent = nullptr);

    using Valeur = std::conditional_t<std::is_same_v<Base, QSpinBox>, int, double>;

    /// What the present text is worth.
    Saisie saisie() const { return lire(this->text()); }
    /// None: the number of several things that differ. The field is empty until one is typed.
    void montrer(std::optional<Valeur> valeur);

protected:
    QString textFromValue(Valeur valeur) const override;
    Valeur valueFromText(const QString& texte) const override;
    QValidator::State validate(QString& texte, int& position) const override;
    void fixup(QString&) const override {} // what is refused is not mended
    QAbstractSpinBox::StepEnabled stepEnabled() const override {
        return melange_ ? QAbstractSpinBox::StepEnabled() : Base::stepEnabled();
    }
    void focusOutEvent(QFocusEvent* evenement) override;
    void keyPressEvent(QKeyEvent* evenement) override;

private:
    int chiffres_apres_la_virgule() const;
    QString nu(QString texte) const; ///< without the unit
    Saisie lire(const QString& texte) const;
    void expliquer();
    void dire_un_refus();

    bool melange_ = false; ///< of things that differ
    bool dit_ = false;     ///< why the text is no number
};

extern template class ChampNombre<QSpinBox>;
extern template class ChampNombre<QDoubleSpinBox>;

using NombreEntier = ChampNombre<QSpinBox>;
/// Without idle zeros.
using Nombre = ChampNombre<QDoubleSpinBox>;

/// Takes the number of the field that has the window's keyboard.
/// @returns why it is refused, empty when it was taken or when no number field has the keyboard
QString prendre_la_saisie(const QWidget& fenetre);

/// The same for a plain line: letters cannot be typed, and a comma, which stays to be seen, makes
/// the text no number.
void n_accepter_que_des_entiers(QLineEdit& champ);
