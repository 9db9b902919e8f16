#pragma once

#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QPushButton>

#include <array>
#include <string>
#include <vector>

class Sim1;

/// Lists the projects and makes the chosen one the current project; loading it is the caller's
/// business.
class Ouvrir final : public QDialog {
public:
    Ouvrir(Sim1& sim, QWidget& proprietaire);

    void Command1_Click();
    void Command2_Click() { reject(); }

private:
    void nommer();
    void placer();
    void connecter();
    void Form_Load();

    Sim1& sim_;
    std::vector<std::string> projets_; ///< as the list shows them
    std::array<QLabel, 3> Label1;
    QLabel Label2, Label3;
    QComboBox Combo1;
    QPushButton Command1, Command2;
};
