#include "ui/principale/foption.h"

#include "config/nom_projet.h"
#include "sim/damier.h"
#include "ui/commun/boites.h"
#include "ui/commun/bureau.h"
#include "ui/commun/icones_commandes.h"
#include "ui/commun/place.h"
#include "ui/principale/ouvrir.h"
#include "ui/principale/projets_recents.h"

#include <QKeyEvent>
#include <QMenu>
#include <QSignalBlocker>

QSize CaseLibelle::sizeHint() const {
    return fontMetrics().size(Qt::TextShowMnemonic, text()).grownBy({0, 2, 0, 2});
}

FOption::FOption(QWidget* parent, Seance& seance, Bureau& bureau)
    : QWidget(parent, Qt::Dialog | Qt::WindowCloseButtonHint), seance_(seance), bureau_(bureau) {
    nommer();
    placer();
    connecter();
    retenir_place(*this);
    Form_Load();
    ecouter(seance.annonces());
}

void FOption::projet_change(Lecture lecture) {
    if (lecture == Lecture::projet)
        modifie = true;
}

void FOption::montrer() {
    show();
    raise();
    activateWindow();
}

void FOption::appliquer(const Tableau<Entier16, 4>& Options) {
    Check1.setChecked(Options(1) == 1);
    Check2.setChecked(Options(2) == 1);
    VScroll1.setValue(Options(3));
    Check3.setChecked(Options(4) == 1);
}

ReglagesGeneraux FOption::reglages() const {
    return {.rapide = Check1.isChecked(),
            .allege = Check2.isChecked(),
            .nb_robot = NbRO.text().toStdString(),
            .horizontale = Check3.isChecked()};
}

void FOption::brancher(QPushButton& bouton, std::function<void()> procedure) {
    bouton.setEnabled(true);
    connect(&bouton, &QPushButton::clicked, this, std::move(procedure));
}

void FOption::choisir_robots(int nombre) {
    retablir_plage();
    VScroll1.setValue(nombre);
}

void FOption::montrer_course(bool en_cours) {
    for (QWidget* reglage :
         std::initializer_list<QWidget*>{&Check1, &Check2, &NbRO, &VScroll1, &Check4})
        reglage->setEnabled(!en_cours);
    Command1.setText(en_cours ? "Arrêter" : "Démarrer");
    Command1.setIcon(icone(en_cours ? Commande::arreter : Commande::demarrer, true));
}

void FOption::Check1_Click(bool coche) {
    seance_.etat().AffichageLent = vrai16(!coche);
    modifie = true;
}

void FOption::Check2_Click(bool coche) {
    seance_.etat().PasTemps = coche ? 5 : 1;
    modifie = true;
    seance_.annonces().annoncer(&Ecouteur::reglages_changes);
}

void FOption::Check3_Click(bool coche) {
    try {
        seance_.tourner_la_table(coche);
    } catch (const ErreurExecution&) { // the box says what is turned
        const QSignalBlocker muet(&Check3);
        Check3.setChecked(seance_.etat().TableHorizontale != 0);
        throw;
    }
    avertir_du_damier();
    modifie = true;
}

void FOption::VScroll1_Change(int valeur) {
    NbRO.setText(QString::number(valeur));
    NbRO_Change();
    VScroll1.setMaximum(NbRO.text().toInt()); // deliberate: the number only goes down
}

void FOption::NbRO_Change() {
    seance_.changer_NbRobot(lire_entier16(NbRO.text().toStdString()));
    modifie = true;
}

void FOption::utiliDamier_Click(bool coche) {
    seance_.etat().utiliDamier = coche;
    if (coche)
        initDamier(seance_.etat());
    lb_utilcarreaux.setVisible(coche);
    nbre_carreaux.setVisible(coche);
    avertir_du_damier();
    seance_.annonces().annoncer(&Ecouteur::reglages_changes);
}

// The chequerboard stays where it is when the table is turned.
void FOption::avertir_du_damier() {
    damier_tourne_.setVisible(utiliDamier.isChecked() && Check3.isChecked());
}

void FOption::Command1_Click() {
    if (Command1.text() == "Arrêter") {
        seance_.moteur().Fin_Jeu();
        return;
    }
    seance_.etat().RobotTele = 0;
    seance_.moteur().Run_Jeu();
}

void FOption::SaveGeneral() {
    if (modifie)
        seance_.projet().SaveGeneral(seance_.etat().NomProjet, reglages());
}

void FOption::Command2_Click() {
    if (!seance_.SauvRobot())
        return;
    projet_choisi = false; // leaving the list without a choice loads nothing, whatever came before
    Ouvrir(this, seance_, [this](const std::string& nom) {
        projet_choisi = true;
        seance_.etat().NomProjet = nom;
        SaveGeneral();
    }).exec();
    if (seance_.terminee())
        return;
    montrer();
    if (projet_choisi)
        bureau_.charger_projet_choisi();
}

bool FOption::charger(const std::string& projet) {
    exiger_projet_possible(projet);
    if (!seance_.SauvRobot() || seance_.terminee())
        return false;
    seance_.etat().NomProjet = projet;
    SaveGeneral();
    bureau_.charger_projet_choisi();
    return true;
}

void FOption::remplir_recents(QMenu& menu) {
    menu.clear();
    menu.setObjectName("menu_recents");
    for (const std::string& projet : projets_recents(seance_.projet().dossier_configuration())) {
        QAction* choix = menu.addAction(texte_qt(projet).replace("&", "&&"));
        choix->setEnabled(projet != seance_.etat().NomProjet);
        connect(choix, &QAction::triggered, this, [this, projet] { charger(projet); });
    }
}

bool FOption::espace(const QKeyEvent& touche) {
    if (touche.key() != Qt::Key_Space || touche.modifiers() != Qt::NoModifier)
        return false;
    if (!touche.isAutoRepeat())
        Command1_Click();
    return true;
}

void FOption::Command4_Click() {
    if (!bureau_.peut_partir())
        return;
    SaveGeneral();
    if (seance_.SauvRobot())
        bureau_.partir();
}

void FOption::keyPressEvent(QKeyEvent* evenement) {
    if (!espace(*evenement) && (evenement->key() != Qt::Key_Escape || !bureau_.arreter_course()))
        QWidget::keyPressEvent(evenement);
}

void FOption::connecter() {
    const auto suivre = [this](QCheckBox& boite, void (FOption::*procedure)(bool)) {
        connect(&boite, &QCheckBox::toggled, this,
                [this, procedure](bool coche) { (this->*procedure)(coche); });
    };
    suivre(Check1, &FOption::Check1_Click);
    suivre(Check2, &FOption::Check2_Click);
    suivre(Check3, &FOption::Check3_Click);
    suivre(utiliDamier, &FOption::utiliDamier_Click);
    connect(&VScroll1, &QScrollBar::valueChanged, this,
            [this](int valeur) { VScroll1_Change(valeur); });
    brancher(Command1, [this] { Command1_Click(); });
    brancher(Command2, [this] { Command2_Click(); });
    auto* menu = new QMenu(this);
    connect(&recents_, &QToolButton::clicked, this, [this, menu] {
        remplir_recents(*menu);
        menu->popup(recents_.mapToGlobal(recents_.rect().bottomLeft()));
    });
    brancher(Command4, [this] { Command4_Click(); });
}
