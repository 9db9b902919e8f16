#pragma once

#include "config/creation_projet.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QToolBar>

#include <functional>
#include <string>
#include <vector>

/// The projects that ship with the program.
std::vector<std::string> exemples();

/// What comes first when a project is made: one name for all its files, and what they hold. A strip
/// above the drawing, which nobody has to answer.
class PremierePage final : public QToolBar {
public:
    explicit PremierePage(std::filesystem::path configuration);

    struct Demande {
        std::string nom;
        std::vector<FichierDeProjet> fichiers;
        bool exemple; ///< one of those with two robots
    };
    std::function<void(const Demande&)> a_la_creation;

    /// Shows what there is to copy now, with nothing filled in.
    void proposer();

protected:
    void keyPressEvent(QKeyEvent* evenement) override;

private:
    void nommer();
    void placer();
    void remplir();
    void suivre_le_nom();
    void creer();

    std::filesystem::path configuration_;
    QLabel titre_, avis_, etiquette_nom_, etiquette_contenu_;
    QLineEdit nom_;
    QComboBox contenu_;
    QPushButton creer_, passer_;
};
