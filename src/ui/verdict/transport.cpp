#include "ui/verdict/transport.h"

#include "ui/commun/vitesses.h"
#include "ui/verdict/touches_gardees.h"

#include <QAction>

#include <utility>

namespace {

constexpr int cote_icone = 16;
constexpr int largeur_recherche = 190;

} // namespace

QString avec_touche(const QString& texte, const QKeySequence& touche) {
    return touche.isEmpty() ? texte
                            : texte + " (" + touche.toString(QKeySequence::NativeText) + ")";
}

Transport::Transport(QWidget* parent) : QWidget(parent), rangee_(*new QHBoxLayout(this)) {
    rangee_.setContentsMargins(0, 0, 0, 0);
    rangee_.setSpacing(2);
    nommer();
}

void Transport::nommer() {
    setObjectName("transport");
    titre_vitesse_.setText("Vitesse");
    titre_vitesse_.setBuddy(&vitesse_);
    vitesse_.setObjectName("vitesse");
    vitesse_.setAccessibleName("Vitesse de lecture");
    vitesse_.setToolTip("Vitesse de lecture (+ : plus vite, - : moins vite, = : réelle)");
    recherche_.setObjectName("recherche");
    recherche_.setAccessibleName("Chercher une action");
    recherche_.setPlaceholderText("Chercher (Ctrl+F)");
    recherche_.setToolTip("Numéro, nom ou genre d'une action ; Entrée ou F3 : la suivante");
    recherche_.setClearButtonEnabled(true);
    introuvable_.setObjectName("introuvable");
    introuvable_.setText("introuvable");
}

QAction& Transport::ajouter(const char* nom, const QString& texte, const QKeySequence& touche,
                            Symbole symbole, std::function<void()> faire) {
    auto* action = new QAction(icone(symbole), texte, this);
    action->setObjectName("action_" + QString(nom));
    action->setShortcut(touche);
    action->setToolTip(avec_touche(texte, touche));
    connect(action, &QAction::triggered, this, std::move(faire));
    auto* bouton = new QToolButton(this);
    bouton->setObjectName(nom);
    bouton->setDefaultAction(action);
    bouton->setIconSize({cote_icone, cote_icone});
    bouton->setAutoRaise(true);
    bouton->setFocusPolicy(Qt::TabFocus);
    bouton->setAccessibleName(texte);
    new TouchesGardees(*bouton, [](const QKeyEvent& e) { return e.key() == Qt::Key_Space; });
    rangee_.addWidget(bouton);
    addAction(action);
    return *action;
}

void Transport::separer() {
    rangee_.addSpacing(10);
}

void Transport::finir() {
    for (const double v : vitesses)
        vitesse_.addItem(legende_vitesse(v));
    separer();
    rangee_.addWidget(&titre_vitesse_);
    rangee_.addSpacing(4);
    rangee_.addWidget(&vitesse_);
    rangee_.addStretch(1);
    rangee_.addWidget(&introuvable_);
    rangee_.addSpacing(4);
    rangee_.addWidget(&recherche_);
    recherche_.setFixedWidth(largeur_recherche);
    introuvable_.hide();
    connect(&vitesse_, &QComboBox::currentIndexChanged, this,
            [this](int rang) { a_la_vitesse(vitesses.at(static_cast<std::size_t>(rang))); });
    connect(&recherche_, &QLineEdit::returnPressed, this, [this] { chercher_encore(); });
    connect(&recherche_, &QLineEdit::textEdited, this, [this] { dire_introuvable(false); });
    new TouchesGardees(recherche_, [](const QKeyEvent& e) {
        return e.key() < Qt::Key_F1 && !e.matches(QKeySequence::Find);
    });
}

void Transport::montrer_vitesse(double vitesse) {
    vitesse_.setCurrentText(legende_vitesse(vitesse));
}

void Transport::commencer_recherche() {
    recherche_.setFocus();
    recherche_.selectAll();
}

void Transport::dire_introuvable(bool oui) {
    introuvable_.setVisible(oui);
}
