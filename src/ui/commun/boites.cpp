#include "ui/commun/boites.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QCloseEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPushButton>

namespace {

void preparer(QMessageBox& boite, const char* nom, QMessageBox::Icon image, std::string_view texte,
              std::string_view explication) {
    boite.setObjectName(nom);
    boite.setIcon(image);
    boite.setWindowTitle("Tavolmex");
    boite.setTextFormat(Qt::PlainText); // a path may look like markup
    boite.setText(texte_qt(texte));
    boite.setInformativeText(texte_qt(explication));
    boite.setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto* copier = new QAction(&boite); // a selected part is copied by its label
    copier->setShortcut(QKeySequence::Copy);
    QObject::connect(copier, &QAction::triggered, &boite, [&boite] {
        QApplication::clipboard()->setText(
            (boite.text() + "\n\n" + boite.informativeText()).trimmed());
    });
    boite.addAction(copier);
}

// Only its buttons answer: what closes the box otherwise decides nothing.
class BoiteOuiNon final : public QMessageBox {
public:
    explicit BoiteOuiNon(QWidget* fenetre) : QMessageBox(fenetre) {
        setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint);
    }
    void reject() override {}

protected:
    void closeEvent(QCloseEvent* evenement) override { evenement->ignore(); }
    void keyPressEvent(QKeyEvent* evenement) override {
        if (!evenement->matches(QKeySequence::Cancel))
            QMessageBox::keyPressEvent(evenement);
    }
};

QString choisi(QFileDialog& choix, const char* nom, QFileDialog::FileMode mode) {
    choix.setObjectName(nom);
    choix.setFileMode(mode);
    return choix.exec() == QDialog::Accepted ? choix.selectedFiles().value(0) : QString();
}

} // namespace

void montrer_message(QWidget* fenetre, std::string_view texte, std::string_view explication) {
    QMessageBox boite(fenetre);
    preparer(boite, "message", QMessageBox::Warning, texte, explication);
    boite.setStandardButtons(QMessageBox::Ok);
    boite.exec();
}

void Boites::message(std::string_view texte, std::string_view explication) {
    montrer_message(&fenetre_, texte, explication);
}

void Boites::information(std::string_view texte) {
    QMessageBox boite(&fenetre_);
    preparer(boite, "information", QMessageBox::Information, texte, {});
    boite.setStandardButtons(QMessageBox::Ok);
    boite.exec();
}

bool Boites::question(std::string_view texte, std::string_view explication) {
    BoiteOuiNon boite(&fenetre_);
    preparer(boite, "question", QMessageBox::Question, texte, explication);
    boite.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
    boite.setDefaultButton(QMessageBox::Yes);
    boite.button(QMessageBox::Yes)->setText("Oui");
    boite.button(QMessageBox::No)->setText("Non");
    return boite.exec() == QMessageBox::Yes;
}

Sauvegarde Boites::demander_sauvegarde(std::string_view texte, std::string_view explication) {
    QMessageBox boite(&fenetre_);
    preparer(boite, "enregistrer", QMessageBox::Question, texte, explication);
    boite.setStandardButtons(QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel);
    boite.setDefaultButton(QMessageBox::Save);
    boite.button(QMessageBox::Save)->setText("Enregistrer");
    boite.button(QMessageBox::Discard)->setText("Ne pas enregistrer");
    boite.button(QMessageBox::Cancel)->setText("Annuler");
    const int reponse = boite.exec();
    if (reponse == QMessageBox::Save)
        return Sauvegarde::enregistrer;
    return reponse == QMessageBox::Discard ? Sauvegarde::ne_pas_enregistrer : Sauvegarde::annuler;
}

QString Boites::choisir_dossier(const QString& titre) {
    QFileDialog choix(&fenetre_, titre, QDir::homePath());
    choix.setOption(QFileDialog::ShowDirsOnly);
    return choisi(choix, "choisir_dossier", QFileDialog::Directory);
}

QString Boites::choisir_fichier(const QString& titre, const QString& dossier,
                                const QString& filtres) {
    QFileDialog choix(&fenetre_, titre, dossier, filtres);
    return choisi(choix, "choisir_fichier", QFileDialog::ExistingFile);
}

QString Boites::choisir_destination(const QString& titre, const QString& propose,
                                    const QString& filtres) {
    const QFileInfo fichier(propose);
    QFileDialog choix(&fenetre_, titre, fichier.path(), filtres);
    choix.setAcceptMode(QFileDialog::AcceptSave);
    choix.setOption(QFileDialog::DontConfirmOverwrite);
    choix.selectFile(fichier.fileName());
    return choisi(choix, "choisir_destination", QFileDialog::AnyFile);
}

std::optional<int> Boites::demander_entier(const QString& titre, const QString& question,
                                           int propose, int minimum, int maximum) {
    QInputDialog saisie(&fenetre_);
    saisie.setObjectName("demander_entier");
    saisie.setWindowTitle(titre);
    saisie.setLabelText(question);
    saisie.setInputMode(QInputDialog::IntInput);
    saisie.setIntRange(minimum, maximum);
    saisie.setIntValue(propose);
    return saisie.exec() == QDialog::Accepted ? std::optional(saisie.intValue()) : std::nullopt;
}

bool boite_ouverte() {
    return QApplication::activeModalWidget() != nullptr;
}

QString texte_qt(std::string_view texte) {
    QString t = QString::fromUtf8(texte.data(), static_cast<qsizetype>(texte.size()));
    return t.replace("\r\n", "\n");
}
