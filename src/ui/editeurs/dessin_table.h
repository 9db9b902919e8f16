#pragma once

#include "edition/mesures.h"
#include "edition/objets_table.h"
#include "ui/commun/historique.h"
#include "ui/commun/panneau_proprietes.h"
#include "ui/editeurs/fenetre_editeur.h"
#include "ui/editeurs/liste_choix.h"
#include "ui/editeurs/vue_table.h"

#include <QCheckBox>
#include <QLabel>
#include <QPlainTextEdit>

#include <optional>

/// The table editor.
class dessinTable final : public FenetreEditeur {
public:
    dessinTable(QWidget* parent, Foutil& outils, Programme programme);

    const DocumentTable& document() const { return historique_.doc(); }

protected:
    std::optional<RefusLecture> relire(const std::string& octets) const override;
    QString en_suspens() const override;
    void retirer() override;
    void dupliquer() override;
    void tout_choisir() override;
    void deplacer(double dx, double dy) override;
    void aligner(Bord bord) override;
    std::string copier() const override;
    void coller(const std::string& lignes) override;

private:
    void placer();
    void connecter();
    void preparer_edition();
    void rafraichir();
    void montrer_proprietes();
    void montrer_coins();
    void montrer_legende();
    void montrer_liste();
    void montrer_comptes();
    void refuser(const std::string& raison);

    void changer_plan(bool vers_l_avant);
    void changer_nombre(std::size_t champ, double valeur);
    void changer_sorte(const std::string& cle);
    void changer_legende();
    Mesures mesures() const;
    void prendre_mesures(Mesures m);
    void verrouiller_les_zones(bool oui);

    Historique<DocumentTable> historique_;
    VueTable vue_;
    PanneauProprietes proprietes_;
    QCheckBox coins_;                 ///< boxes are measured by their corners
    std::vector<Grandeur> grandeurs_; ///< what the fields show
    QPlainTextEdit legende_;
    ListeChoix liste_;
    std::optional<Mesures> mesures_; ///< typed for the chosen record
};
