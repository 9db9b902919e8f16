#include "ui/commun/panneau_proprietes.h"

#include <QApplication>
#include <QSignalBlocker>

PanneauProprietes::PanneauProprietes(QWidget* parent)
    : QGroupBox(parent), lignes_(new QFormLayout(this)) {
    setObjectName("proprietes");
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* champ) {
        if (au_champ)
            au_champ(isAncestorOf(champ) ? champ->objectName() : QString());
    });
}

void PanneauProprietes::montrer(const QString& titre, const std::vector<Champ>& champs,
                                const std::vector<Sorte>& sortes, const QString& sorte) {
    setTitle(titre);
    QString voulus;
    for (const Sorte& s : sortes)
        voulus += s.cle + ' ';
    for (const Champ& c : champs)
        voulus += c.nom + c.texte + ',';
    if (voulus != presents_)
        refaire(champs, sortes);
    presents_ = voulus;
    for (std::size_t i = 0; i < champs.size(); ++i) {
        const QSignalBlocker muet(nombres_[i]);
        nombres_[i]->montrer(champs[i].valeur);
    }
    if (sortes_ != nullptr) {
        const QSignalBlocker muet(sortes_);
        sortes_->setCurrentIndex(sortes_->findData(sorte));
    }
}

void PanneauProprietes::refaire(const std::vector<Champ>& champs,
                                const std::vector<Sorte>& sortes) {
    // Deleted later: the change may come from one of these boxes.
    while (lignes_->rowCount() > 0) {
        const QFormLayout::TakeRowResult rangee = lignes_->takeRow(0);
        for (QLayoutItem* item : {rangee.labelItem, rangee.fieldItem}) {
            if (item == nullptr)
                continue;
            item->widget()->setObjectName({});
            item->widget()->hide();
            item->widget()->deleteLater();
            delete item;
        }
    }
    nombres_.clear();
    sortes_ = nullptr;
    conseil_ = nullptr;
    if (!sortes.empty()) {
        sortes_ = new QComboBox;
        sortes_->setObjectName("sorte");
        sortes_->setAccessibleName("Sorte");
        for (const Sorte& s : sortes)
            sortes_->addItem(s.image, s.texte, s.cle);
        connect(sortes_, &QComboBox::currentIndexChanged, this,
                [this](int i) { a_la_sorte(sortes_->itemData(i).toString()); });
        lignes_->addRow("Sorte", sortes_);
    }
    for (std::size_t i = 0; i < champs.size(); ++i) {
        const QString& groupe = champs[i].groupe;
        if (!groupe.isEmpty() && (i == 0 || groupe != champs[i - 1].groupe)) {
            auto* titre = new QLabel(groupe);
            titre->setForegroundRole(QPalette::PlaceholderText);
            lignes_->addRow(titre);
        }
        ajouter_champ(champs[i], i);
    }
}

void PanneauProprietes::conseiller(const QString& titre, const QString& conseil) {
    montrer(titre, {});
    if (conseil_ == nullptr) {
        conseil_ = new QLabel;
        conseil_->setObjectName("conseil");
        conseil_->setWordWrap(true);
        lignes_->addRow(conseil_);
    }
    conseil_->setText(conseil);
}

void PanneauProprietes::ajouter_champ(const Champ& champ, std::size_t i) {
    auto* nombre = new Nombre;
    nombre->setObjectName(champ.nom);
    nombre->setAccessibleName(champ.texte);
    nombre->setToolTip(champ.aide);
    nombre->setDecimals(champ.decimales);
    nombre->setRange(champ.mini, champ.maxi);
    nombre->montrer(champ.valeur);
    nombre->setSuffix(champ.unite);
    connect(nombre, &QDoubleSpinBox::valueChanged, this,
            [this, i](double valeur) { au_nombre(i, valeur); });
    lignes_->addRow(champ.texte, nombre);
    nombres_.push_back(nombre);
}
