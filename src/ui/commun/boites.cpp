#include "ui/commun/boites.h"

#include <QApplication>
#include <QCloseEvent>
#include <QFileDialog>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPushButton>

namespace {

void preparer(QMessageBox& boite, const char* nom, std::string_view texte) {
    boite.setObjectName(nom);
    boite.setWindowTitle("Tavolmex");
    boite.setTextFormat(Qt::PlainText); // a path may look like markup
    boite.setText(texte_qt(texte));
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

} // namespace

void montrer_message(QWidget* fenetre, std::string_view texte, std::string_view explication) {
    QMessageBox boite(fenetre);
    preparer(boite, "message", texte);
    boite.setInformativeText(texte_qt(explication));
    boite.setIcon(QMessageBox::Warning);
    boite.setStandardButtons(QMessageBox::Ok);
    boite.exec();
}

void Boites::message(std::string_view texte, std::string_view explication) {
    montrer_message(&fenetre_, texte, explication);
}

void Boites::information(std::string_view texte) {
    QMessageBox boite(&fenetre_);
    preparer(boite, "information", texte);
    boite.setIcon(QMessageBox::Information);
    boite.setStandardButtons(QMessageBox::Ok);
    boite.exec();
}

QString Boites::choisir_dossier(const QString& titre) {
    QFileDialog choix(&fenetre_, titre, QDir::homePath());
    choix.setObjectName("choisir_dossier");
    choix.setFileMode(QFileDialog::Directory);
    choix.setOption(QFileDialog::ShowDirsOnly);
    return choix.exec() == QDialog::Accepted ? choix.selectedFiles().value(0) : QString();
}

bool Boites::question(std::string_view texte, std::string_view explication) {
    BoiteOuiNon boite(&fenetre_);
    preparer(boite, "question", texte);
    boite.setInformativeText(texte_qt(explication));
    boite.setIcon(QMessageBox::Question);
    boite.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
    boite.setDefaultButton(QMessageBox::Yes);
    boite.button(QMessageBox::Yes)->setText("Oui");
    boite.button(QMessageBox::No)->setText("Non");
    return boite.exec() == QMessageBox::Yes;
}

bool boite_ouverte() {
    return QApplication::activeModalWidget() != nullptr;
}

QString texte_qt(std::string_view texte) {
    QString t = QString::fromUtf8(texte.data(), static_cast<qsizetype>(texte.size()));
    return t.replace("\r\n", "\n");
}
