#include "ui/principale/erreurs_lecture.h"

#include "ui/commun/boites.h"
#include "ui/commun/place.h"

#include <QApplication>
#include <QClipboard>
#include <QHBoxLayout>
#include <QVBoxLayout>

namespace {

QString en_texte(const std::vector<ErreurDeLecture>& erreurs) {
    QString texte;
    for (const ErreurDeLecture& e : erreurs)
        texte += texte_qt(annonce(e)) + "\n" + texte_qt(explication(e)) + "\n\n";
    return texte.trimmed();
}

} // namespace

ErreursLecture::ErreursLecture(QWidget* parent, std::function<void()> ouvrir_le_dossier)
    : QWidget(parent, Qt::Tool) {
    setObjectName("ErreursLecture");
    setWindowTitle("Erreurs de lecture");
    setAttribute(Qt::WA_ShowWithoutActivating);
    liste_.setObjectName("listeErreurs");
    liste_.setAccessibleName("Erreurs de lecture");
    liste_.setReadOnly(true);
    liste_.setTabChangesFocus(true);
    copier_.setObjectName("copierErreurs");
    copier_.setText("Copier la liste");
    dossier_.setObjectName("ouvrirDossier");
    dossier_.setText("Ouvrir le dossier");
    fermer_.setObjectName("fermerErreurs");
    fermer_.setText("Fermer la liste");
    auto* boutons = new QHBoxLayout;
    boutons->addWidget(&copier_);
    boutons->addWidget(&dossier_);
    boutons->addStretch();
    boutons->addWidget(&fermer_);
    auto* colonne = new QVBoxLayout(this);
    colonne->addWidget(&liste_);
    colonne->addLayout(boutons);
    resize(640, 240);
    connect(&copier_, &QPushButton::clicked, this,
            [this] { QApplication::clipboard()->setText(liste_.toPlainText()); });
    connect(&dossier_, &QPushButton::clicked, this, std::move(ouvrir_le_dossier));
    connect(&fermer_, &QPushButton::clicked, this, [this] { hide(); });
    retenir_place(*this);
}

void ErreursLecture::montrer(const std::vector<ErreurDeLecture>& erreurs) {
    liste_.setPlainText(en_texte(erreurs));
    setVisible(!erreurs.empty());
}
