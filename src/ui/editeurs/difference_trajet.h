#pragma once

#include "analyse/essai.h"
#include "ui/editeurs/vue_trajet.h"

#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>

#include <functional>
#include <string>
#include <vector>

/// "Comparer": the trajectory beside another one, action by action and as two paths; the other one
/// can be taken in its place.
class DifferenceTrajet final : public QDialog {
public:
    /// Something to compare with.
    struct Source {
        QString nom;
        std::function<std::string()> octets; ///< @throws ErreurExecution
    };
    /// The trajectory and the match it is played in.
    struct Sujet {
        const Etat& etat; ///< of etat_des_fichiers
        const Provenance& provenance;
        int robot;
        const DocumentTrajet& trajet;
    };

    DifferenceTrajet(QWidget* parent, const Sujet& sujet, std::vector<Source> sources);

    /// What was compared with last.
    const DocumentTrajet& autre() const { return autre_; }
    QString nom_de_l_autre() const { return sources_combo_.currentText(); }

private:
    void placer();
    void comparer();
    void remplir();

    Sujet sujet_;
    std::vector<Source> sources_;
    DocumentTrajet autre_;
    EssaiTrajet essai_, essai_autre_;
    Historique<DocumentTrajet> historique_{[] {}}; ///< the view wants one: nothing is changed here
    QComboBox sources_combo_;
    QLabel titre_, bilan_;
    QTreeWidget liste_;
    VueTrajet vue_;
    QPushButton reprendre_, fermer_;
};
