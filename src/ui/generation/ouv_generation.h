#pragma once

#include "ui/generation/choix_fichier.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QWidget>

class Sim1;
class Dialog;

/// Picks the target of a generation by directory and name.
class OuvGeneration final : public QWidget {
public:
    OuvGeneration(Sim1& sim, Dialog& dialog);

    void Nouveau_Click();
    void Fermer_Click() { hide(); }

private:
    void nommer();
    void placer();
    void parcourir_Click();

    Sim1& sim_;
    Dialog& dialog_;
    ListeLecteurs Lect_Gen;
    ListeDossiers Rep_Gen;
    QLineEdit NomFicGenere;
    QLabel nom_;
    QPushButton parcourir_, Nouveau, Fermer;
};
