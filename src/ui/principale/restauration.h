#pragma once

#include "config/versions.h"
#include "ui/commun/editeur_code.h"
#include "ui/commun/veilleur.h"

#include <QComboBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTreeWidget>
#include <QWidget>

#include <string>
#include <vector>

class Seance;

/// Lists the dated copies of the project's files and of PICBASIC programs, shows what each would
/// change, and puts one back. The project is then read again like any file changed from outside.
class Restauration final : public QWidget {
public:
    Restauration(QWidget* parent, Seance& seance);

protected:
    void showEvent(QShowEvent* evenement) override;
    void keyPressEvent(QKeyEvent* evenement) override;

private:
    void nommer();
    void placer();
    void connecter();

    void lister();
    void remplir_filtre();
    void remplir_liste();
    void choisir();
    void montrer(const Version& version);
    std::filesystem::path destination(const Version& version);
    void restaurer_Click();
    const Version* choisie() const;

    Seance& seance_;
    std::vector<Version> versions_;
    QLabel titre_filtre_, titre_apercu_, compte_rendu_;
    QComboBox filtre_;
    QTreeWidget liste_;
    QPlainTextEdit apercu_;
    ColorationDifference coloration_;
    QPushButton restaurer_, Fermer;
    Veilleur veilleur_;
};
