#pragma once

#include "seance/seance.h"

#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QWidget>

#include <filesystem>
#include <functional>
#include <string>

/// Whether the selected generation input is what a robot's trajectory gives, and a button that
/// makes it so.
class FraicheurEntree final : public QWidget {
public:
    /// @param au_renouvellement  the file was written: what to tell of it
    FraicheurEntree(Seance& seance, std::function<void(const QString&)> au_renouvellement);

    /// @param entree  a generation input; empty: none is selected
    void montrer(const std::filesystem::path& entree);

private:
    void nommer();
    void placer();
    bool concerne(const std::filesystem::path& entree) const;
    int robot_probable(const std::string& octets) const;
    void comparer();
    QString ecart(const std::string& octets, int robot) const;
    void renouveler();
    bool peut_remplacer(const std::string& octets);
    int robot() const { return robot_.currentIndex() + 1; }
    std::filesystem::path trajet() const { return seance_.projet().chemin_trajet(robot()); }

    Seance& seance_;
    std::function<void(const QString&)> au_renouvellement_;
    QLabel avis_, titre_robot_;
    QComboBox robot_;
    QPushButton renouveler_;
    std::filesystem::path entree_;
    std::filesystem::path choisi_pour_; ///< the input for which the user chose the robot
    std::string voulu_;                 ///< what the trajectory gives
};
