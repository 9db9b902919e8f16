#pragma once

#include "codegen/generateur.h"
#include "ui/commun/editeur_code.h"
#include "ui/generation/choix_fichier.h"
#include "ui/generation/fraicheur_entree.h"
#include "ui/generation/panneau_rejeu.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTimer>
#include <QWidget>

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

class Bureau;
class OuvGeneration;
class Seance;
class Visualiser;

/// The folders where programs were last taken from, generated to, and inputs taken from.
std::vector<std::filesystem::path> dossiers_de_generation();

/// The generation window: merges a recorded path into the team's own PICBASIC program, and shows
/// beforehand what would change.
class Dialog final : public QWidget {
public:
    Dialog(QWidget* parent, Seance& seance, Bureau& bureau);
    ~Dialog() override;

    void Form_Load();
    /// Chooses the program that the code goes into.
    void partir_de(const std::filesystem::path& programme);
    void generer_Click();
    void rep_defaut_Click(bool coche);
    void Choisir_Click();
    void visu_gene_Click();
    void Fermer_Click();

protected:
    void closeEvent(QCloseEvent* evenement) override;
    void showEvent(QShowEvent* evenement) override;

private:
    void cible_choisie(const std::string& chemin);
    Demande demande() const;
    void generer_et_montrer();
    void dire_ce_qui_a_change(std::string texte, const Generation& generation);
    void visualiser(bool modal);
    void rafraichir_apercu();
    void montrer_apercu(const Demande& d);
    void avertir(const std::vector<std::string>& phrases);
    void avertir_de_l_entree(const std::filesystem::path& entree);
    void preselectionner();
    void entree_renouvelee(const QString& texte);
    void retenir_dossiers() const;

    void nommer();
    void placer();
    QLayout* placer_cible();
    QLayout* placer_apercu();
    QLayout* placer_boutons();
    void connecter();

    Seance& seance_;
    Bureau& bureau_;
    ChoixFichier depart_, entree_;
    QLabel Label1, Label2, Label3, lb_nomFoncionGeneration;
    QLineEdit fichier_a_generer, Txt_NomFctGen;
    QCheckBox rep_defaut, menu;
    QPushButton generer, Choisir, visu_gene, Fermer;
    QPushButton restaurer_;
    QLabel compte_rendu_; ///< what the last generation wrote
    QLabel titre_apercu_;
    QPlainTextEdit apercu_;
    ColorationDifference coloration_;
    QListWidget avertissements_;
    QTimer repos_;
    PanneauRejeu rejeu_;
    FraicheurEntree fraicheur_;
    std::string CheminCourant_; ///< of the directory list that changed last
    std::string projet_preselectionne_;
    std::unique_ptr<OuvGeneration> ouv_generation_;
    std::unique_ptr<Visualiser> visualiseur_;
};
