#include "ui/aide/aide.h"

#include "ui/aide/manuel.h"
#include "ui/commun/place.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QScrollBar>
#include <QShortcut>
#include <QSplitter>
#include <QTextBlock>

namespace {

constexpr QSize taille_habituelle{860, 600};
constexpr int largeur_du_sommaire = 230;

} // namespace

Aide::Aide(QWidget* parent) : QWidget(parent, Qt::Window) {
    nommer();
    placer();
    connecter();
    resize(taille_habituelle);
    retenir_place(*this);
}

void Aide::nommer() {
    setObjectName("Aide");
    setWindowTitle("Aide de Tavolmex");
    for (const PageManuel& page : pages_du_manuel())
        sommaire.addItem(page.titre);
    sommaire.setObjectName("sommaire");
    sommaire.setAccessibleName("Sommaire");
    page_.setObjectName("page");
    page_.setAccessibleName("Page du manuel");
    page_.setOpenExternalLinks(false);
    recherche.setObjectName("recherche");
    recherche.setAccessibleName("Rechercher dans le manuel");
    recherche.setPlaceholderText("Rechercher (Ctrl+F)");
    recherche.setToolTip("Entrée : endroit suivant");
    recherche.setClearButtonEnabled(true);
    const auto bouton = [](QToolButton& b, const char* nom, Qt::ArrowType fleche, const char* texte,
                           QKeySequence::StandardKey touche) {
        b.setObjectName(nom);
        b.setArrowType(fleche);
        b.setAccessibleName(texte);
        b.setShortcut(touche);
        b.setToolTip(
            QString("%1 (%2)").arg(texte, b.shortcut().toString(QKeySequence::NativeText)));
        b.setAutoRaise(true);
        b.setEnabled(false);
    };
    bouton(precedent, "precedent", Qt::LeftArrow, "Page précédente", QKeySequence::Back);
    bouton(suivante, "suivante", Qt::RightArrow, "Page suivante", QKeySequence::Forward);
}

void Aide::placer() {
    auto* barre = new QHBoxLayout;
    recherche.setFixedWidth(largeur_du_sommaire);
    barre->addWidget(&recherche);
    barre->addWidget(&precedent);
    barre->addWidget(&suivante);
    barre->addStretch();
    sommaire.setSpacing(2);
    auto* separation = new QSplitter;
    separation->addWidget(&sommaire);
    separation->addWidget(&page_);
    separation->setSizes({largeur_du_sommaire, taille_habituelle.width() - largeur_du_sommaire});
    separation->setStretchFactor(1, 1);
    auto* colonne = new QVBoxLayout(this);
    colonne->addLayout(barre);
    colonne->addWidget(separation, 1);
}

void Aide::connecter() {
    connect(&sommaire, &QListWidget::currentRowChanged, this, [this](int rang) { aller(rang); });
    connect(&page_, &QTextBrowser::sourceChanged, this,
            [this](const QUrl& adresse) { page_changee(adresse); });
    connect(&precedent, &QToolButton::clicked, &page_, &QTextBrowser::backward);
    connect(&suivante, &QToolButton::clicked, &page_, &QTextBrowser::forward);
    connect(&page_, &QTextBrowser::backwardAvailable, &precedent, &QWidget::setEnabled);
    connect(&page_, &QTextBrowser::forwardAvailable, &suivante, &QWidget::setEnabled);
    connect(&recherche, &QLineEdit::textChanged, this, [this] { chercher(); });
    connect(&recherche, &QLineEdit::returnPressed, this, [this] { suivant(); });
    connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, this, [this] {
        recherche.setFocus();
        recherche.selectAll();
    });
}

void Aide::montrer(int page) {
    aller(page);
    show();
    raise();
    activateWindow();
    page_.setFocus();
}

void Aide::aller(int page) {
    if (page < 0)
        return;
    const QUrl adresse = adresse_de(pages_du_manuel()[static_cast<std::size_t>(page)]);
    if (page_.source() != adresse)
        page_.setSource(adresse);
}

