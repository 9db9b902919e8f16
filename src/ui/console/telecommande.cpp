#include "ui/console/telecommande.h"

#include "record/lignes_du_trajet.h"
#include "seance/seance.h"
#include "ui/commun/boites.h"
#include "ui/commun/bureau.h"
#include "ui/commun/icones_commandes.h"
#include "ui/commun/place.h"

#include <QAction>
#include <QDateTime>
#include <QFileInfo>
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

Télécommande::Télécommande(QWidget* parent, Seance& seance, Bureau& bureau,
                           std::function<std::string()> nbre_carreaux)
    : QWidget(parent, Qt::Dialog | Qt::WindowCloseButtonHint),
      seance_(seance),
      bureau_(bureau),
      console_(seance.etat(), seance.fenetres(), seance.moteur(), &seance.reprise()) {
    nommer();
    nommer_champs();
    placer();
    connecter();
    connecter_touches();
    console_.nbre_carreaux = std::move(nbre_carreaux);
    console_.au_changement = [this] { seance_.annonces().annoncer(&Ecouteur::trajet_change); };
    VScroll1_Change();
    actualiser();
    retenir_place(*this);
    ecouter(seance.annonces());
}

void Télécommande::projet_change(Lecture lecture) {
    if (lecture != Lecture::table)
        recommencer();
}

