#pragma once

#include "seance/seance.h"
#include "ui/editeurs/fenetre_editeur.h"
#include "ui/editeurs/table_actions.h"
#include "ui/editeurs/vue_trajet.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>

#include <memory>
#include <optional>

struct Copie;
struct Ensemble;
enum class Retournement;

/// The trajectory editor: a table of actions beside their path, both computed while one types.
class dessinTrajet final : public FenetreEditeur, private Ecouteur {
public:
    dessinTrajet(QWidget* parent, Foutil& outils, Programme programme, Seance& seance);
    ~dessinTrajet() override { table_.se_taire(); }

    const DocumentTrajet& document() const { return historique_.doc(); }
    /// Opens the present project's trajectory of a robot, 1..9, unless it is open already; changes
    /// that are not saved are asked about.
    void montrer_robot(int robot);
    /// Chooses the action of that number, from 1; nothing for another one.
    void choisir_l_action(int numero);

protected:
    void fichier_change() override;
    void apres_ecriture() override;
    std::optional<RefusLecture> relire(const std::string& octets) const override {
        return DocumentTrajet::relire(octets);
    }
    bool prendre_la_saisie() override;
    QString en_suspens() const override;
    void retirer() override;
    void dupliquer() override;
    void tout_choisir() override;
    void deplacer(double dx, double dy) override;
    std::string copier() const override;
    void coller(const std::string& lignes) override;

private:
    void projet_change(Lecture) override { regler_projet(); }
    void trajet_change() override { regler_projet(); }
    void reglages_changes() override { regler_projet(); }

    void placer();
    void connecter();
    void preparer_edition();
    void preparer_trajet();
    void preparer_insertion();

    const DocumentTrajet& montre() const { return provisoire_ ? *provisoire_ : historique_.doc(); }
    int robot() const;
    std::string projet() const;
    QString cle_de_generation() const;
    void regler_projet();
    void montrer_fantome();
    void montrer_provisoire(const DocumentTrajet* provisoire);
    void rafraichir();
    void recalculer();
    void montrer_bilan();

    std::size_t place_d_insertion() const;
    void changer(const QString& nom, DocumentTrajet d, const Selection& s, int fusion = -1);
    void inserer(const std::string& cle);
    void monter(bool vers_le_haut);
    void chercher();
    void retourner(const QString& nom, Retournement r);
    void comparer();
    void prendre_le_trajet_de_la_console();
    void copier_vers_un_robot();
    QString cle_de_copie(const char* quoi) const;
    Copie copie_habituelle() const;
    void retenir(const Copie& c) const;
    DocumentTrajet copie_de(const Copie& c) const;
    Ensemble composer(const Copie& c) const;
    void ecrire_la_copie(const Copie& c);
    void preparer_la_generation(const std::string& projet, const DocumentTrajet& trajet, int robot);
    void ecrire_a_cote(const std::filesystem::path& chemin, const std::string& octets);

    Seance& seance_;
    Historique<DocumentTrajet> historique_;
    VueTrajet vue_;
    TableActions table_;
    QComboBox robot_;
    QLabel bilan_, avis_;
    QCheckBox generation_;
    QLineEdit cherche_;
    std::unique_ptr<Etat> etat_; ///< the project at rest, in the frame of the files
    Provenance provenance_;
    std::optional<DocumentTrajet> provisoire_; ///< what a drag or a half typed cell would make
    EssaiTrajet essai_;
    DocumentTrajet enregistre_; ///< what was saved, and its match; none: no file yet
    std::optional<EssaiTrajet> fantome_;
};