void Aide::page_changee(const QUrl& adresse) {
    habiller(*page_.document(), *this);
    int rang = 0;
    for (const PageManuel& page : pages_du_manuel()) {
        if (adresse_de(page) == adresse)
            sommaire.setCurrentRow(rang);
        ++rang;
    }
    marquer();
}

void Aide::chercher() {
    const QString voulu = simplifie(recherche.text().trimmed());
    int rang = 0;
    for (const PageManuel& page : pages_du_manuel())
        sommaire.item(rang++)->setHidden(!simplifie(texte_de(page)).contains(voulu));
    marquer();
}

void Aide::marquer() {
    QList<QTextEdit::ExtraSelection> marques;
    const QString voulu = simplifie(recherche.text().trimmed());
    const QString texte = simplifie(page_.toPlainText()); // a character for each of its positions
    for (qsizetype i = voulu.isEmpty() ? -1 : texte.indexOf(voulu); i >= 0;
         i = texte.indexOf(voulu, i + voulu.size())) {
        QTextEdit::ExtraSelection marque{QTextCursor(page_.document()), {}};
        marque.cursor.setPosition(int(i));
        marque.cursor.setPosition(int(i + voulu.size()), QTextCursor::KeepAnchor);
        marque.format.setBackground(QColor(255, 221, 87));
        marque.format.setForeground(Qt::black);
        marques << marque;
    }
    page_.setExtraSelections(marques);
}

void Aide::suivant() {
    for (const QTextEdit::ExtraSelection& marque : page_.extraSelections()) {
        if (marque.cursor.selectionStart() >= page_.textCursor().selectionEnd() &&
            marque.cursor != page_.textCursor())
            return page_.setTextCursor(marque.cursor);
    }
    for (int pas = 1; pas <= sommaire.count(); ++pas) {
        const int rang = (sommaire.currentRow() + pas) % sommaire.count();
        if (sommaire.item(rang)->isHidden())
            continue;
        aller(rang);
        if (const auto marques = page_.extraSelections(); !marques.isEmpty())
            return page_.setTextCursor(marques.first().cursor);
    }
}

void Aide::keyPressEvent(QKeyEvent* evenement) {
    if (evenement->key() == Qt::Key_Escape)
        close();
    else
        QWidget::keyPressEvent(evenement);
}

// A page has the colours that it was read with.
void Aide::changeEvent(QEvent* evenement) {
    QWidget::changeEvent(evenement);
    if (evenement->type() != QEvent::PaletteChange || page_.source().isEmpty())
        return;
    const int ou = page_.verticalScrollBar()->value();
    page_.reload();
    page_changee(page_.source());
    page_.verticalScrollBar()->setValue(ou);
}

ServiceAide::ServiceAide(QWidget& principale) : principale_(principale) {
    QApplication::instance()->installEventFilter(this);
}

Aide& ServiceAide::fenetre() {
    QWidget* modale = QApplication::activeModalWidget();
    QPointer<Aide>& aide = modale != nullptr ? locale_ : aide_;
    if (!aide || (modale != nullptr && aide->parentWidget() != modale))
        aide = new Aide(modale != nullptr ? modale : &principale_); // goes with its parent
    return *aide;
}

void ServiceAide::montrer(const QWidget& depuis) {
    if (QWidget* liste = QApplication::activePopupWidget())
        liste->close();
    fenetre().montrer(page_de(&depuis));
}

bool ServiceAide::eventFilter(QObject* objet, QEvent* evenement) {
    if (evenement->type() != QEvent::KeyPress || !objet->isWidgetType() ||
        static_cast<QKeyEvent*>(evenement)->key() != Qt::Key_F1)
        return false;
    const auto* controle = static_cast<const QWidget*>(objet);
    const QWidget* fenetre = controle->window();
    while (fenetre != &principale_ && fenetre->parentWidget() != nullptr)
        fenetre = fenetre->parentWidget()->window();
    if (fenetre != &principale_)
        return false; // another program of this process
    if (dynamic_cast<const Aide*>(controle->window()) == nullptr)
        montrer(*controle);
    return true;
}
