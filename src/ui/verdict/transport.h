#pragma once

#include "ui/verdict/icones_transport.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>
#include <QWidget>

#include <functional>

/// The row of the analysis window's commands: buttons, speed, search. Each button is an action,
/// whose key counts in the whole window.
class Transport final : public QWidget {
public:
    explicit Transport(QWidget* parent);

    std::function<void(double)> a_la_vitesse;
    std::function<void(const QString& texte)> a_la_recherche;

    /// Adds a command with its button.
    QAction& ajouter(const char* nom, const QString& texte, const QKeySequence& touche,
                     Symbole symbole, std::function<void()> faire);
    /// A gap between two groups of buttons.
    void separer();
    /// Adds the speeds and the search, behind the buttons.
    void finir();

    void montrer_vitesse(double vitesse);
    void commencer_recherche();
    void chercher_encore() { a_la_recherche(recherche_.text()); }
    void dire_introuvable(bool oui);
    bool cherche() const { return recherche_.hasFocus(); }

private:
    void nommer();

    QHBoxLayout& rangee_;
    QLabel titre_vitesse_, introuvable_;
    QComboBox vitesse_;
    QLineEdit recherche_;
};

/// The name of a button, with its key.
QString avec_touche(const QString& texte, const QKeySequence& touche);
