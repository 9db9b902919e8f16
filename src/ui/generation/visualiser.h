#pragma once

#include "codegen/etiquettes.h"
#include "ui/commun/editeur_code.h"
#include "ui/commun/veilleur.h"

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QWidget>

#include <filesystem>
#include <memory>
#include <vector>

class Bureau;
class Fenetres;

/// Lists the labels of a PICBASIC file and shows the body of the one selected. A file that changes
/// on the disk is read again.
class Visualiser final : public QWidget {
public:
    Visualiser(QWidget* parent, Fenetres& fenetres, Bureau& bureau,
               std::filesystem::path FichierVisu);

    void Form_Load();
    void LFonc_Click();
    void Fermer_Click();

protected:
    void keyPressEvent(QKeyEvent* evenement) override;

private:
    void nommer();
    void placer();
    void connecter();
    void lire();
    void relire();
    void choisir(int rang);
    void suivre(const QString& ligne, int colonne);
    void revenir();
    void chercher();

    Fenetres& fenetres_;
    Bureau& bureau_;
    std::filesystem::path FichierVisu_;
    std::unique_ptr<Programme> programme_;
    std::vector<Etiquette> etiquettes_;
    std::vector<int> chemin_suivi_; ///< rows left by following a Gosub
    QLabel Label1, Label2;
    QListWidget LFonc;
    VueCode Visu;
    ColorationPicbasic coloration_;
    QLineEdit recherche_;
    QPushButton chercher_, retour_, Fermer;
    Veilleur veilleur_;
};
