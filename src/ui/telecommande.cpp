#include "ui/telecommande.h"

#include "ui/boites.h"
#include "ui/garde.h"
#include "ui/place.h"
#include "ui/sim1.h"

#include <QAction>
#include <QKeyEvent>

#include <utility>

namespace {

// Brings the window up to date with the model when a procedure ends, refused or not.
template <typename Procedure>
class ALaFin {
public:
    explicit ALaFin(Procedure procedure) : procedure_(std::move(procedure)) {}
    ALaFin(const ALaFin&) = delete;
    ALaFin& operator=(const ALaFin&) = delete;
    ~ALaFin() { procedure_(); }

private:
    Procedure procedure_;
};

} // namespace

Télécommande::Télécommande(Sim1& sim, Reprise& reprise)
    : QWidget(&sim, Qt::Dialog | Qt::WindowCloseButtonHint),
      sim_(sim),
      console_(sim.etat(), sim, sim.moteur(), &reprise) {
    nommer();
    nommer_champs();
    placer();
    connecter();
    connecter_touches();
    console_.nbre_carreaux = [this] { return sim_.options().nbre_carreaux.text().toStdString(); };
    VScroll1_Change();
    actualiser();
    retenir_place(*this);
}

void Télécommande::Active_Desactive(bool Status) {
    for (QWidget* controle : std::initializer_list<QWidget*>{&Text1, &Text4})
        controle->setEnabled(Status);
    for (QPushButton& bouton : Command4)
        bouton.setEnabled(Status);
    for (int i = l_action; i < nb_legendes; ++i)
        Label1[static_cast<std::size_t>(i)].setEnabled(Status);
}

void Télécommande::Debut_Fin_Enr(bool Status) {
    Active_Desactive(!Status && console_.phase() == Console::Phase::repos);
    Command9.setText(Status ? "Début Enr." : "Fin Enr.");
    for (QWidget* controle :
         std::initializer_list<QWidget*>{&TextA, &TextX, &TextY, &NbRO, &VScroll1})
        controle->setEnabled(Status);
    for (int i = 0; i < l_action; ++i)
        Label1[static_cast<std::size_t>(i)].setEnabled(Status);
}

void Télécommande::actualiser() {
    QWidget* const clavier = focusWidget();
    Debut_Fin_Enr(console_.phase() == Console::Phase::arret);
    annuler_.setEnabled(console_.annulation_possible());
    actualiser_liste();
    // What has the keyboard is disabled while an action plays, and Qt passes the keyboard on. It
    // comes back unless the user has taken it elsewhere meanwhile.
    if (console_.phase() == Console::Phase::action && clavier != nullptr && !clavier->isEnabled()) {
        clavier_avant_ = clavier;
        clavier_passe_ = focusWidget();
    } else if (console_.phase() == Console::Phase::repos && clavier_avant_ != nullptr) {
        if (focusWidget() == clavier_passe_)
            clavier_avant_->setFocus();
        clavier_avant_ = clavier_passe_ = nullptr;
    }
}

void Télécommande::actualiser_liste() {
    const auto& etapes = console_.etapes();
    liste_.clear();
    for (const Etape& etape : etapes) {
        const LigneListe ligne = ligne_de_liste(etape);
        liste_.addItem(texte_qt(ligne.numero + ".  " + ligne.action + "  ·  " + ligne.duree));
    }
    liste_.scrollToBottom();
    const std::int32_t duree = etapes.empty() ? 0 : etapes.back().fin;
    total_.setText(texte_qt("Temps du match : " + texte_duree(duree)));
}

void Télécommande::action_finie() {
    console_.action_finie();
    actualiser();
}

void Télécommande::recommencer() {
    if (console_.phase() != Console::Phase::arret)
        Command9_Click();
    VScroll1_Change();
}

void Télécommande::VScroll1_Change() {
    const ChampsPose pose = console_.VScroll1_Change(VScroll1.value());
    NbRO.setText(QString::number(console_.robot()));
    TextA.setText(texte_qt(pose.TextA));
    TextX.setText(texte_qt(pose.TextX));
    TextY.setText(texte_qt(pose.TextY));
}

void Télécommande::Command4_Click(std::size_t k) {
    const ALaFin fin([this] { actualiser(); });
    console_.Command4_Click(actions_console.at(k).legende, Text1.text().toStdString(),
                            Text4.text().toStdString());
}

void Télécommande::Command9_Click() {
    const ALaFin fin([this] { actualiser(); });
    console_.Command9_Click(
        {TextX.text().toStdString(), TextY.text().toStdString(), TextA.text().toStdString()});
    suivre_nombre_de_robots();
}

void Télécommande::Command2_Click() {
    hide();
    sim_.montrer_options();
}

void Télécommande::annuler() {
    const ALaFin fin([this] { actualiser(); });
    console_.annuler();
}

void Télécommande::keyPressEvent(QKeyEvent* evenement) {
    if (evenement->key() != Qt::Key_Escape)
        return QWidget::keyPressEvent(evenement);
    // First what runs, then the window.
    if (!sim_.arreter_course())
        garde(sim_, [this] { Command2_Click(); });
}

bool Télécommande::arreter_action() {
    if (console_.phase() != Console::Phase::action)
        return false;
    console_.arreter_action();
    return true;
}

void Télécommande::showEvent(QShowEvent* evenement) {
    suivre_nombre_de_robots();
    QWidget::showEvent(evenement);
}

// Not while recording: the robot that is driven stays the one that is shown.
void Télécommande::suivre_nombre_de_robots() {
    if (console_.phase() == Console::Phase::arret)
        VScroll1.setMaximum(sim_.etat().NbRobot);
}

bool Télécommande::eventFilter(QObject* objet, QEvent* evenement) {
    const bool arrive = evenement->type() == QEvent::Enter || evenement->type() == QEvent::FocusIn;
    const bool part = evenement->type() == QEvent::Leave || evenement->type() == QEvent::FocusOut;
    for (std::size_t k = 0; k < nb_actions && (arrive || part); ++k) {
        if (objet == &Command4.at(k))
            surligner(arrive ? &actions_console.at(k) : nullptr);
    }
    return QWidget::eventFilter(objet, evenement);
}

// Shows which fields the action under the pointer or the keyboard reads.
void Télécommande::surligner(const ActionConsole* action) {
    const auto teinter = [this](QLineEdit& champ, bool utile) {
        QPalette p = palette();
        if (utile) {
            QColor teinte = p.color(QPalette::Highlight);
            teinte.setAlphaF(0.25F);
            p.setColor(QPalette::Base, teinte);
        }
        champ.setPalette(p);
    };
    teinter(Text1, action != nullptr && action->utilise_Text1());
    teinter(Text4, action != nullptr && action->utilise_Text4());
}

void Télécommande::connecter() {
    const auto relier = [this](QPushButton& bouton, auto procedure) {
        connect(&bouton, &QPushButton::clicked, this,
                [this, procedure] { garde(sim_, procedure); });
    };
    for (std::size_t k = 0; k < nb_actions; ++k) {
        relier(Command4.at(k), [this, k] { Command4_Click(k); });
        Command4.at(k).installEventFilter(this);
    }
    relier(Command9, [this] { Command9_Click(); });
    relier(Command2, [this] { Command2_Click(); });
    relier(annuler_, [this] { annuler(); });
    connect(&VScroll1, &QScrollBar::valueChanged, this,
            [this] { garde(sim_, [this] { VScroll1_Change(); }); });
}
