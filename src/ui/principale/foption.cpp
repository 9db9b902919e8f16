#include "ui/principale/foption.h"

#include "sim/damier.h"
#include "sim/orientation.h"
#include "ui/commun/boites.h"
#include "ui/commun/place.h"
#include "ui/principale/ouvrir.h"
#include "ui/principale/sim1.h"

#include <QKeyEvent>
#include <QSignalBlocker>

QSize CaseLibelle::sizeHint() const {
    return fontMetrics().size(Qt::TextShowMnemonic, text()).grownBy({0, 2, 0, 2});
}

FOption::FOption(Sim1& sim) : QWidget(&sim, Qt::Dialog | Qt::WindowCloseButtonHint), sim_(sim) {
    nommer();
    placer();
    connecter();
    retenir_place(*this);
    Form_Load();
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
}

void FOption::Check1_Click(bool coche) {
    sim_.etat().AffichageLent = vrai16(!coche);
    modifie = true;
}

void FOption::Check2_Click(bool coche) {
    sim_.etat().PasTemps = coche ? 5 : 1;
    modifie = true;
}

void FOption::Check3_Click(bool coche) {
    Etat& e = sim_.etat();
    try {
        coche ? horizontal(e) : vertical(e);
    } catch (const ErreurExecution&) { // nothing is turned: the box says so
        const QSignalBlocker muet(&Check3);
        Check3.setChecked(!coche);
        throw;
    }
    e.TableHorizontale = vrai16(coche);
    sim_.Init_Table();
    e.persistant = true;
    sim_.Dessine_Table();
    if (!e.AffichageLent)
        e.persistant = false;
    sim_.Dessine_Robot();
    sim_.table_tournee();
    avertir_du_damier();
    modifie = true;
}

void FOption::VScroll1_Change(int valeur) {
    NbRO.setText(QString::number(valeur));
    NbRO_Change();
    VScroll1.setMaximum(NbRO.text().toInt()); // deliberate: the number only goes down
}

void FOption::NbRO_Change() {
    sim_.etat().NbRobot = lire_entier16(NbRO.text().toStdString());
    sim_.robots_changes();
    sim_.Dessine_Table();
    sim_.Dessine_Robot();
    modifie = true;
}

void FOption::utiliDamier_Click(bool coche) {
    sim_.etat().utiliDamier = coche;
    if (coche)
        initDamier(sim_.etat());
    lb_utilcarreaux.setVisible(coche);
    nbre_carreaux.setVisible(coche);
    avertir_du_damier();
}

// The chequerboard stays where it is when the table is turned.
void FOption::avertir_du_damier() {
    damier_tourne_.setVisible(utiliDamier.isChecked() && Check3.isChecked());
}

void FOption::Command1_Click() {
    if (Command1.text() == "Arrêter") {
        sim_.moteur().Fin_Jeu();
        return;
    }
    sim_.etat().RobotTele = 0;
    sim_.moteur().Run_Jeu();
}

void FOption::Command2_Click() {
    if (!sim_.SauvRobot())
        return;
    projet_choisi = false; // leaving the list without a choice loads nothing, whatever came before
    Ouvrir(sim_, *this).exec();
    if (sim_.terminee())
        return;
    sim_.montrer_options();
    if (projet_choisi)
        sim_.charger_projet_choisi();
}

void FOption::Command4_Click() {
    if (!sim_.peut_partir())
        return;
    sim_.SaveGeneral();
    if (!sim_.SauvRobot())
        return;
    sim_.partir();
    sim_.terminer(0);
}

void FOption::keyPressEvent(QKeyEvent* evenement) {
    if (evenement->key() != Qt::Key_Escape || !sim_.arreter_course())
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
    brancher(generer, [this] { sim_.montrer_generateur(); });
    brancher(Command5, [this] { sim_.montrer_console(); });
    brancher(Command2, [this] { Command2_Click(); });
    brancher(Aide, [this] { sim_.montrer_aide(*this); });
    brancher(Command4, [this] { Command4_Click(); });
}
