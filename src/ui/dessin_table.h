#pragma once

#include "ui/fenetre_editeur.h"
#include "ui/historique.h"
#include "ui/panneau_proprietes.h"
#include "ui/vue_table.h"

#include <QLabel>
#include <QListWidget>
#include <QPlainTextEdit>

/// The table editor.
class dessinTable final : public FenetreEditeur {
public:
    dessinTable(QWidget* parent, Foutil& outils, Programme programme);

    const DocumentTable& document() const { return historique_.doc(); }
    /// The tool in hand changed.
    void outil_change();

protected:
    QUndoStack& pile() override { return historique_.pile; }
    VueEchelle& vue() override { return vue_; }
    void commencer() override { historique_.repartir(DocumentTable::nouveau()); }
    std::vector<int> lire(const std::string& octets) override;
    std::string octets() const override { return historique_.doc().ecrire(); }
    std::optional<RefusLecture> relire(const std::string& octets) const override;
    void retirer() override;
    void dupliquer() override;
    void tout_choisir() override;
    void deplacer(double dx, double dy) override;

private:
    enum class Bord { gauche, droite, haut, bas, milieu_x, milieu_y };

    void placer();
    void connecter();
    void preparer_edition();
    void preparer_alignement();
    void rafraichir();
    void montrer_proprietes();
    void montrer_legende();
    void montrer_liste();
    void montrer_comptes();
    void refuser(const std::string& raison);

    void changer_plan(bool vers_l_avant);
    void aligner(Bord bord);
    void changer_nombre(std::size_t champ, double valeur);
    void changer_sorte(const std::string& cle);
    void changer_legende();
    void choisir_dans_la_liste();

    Historique<DocumentTable> historique_;
    VueTable vue_;
    PanneauProprietes proprietes_;
    QPlainTextEdit legende_;
    QListWidget liste_;
    QLabel position_, comptes_;
    bool en_cours_ = false; ///< the list and the caption are being filled
};
