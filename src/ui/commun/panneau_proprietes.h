#pragma once

#include "ui/commun/nombre.h"

#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QIcon>
#include <QLabel>
#include <QString>

#include <functional>
#include <optional>
#include <vector>

/// The exact numbers of what is chosen.
class PanneauProprietes final : public QGroupBox {
public:
    struct Champ {
        QString nom; ///< objectName of its box
        QString texte, unite;
        double mini, maxi;
        std::optional<double> valeur; ///< none: of several that differ
        int decimales = 0;
        QString groupe = {}; ///< the heading over it, where it is another than over the one before
        QString aide = {};   ///< what it means: its tool tip
    };
    struct Sorte {
        QString cle, texte;
        QIcon image;
    };

    explicit PanneauProprietes(QWidget* parent);

    std::function<void(std::size_t champ, double valeur)> au_nombre;
    std::function<void(const QString& cle)> a_la_sorte;
    /// The field of that name has got the keyboard; "" when another control has.
    std::function<void(const QString& nom)> au_champ;

    /// @param sortes  the kinds it can become, none: the kind is not shown
    /// @param sorte   its own, empty for several that differ
    void montrer(const QString& titre, const std::vector<Champ>& champs,
                 const std::vector<Sorte>& sortes = {}, const QString& sorte = {});
    /// A sentence in place of numbers.
    void conseiller(const QString& titre, const QString& conseil);

private:
    void refaire(const std::vector<Champ>& champs, const std::vector<Sorte>& sortes);
    void ajouter_champ(const Champ& champ, std::size_t i);

    QFormLayout* lignes_;
    QLabel* conseil_ = nullptr;
    QComboBox* sortes_ = nullptr;
    std::vector<Nombre*> nombres_;
    QString presents_; ///< names of the boxes that exist
};