void Télécommande::reglages_changes() {
    suivre_nombre_de_robots();
    indiquer_position();
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
    Command9.setIcon(icone(Status ? Commande::enregistrer_le_trajet : Commande::arreter));
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
    reprendre_.setEnabled(console_.phase() == Console::Phase::arret);
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

void Télécommande::action_finie() {
    console_.action_finie();
    actualiser();
}

void Télécommande::recommencer() {
    console_.oublier();
    actualiser();
    suivre_nombre_de_robots();
    VScroll1_Change();
}

void Télécommande::VScroll1_Change() {
    const ChampsPose pose = console_.VScroll1_Change(VScroll1.value());
    NbRO.setText(QString::number(console_.robot()));
    TextA.setText(texte_qt(pose.TextA));
    TextX.setText(texte_qt(pose.TextX));
    TextY.setText(texte_qt(pose.TextY));
    indiquer_position();
    if (console_.phase() == Console::Phase::arret)
        annuler_.setEnabled(console_.annulation_possible());
}

void Télécommande::proposer_depart(const Pose& affichee) {
    if (console_.phase() == Console::Phase::action)
        return;
    if (console_.phase() == Console::Phase::repos) {
        if (!seance_.fenetres().question("Un trajet s'enregistre. Le terminer ?",
                                         "Une autre position initiale commence un autre trajet."))
            return;
        Command9_Click();
    }
    const ChampsPose champs = champs_pour(seance_.etat(), affichee);
    TextX.setText(texte_qt(champs.TextX));
    TextY.setText(texte_qt(champs.TextY));
    TextA.setText(texte_qt(champs.TextA));
}

void Télécommande::Command4_Click(std::size_t k) {
    const ALaFin fin([this] { actualiser(); });
    console_.Command4_Click(actions::boutons[k].legende, Text1.text().toStdString(),
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
    bureau_.montrer_options();
}

void Télécommande::annuler() {
    const ALaFin fin([this] { actualiser(); });
    const bool enregistrait = console_.phase() != Console::Phase::arret;
    console_.annuler();
    if (enregistrait && console_.phase() == Console::Phase::arret)
        VScroll1_Change();
}

void Télécommande::changer_la_liste(const std::function<void(std::size_t)>& changer) {
    const auto rang = rang_choisi();
    if (!rang)
        return;
    const ALaFin fin([this, rang] {
        actualiser();
        choisir_dans_la_liste(*rang);
    });
    changer(*rang);
}

void Télécommande::continuer_le_dernier() {
    suivre_nombre_de_robots();
    if (const int robot = robot_enregistre_en_dernier(seance_.etat()); robot != 0)
        continuer(robot);
    else
        recommencer();
}

void Télécommande::continuer(int robot) {
    const ALaFin fin([this] { actualiser(); });
    VScroll1.setValue(robot);
    VScroll1_Change();
    console_.continuer(robot);
}

// What can be gone on with, as it is now.
void Télécommande::remplir_menu() {
    menu_reprendre_.clear();
    const int robot = console_.robot();
    if (console_.continuation_possible(robot)) {
        QAction* continuer_ici =
            menu_reprendre_.addAction(QString("Continuer le trajet du robot %1").arg(robot));
        connect(continuer_ici, &QAction::triggered, this, [this, robot] { continuer(robot); });
    }
    ajouter_les_gardes();
    if (menu_reprendre_.isEmpty())
        menu_reprendre_.addAction("Aucun trajet à reprendre")->setEnabled(false);
}

void Télécommande::ajouter_les_gardes() {
    for (const EnregistrementGarde& g : seance_.reprise().gardes()) {
        QString nom = QFileInfo(QString::fromStdString(g.fichier.string()))
                          .lastModified()
                          .toString("dd/MM/yyyy HH:mm:ss");
        for (const Enregistrement::Robot& robot : g.contenu.robots)
            nom +=
                QString(", robot %1 (%2 actions)").arg(int{robot.numero}).arg(robot.actions.size());
        connect(menu_reprendre_.addAction(nom), &QAction::triggered, this, [this, g] {
            if (seance_.reprendre(g.contenu))
                bureau_.continuer_enregistrement();
        });
    }
}

void Télécommande::keyPressEvent(QKeyEvent* evenement) {
    if (evenement->key() != Qt::Key_Escape)
        return QWidget::keyPressEvent(evenement);
    // First what runs, then the window.
    if (!bureau_.arreter_course())
        Command2_Click();
}

bool Télécommande::arreter_action() {
    const ALaFin fin([this] { actualiser(); });
    return console_.arreter_action();
}

void Télécommande::showEvent(QShowEvent* evenement) {
    suivre_nombre_de_robots();
    indiquer_position();
    ecrire_le_temps();
    QWidget::showEvent(evenement);
}

// Not while recording: the robot that is driven stays the one that is shown.
void Télécommande::suivre_nombre_de_robots() {
    if (console_.phase() == Console::Phase::arret)
        VScroll1.setMaximum(seance_.etat().NbRobot);
}

bool Télécommande::eventFilter(QObject* objet, QEvent* evenement) {
    // The second click of a double click is no click of its own: it would undo what the first did.
    if (objet == &Command9 && evenement->type() == QEvent::MouseButtonDblClick)
        return true;
    const bool arrive = evenement->type() == QEvent::Enter || evenement->type() == QEvent::FocusIn;
    const bool part = evenement->type() == QEvent::Leave || evenement->type() == QEvent::FocusOut;
    for (std::size_t k = 0; k < nb_actions && (arrive || part); ++k) {
        if (objet == &Command4.at(k))
            surligner(arrive ? &actions::boutons[k] : nullptr);
    }
    return QWidget::eventFilter(objet, evenement);
}

void Télécommande::connecter() {
    const auto relier = [this](QPushButton& bouton, auto procedure) {
        connect(&bouton, &QPushButton::clicked, this, procedure);
    };
    for (std::size_t k = 0; k < nb_actions; ++k) {
        relier(Command4.at(k), [this, k] { Command4_Click(k); });
        Command4.at(k).installEventFilter(this);
    }
    relier(Command9, [this] { Command9_Click(); });
    Command9.installEventFilter(this);
    connect(&menu_reprendre_, &QMenu::aboutToShow, this, [this] { remplir_menu(); });
    for (QLineEdit* champ : {&TextX, &TextY})
        connect(champ, &QLineEdit::textChanged, this, [this] { indiquer_position(); });
    relier(Command2, [this] { Command2_Click(); });
    relier(annuler_, [this] { annuler(); });
    preparer_liste();
    connect(&VScroll1, &QScrollBar::valueChanged, this, [this] { VScroll1_Change(); });
}
