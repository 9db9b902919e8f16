#include "ui/editeurs/copie_trajet.h"

#include "config/projet.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QPushButton>

CopieTrajet::CopieTrajet(QWidget* parent, int de) : QDialog(parent) {
    setObjectName("copieTrajet");
    setWindowTitle("Copier vers un robot");
    robot_.setObjectName("versRobot");
    for (int n = 1; n <= robots_des_fichiers; ++n)
        robot_.addItem(QString("Robot %1").arg(n));
    robot_.setCurrentIndex(de % robots_des_fichiers);
    cote_.setObjectName("cote");
    cote_.addItems({"Tel quel", "Autre côté : miroir gauche-droite", "Autre côté : miroir haut-bas",
                    "Autre côté : demi-tour"});
    generation_.setObjectName("generationDeLaCopie");
    generation_.setText("&Préparer aussi l'entrée du générateur");
    auto* boutons = new QDialogButtonBox;
    boutons->addButton("Copier", QDialogButtonBox::AcceptRole)->setObjectName("copierTrajet");
    boutons->addButton("Annuler", QDialogButtonBox::RejectRole)->setObjectName("annulerCopie");
    connect(boutons, &QDialogButtonBox::accepted, this, [this] { accept(); });
    connect(boutons, &QDialogButtonBox::rejected, this, [this] { reject(); });
    auto* lignes = new QFormLayout(this);
    lignes->addRow("&Vers :", &robot_);
    lignes->addRow("&Côté :", &cote_);
    lignes->addRow(&generation_);
    lignes->addRow(boutons);
}

std::optional<Retournement> CopieTrajet::retournement() const {
    constexpr Retournement sens[] = {Retournement::vertical, Retournement::horizontal,
                                     Retournement::demi_tour};
    if (cote_.currentIndex() == 0)
        return std::nullopt;
    return sens[cote_.currentIndex() - 1];
}
