// What lies on the table: the match's trace, readable robots, the pointer's place.
#include "ui/console/telecommande.h"
#include "ui/principale/sim1.h"
#include "ui/verdict/verdict.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QMenu>

void Sim1::connecter_calques() {
    Table.par_dessus = [this](QPainter& peintre) {
        if (trace_visible())
            trace_.peindre(peintre, Table, choix_);
    };
    verdict_->quand_calcule([this](const Analyse& a) {
        trace_.changer(a, verdict_->constats_signales());
        suivre_calques();
    });
    pointeur_.au_passage = [this] { suivre_calques(); };
    pointeur_.robot_a_placer = [this] {
        return console_ && console_->isVisible() ? console_->robot() : 0;
    };
    pointeur_.proposer = [this](const Pose& pose) { proposer_depart(pose); };
    suivre_calques();
}

// T and the line "Trace du match" speak of what is seen now, at rest or during a match.
void Sim1::composer_menu_calques() {
    auto* couches = new QMenu("Calques de la trace", this);
    couches->setObjectName("menu_calques");
    for (const CalqueNomme& c : calques_nommes()) {
        const Calque calque = c.calque;
        const auto basculer = [this, calque] { this->basculer(calque); };
        QAction* action = nullptr;
        if (calque == Calque::trace)
            action = &entree(c.nom, c.texte, Qt::Key_T, [this] { this->basculer(calque_trace()); });
        else if (calque == Calque::lisibles)
            action = &entree(c.nom, c.texte, {}, basculer);
        else
            connect(action = couches->addAction(c.texte), &QAction::triggered, this, basculer);
        action->setObjectName(c.nom);
        action->setCheckable(true);
        actions_calques_[std::size_t(calque)] = action;
    }
    Table.addAction(couches->menuAction());
    entree("copier_position", "Copier la position du pointeur", Qt::Key_C,
           [this] { copier_position(); });
}

Calque Sim1::calque_trace() const {
    return en_marche() ? Calque::trace_en_course : Calque::trace;
}

bool Sim1::trace_visible() const {
    return trace_.existe() && choix_[calque_trace()];
}

void Sim1::basculer(Calque calque) {
    choix_.choisir(calque, !choix_[calque]);
    suivre_calques();
}

void Sim1::suivre_calques() {
    for (const CalqueNomme& c : calques_nommes())
        actions_calques_[std::size_t(c.calque)]->setChecked(choix_[c.calque]);
    actions_calques_[std::size_t(Calque::trace)]->setChecked(choix_[calque_trace()]);
    Table.montrer_lisibles(choix_[Calque::lisibles]);
    pointeur_.setVisible(!en_marche());
    const bool fantome = trace_visible() || pointeur_.present();
    logo.estomper(fantome);
    LNom.estomper(fantome);
    Table.update();
}

void Sim1::copier_position() {
    const QString position = pointeur_.position();
    if (position.isEmpty() || en_marche())
        return;
    QGuiApplication::clipboard()->setText(position);
    ecrire_texte_Mess(("Position copiée : " + position).toStdString());
}

void Sim1::proposer_depart(const Pose& pose) {
    if (console_)
        console_->proposer_depart(pose);
}
