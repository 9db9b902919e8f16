#pragma once

#include "codegen/ensemble.h"
#include "edition/miroir.h"
#include "ui/commun/editeur_code.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>

#include <array>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>

/// What the user wants of a copy.
struct Copie {
    int vers = 1;                          ///< robot
    std::optional<Retournement> cote = {}; ///< none: as it is
    bool generation = false;               ///< with its generation input
    bool fonctions = false;                ///< both as subroutines of a program, and then:
    std::filesystem::path programme = {};
    std::array<std::string, 2> noms = {}; ///< of this trajectory's, of the copy's
};

/// "Copier vers un robot": which one, turned in which way, what else is made of it. What would
/// become of the program is shown meanwhile.
class CopieTrajet final : public QDialog {
public:
    /// Works the program out. @throws ErreurExecution, a sentence for the user
    using Composer = std::function<Ensemble(const Copie&)>;

    /// @param propose  what the fields hold at first
    CopieTrajet(QWidget* parent, const Copie& propose, Composer composer);

    Copie copie() const;

private:
    void nommer();
    void placer();
    void connecter();
    void proposer(const Copie& propose);
    void proposer_un_nom();
    void choisir_un_programme();
    void actualiser();
    void agrandir();
    void composer();

    Composer composer_;
    QComboBox robot_, cote_;
    QCheckBox generation_, fonctions_;
    QWidget code_; ///< all that belongs to the two subroutines
    QLineEdit programme_;
    std::array<QLineEdit, 2> noms_;
    QPushButton parcourir_, copier_, annuler_;
    QLabel titre_;
    QPlainTextEdit apercu_;
    ColorationDifference coloration_;
    QListWidget avertissements_;
    bool nom_propose_ = true; ///< the second name follows the first
};
