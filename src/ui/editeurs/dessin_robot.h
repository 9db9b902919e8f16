#pragma once

#include "ui/commun/historique.h"
#include "ui/commun/panneau_proprietes.h"
#include "ui/editeurs/apercu_robot.h"
#include "ui/editeurs/fenetre_editeur.h"
#include "ui/editeurs/liste_choix.h"
#include "ui/editeurs/vue_robot.h"

#include <QCheckBox>
#include <QLabel>

#include <array>
#include <optional>

/// The robot editor.
class dessinRobot final : public FenetreEditeur {
public:
    dessinRobot(QWidget* parent, Foutil& outils, Programme programme);

    const DocumentRobot& document() const { return historique_.doc(); }
    /// The preview shows the robot on the table of that state.
    void regler_table(const Etat& table);

protected:
    void commencer() override;
    void fichier_change() override;
    std::optional<RefusLecture> relire(const std::string& octets) const override {
        return DocumentRobot::relire(octets);
    }
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
    void rafraichir();
    void montrer_segment();
    void montrer_reglages();
    void montrer_liste();
    void montrer_avis_init();
    void miroir();
    Selection segments_choisis() const;
    void changer_segment(std::size_t champ, double valeur);
    void changer_nombre(const char* cle, std::size_t rang, const QString& nom, double valeur);

    Historique<DocumentRobot> historique_;
    VueRobot vue_;
    ApercuRobot apercu_;
    PanneauProprietes segment_, reglages_, depart_;
    ListeChoix liste_;
    QCheckBox tourner_;
    QLabel avis_init_;
    std::optional<std::array<float, 4>> init_; ///< the trajectory's own pose, as an "I" record
    QString trajet_;                           ///< its file
};
