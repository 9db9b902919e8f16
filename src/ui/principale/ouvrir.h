#pragma once

#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QPushButton>

#include <array>
#include <functional>
#include <string>
#include <vector>

class Seance;

/// Lists the projects and lets the user choose one; loading it is the caller's business.
class Ouvrir final : public QDialog {
public:
    /// @param choisi  makes the chosen project the current one
    Ouvrir(QWidget* proprietaire, Seance& seance,
           std::function<void(const std::string& projet)> choisi);

    void Command1_Click();
    void Command2_Click() { reject(); }

private:
    void nommer();
    void placer();
    void connecter();
    void Form_Load();

    Seance& seance_;
    std::function<void(const std::string&)> choisi_;
    std::vector<std::string> projets_; ///< as the list shows them
    std::array<QLabel, 3> Label1;
    QLabel Label2, Label3;
    QComboBox Combo1;
    QPushButton Command1, Command2;
};
