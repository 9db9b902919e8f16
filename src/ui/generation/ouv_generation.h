#pragma once

#include "ui/generation/choix_fichier.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QWidget>

#include <filesystem>
#include <functional>
#include <string>

/// Picks the target of a generation by directory and name.
class OuvGeneration final : public QWidget {
public:
    /// @param dossier  shown at first
    /// @param choisi   hears of the target once this window is hidden
    OuvGeneration(QWidget* parent, const std::filesystem::path& dossier,
                  std::function<void(const std::string& chemin)> choisi);

    void Nouveau_Click();
    void Fermer_Click() { hide(); }

private:
    void nommer();
    void placer();
    void parcourir_Click();

    std::function<void(const std::string&)> choisi_;
    ListeLecteurs Lect_Gen;
    ListeDossiers Rep_Gen;
    QLineEdit NomFicGenere;
    QLabel nom_;
    QPushButton parcourir_, Nouveau, Fermer;
};
