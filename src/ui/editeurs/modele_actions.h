#pragma once

#include "analyse/essai.h"
#include "ui/commun/historique.h"

#include <QAbstractTableModel>

#include <functional>
#include <map>
#include <optional>

/// The actions of the trajectory under edit, a row each, with what the match makes of them. What is
/// typed and cannot be taken stays in its cell with the reason.
class ModeleActions final : public QAbstractTableModel {
public:
    enum Colonne { numero, action, valeur1, valeur2, valeur3, debut, fin, arrivee, remarque };
    static constexpr int nombre_de_colonnes = remarque + 1;

    /// What a typed text makes of the trajectory.
    struct Lecture {
        std::optional<Fiche> fiche; ///< of that row
        QString refus;              ///< why there is none
    };

    ModeleActions(Historique<DocumentTrajet>& historique, QObject* parent);

    /// The document changed, or what is typed in it.
    /// @param montre  the document as it is shown  @param essai  its match; null: none
    void montrer(const DocumentTrajet& montre, const EssaiTrajet* essai);
    Lecture lire(const QModelIndex& index, const QString& texte) const;
    /// Why the first text that could not be taken is refused, with its line; empty without one.
    QString en_suspens() const;
    QColor alerte() const;
    /// Which numbers that cell takes, with their unit; empty where there is no number.
    QString limites_de(const QModelIndex& index) const;
    /// What is to be said about that row; empty: nothing.
    QString remarque_de(std::size_t i) const;
    /// Some text of that row has this in it, whatever the case; a number is one of its own, whole.
    bool contient(int rang, const QString& texte) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    bool setData(const QModelIndex& index, const QVariant& valeur, int role) override;

private:
    bool a_le_nombre(std::size_t i, int nombre) const;
    struct Suspens {
        QString texte, raison;
    };
    using Case = std::pair<int, int>; ///< row, column

    QString texte(std::size_t i, int colonne) const;
    QString texte_calcule(std::size_t i, int colonne) const;
    std::optional<std::size_t> valeur(const QModelIndex& index) const;
    const Suspens* suspens(const QModelIndex& index) const;

    Historique<DocumentTrajet>& h_;
    DocumentTrajet montre_;
    const EssaiTrajet* essai_ = nullptr;
    std::map<int, QString> refus_; ///< of the simulator's reader, by line
    std::map<Case, Suspens> suspens_;
};
