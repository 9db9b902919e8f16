#include "ui/boites.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPushButton>

namespace {

// Counts a box as open for as long as it is shown.
class Ouverture {
public:
    explicit Ouverture(int& ouvertes) : ouvertes_(ouvertes) { ++ouvertes_; }
    Ouverture(const Ouverture&) = delete;
    Ouverture& operator=(const Ouverture&) = delete;
    ~Ouverture() { --ouvertes_; }

private:
    int& ouvertes_;
};

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

void Boites::message(std::string_view texte, std::string_view explication) {
    const Ouverture ouverture(ouvertes_);
    QMessageBox boite(&fenetre_);
    preparer(boite, "message", texte);
    boite.setInformativeText(texte_qt(explication));
    boite.setIcon(QMessageBox::Warning);
    boite.setStandardButtons(QMessageBox::Ok);
    boite.exec();
}

bool Boites::question(std::string_view texte, std::string_view explication) {
    const Ouverture ouverture(ouvertes_);
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

QString texte_qt(std::string_view texte) {
    QString t = QString::fromUtf8(texte.data(), static_cast<qsizetype>(texte.size()));
    return t.replace("\r\n", "\n");
}
