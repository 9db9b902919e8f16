#pragma once

#include <QLineEdit>
#include <QListWidget>
#include <QPointer>
#include <QTextBrowser>
#include <QToolButton>
#include <QWidget>

/// The manual: contents at the left, the page at the right, search over all pages.
class Aide final : public QWidget {
public:
    explicit Aide(QWidget* parent);

    /// Shows the window at a page. @param page  index into pages_du_manuel()
    void montrer(int page);

protected:
    void keyPressEvent(QKeyEvent* evenement) override;
    void changeEvent(QEvent* evenement) override;

private:
    void nommer();
    void placer();
    void connecter();
    void aller(int page);
    void page_changee(const QUrl& adresse);
    /// Leaves the pages that hold the text in the contents, and marks it in the page.
    void chercher();
    void marquer();
    /// The next place in the page, else the next page that has one.
    void suivant();

    QListWidget sommaire;
    QTextBrowser page_;
    QLineEdit recherche;
    QToolButton precedent, suivante;
};

/// Opens the manual at the page of the window that asks, on F1 in any window of the program.
class ServiceAide final : public QObject {
public:
    explicit ServiceAide(QWidget& principale);
    void montrer(const QWidget& depuis);

protected:
    bool eventFilter(QObject* objet, QEvent* evenement) override;

private:
    Aide& fenetre();

    QWidget& principale_;
    QPointer<Aide> aide_;   ///< made when it is first shown
    QPointer<Aide> locale_; ///< belongs to a modal window, which would block the other one
};
