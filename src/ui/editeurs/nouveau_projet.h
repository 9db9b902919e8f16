#pragma once

#include "config/nom_projet.h"

#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <filesystem>
#include <functional>

/// "Création d'un projet": the name under which an editor's drawing is saved. A name that no
/// project would find is explained and corrected on demand.
class nouveauProjet final : public QDialog {
public:
    /// Writes the drawing to a file. @returns false when the user or an error stopped it
    using GenererFic = std::function<bool(const std::filesystem::path&)>;

    nouveauProjet(QWidget* parent, GenreFichier genre, std::filesystem::path configuration);

    GenererFic generer;

    /// Another name than "Defaut" to begin with.
    void proposer(const std::string& nom);

private:
    void placer();
    void OKButton_Click();
    void nomProjet_Change();

    GenreFichier genre_;
    std::filesystem::path configuration_;
    QLabel Label1, avis;
    QLineEdit nomProjet;
    QPushButton corriger, OKButton, CancelButton;
};
