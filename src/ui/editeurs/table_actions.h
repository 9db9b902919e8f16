#pragma once

#include "ui/editeurs/modele_actions.h"

#include <QTableView>

#include <functional>

/// The actions of a trajectory as a table to type in: a keyword is completed, a number is marked
/// while it is typed when the file could not hold it.
class TableActions final : public QTableView {
public:
    TableActions(Historique<DocumentTrajet>& historique, QWidget* parent);

    std::function<void(const Selection&)> au_choix;         ///< by the user
    std::function<void(const DocumentTrajet&)> a_la_frappe; ///< what is typed could be this
    std::function<void()> fin_de_frappe;                    ///< nothing is typed any more
    /// Why what is typed is refused, else what may be typed; empty: nothing is.
    std::function<void(const QString&)> au_conseil;

    const ModeleActions& modele() const { return modele_; }
    void montrer(const DocumentTrajet& montre, const EssaiTrajet* essai);
    /// Takes what is being typed in a cell.
    void finir_la_saisie();
    /// Its owner goes: from now on nothing of what is typed is told.
    void se_taire() { delete itemDelegate(); }
    /// Begins to type record i's keyword.
    void taper_l_action(std::size_t i);

private:
    class Saisie;

    void nommer();
    void elargir();
    void choisir(const Selection& selection);
    Selection choisis() const;

    Historique<DocumentTrajet>& h_;
    ModeleActions modele_;
    bool en_cours_ = false; ///< being filled
};
