#include "ui/principale/sim1.h"

#include "ui/aide/aide.h"
#include "ui/commun/garde.h"
#include "ui/commun/place.h"
#include "ui/console/telecommande.h"
#include "ui/feuille/exports.h"
#include "ui/generation/dialog.h"
#include "ui/principale/editeurs.h"
#include "ui/principale/erreurs_lecture.h"
#include "ui/principale/projets_recents.h"
#include "ui/principale/restauration.h"
#include "ui/principale/surveillance.h"
#include "ui/verdict/verdict.h"

#include <QCloseEvent>
#include <QKeyEvent>

Sim1::Sim1(const std::filesystem::path& dossier_application, std::function<void(int)> terminer)
    : e(std::make_unique<Etat>()),
      terminer_(std::move(terminer)),
      seance_(*e, *this, *this, dossier_application),
      Mess(LigneTexte::Sorte::etat, this),
      Info(LigneTexte::Sorte::capteur, this),
      Table(*e, *this, this),
      LNom(&Table),
      logo(&Table),
      barre_(this),
      trace_(*e),
      pointeur_(Table, *e),
      options_(this, seance_, bureau()),
      surveillance_(std::make_unique<Surveillance>(seance_)),
      verdict_(std::make_unique<Verdict>(*this, seance_, bureau())),
      exports_(
          std::make_unique<Exports>(*this, seance_, [this] { return verdict_->analyse_a_jour(); })),
      aide_(std::make_unique<ServiceAide>(*this)) {
    nommer();
    connecter();
    composer_menu();
    connecter_calques();
    ecouter(seance_.annonces());
}

Sim1::~Sim1() = default;

void Sim1::nommer() {
    const auto nom = [](QObject& objet, const char* texte) { objet.setObjectName(texte); };
    nom(*this, "Sim1");
    nom(Timer, "Timer");
    nom(Mess, "Mess");
    nom(Info, "Info");
    nom(Table, "Table");
    nom(LNom, "LNom");
    nom(logo, "logo");
    setWindowTitle("Tavolmex");
    setMinimumSize(160, 160);
    Timer.setTimerType(Qt::PreciseTimer);
    Table.setAccessibleName("Aire de jeu");
    Table.setContextMenuPolicy(Qt::CustomContextMenu);
    logo.setAccessibleName("Logo");
}

void Sim1::connecter() {
    connect(&Timer, &QTimer::timeout, this, [this] { Timer_Timer(); });
    connect(&Table, &QWidget::customContextMenuRequested, this,
            [this](const QPoint& ou) { montrer_menu(ou); });
    options_.brancher(options_.dessinAire, [this] { editeurs().montrer(); });
    options_.brancher(options_.generer, [this] { montrer_generateur(); });
    options_.brancher(options_.Command5, [this] { montrer_console(); });
    options_.brancher(options_.Aide, [this] { aide_->montrer(options_); });
    for (QWidget* fenetre : std::initializer_list<QWidget*>{this, &options_})
        depot_.accueillir(*fenetre);
    Table.au_clic = [this] { Table_Click(); };
    logo.au_clic = [this] { logo_Click(); };
    verdict_->quand_calcule([this](const Analyse& a) {
        std::vector<std::int32_t> fins;
        for (const Bilan& bilan : a.robots)
            if (bilan.fin)
                fins.push_back(*bilan.fin);
        barre_.montrer_fins(std::move(fins));
        decrire_la_table();
    });
}

void Sim1::Form_Load() {
    // Shown at the end, or under the first message: a window manager heeds the place and the size
    // that a window asks for before it appears, and the user sees no half-made window.
    move(screen()->availableGeometry().topLeft());
    Info.ecrire("");
    if (!seance_.demarrer())
        return;
    verdict_->recalculer();
    show();
    Table_Click();
    montrer_erreurs();
    garde(*this, [this] { proposer_reprise(); });
}

void Sim1::appliquer_reglages() {
    options_.appliquer(e->Options);
    options_.modifie = false;
}

bool Sim1::apres_panne() {
    options_.modifie = false;
    return !terminee_;
}

// What a crash, a kill or a power cut left unsaved.
void Sim1::proposer_reprise() {
    if (seance_.proposer_reprise() && !terminee_)
        continuer_enregistrement();
    if (!terminee_ && RepriseDessin::en_attente(seance_.projet().dossier_configuration()))
        editeurs().proposer_reprises();
}

void Sim1::montrer_robots(int nombre) {
    if (nombre > e->NbRobot && nombre <= robots_des_fichiers)
        options_.choisir_robots(nombre);
}

void Sim1::continuer_enregistrement() {
    montrer_robots(seance_.reprise().dernier_robot());
    redessiner();
    montrer_console();
    console_->continuer_le_dernier();
}

void Sim1::projet_va_etre_lu() {
    Table.oublier_silhouettes();
    titrer();
    retenir_projet(seance_.projet().dossier_configuration(), e->NomProjet);
}

void Sim1::charger_projet_choisi() {
    seance_.recharger();
    options_.retablir_plage();
    if (seance_.proposer_reprise_du_projet())
        continuer_enregistrement();
}

void Sim1::redessiner() {
    if (taille_dessinee_ != QSize(e->XMax, e->YMax))
        Init_Table();
    placer_logo(); // it was placed on the emptied table
    e->ZoneRedessin = {0, e->XMax, 0, e->YMax};
    Dessine_Table();
    Dessine_Robot();
}

void Sim1::Table_Click() {
    montrer_options();
    if (console_)
        console_->hide();
}

void Sim1::montrer_console() {
    if (!console_) {
        console_ = std::make_unique<Télécommande>(this, seance_, bureau(), [this] {
            return options_.nbre_carreaux.text().toStdString();
        });
        console_->addActions(actions());
    }
    const QRect cadre_options = options_.frameGeometry();
    if (!console_->isVisible())
        proposer_place(*console_, cadre_options.topLeft());
    console_->show();
    console_->raise();
    console_->activateWindow();
}

void Sim1::montrer_generateur() {
    if (!generateur_)
        generateur_ = std::make_unique<Dialog>(this, seance_, bureau());
    generateur_->show();
    generateur_->raise();
    generateur_->activateWindow();
}

void Sim1::montrer_restauration() {
    if (!restauration_)
        restauration_ = std::make_unique<Restauration>(this, seance_);
    restauration_->show();
    restauration_->raise();
    restauration_->activateWindow();
}

void Sim1::cacher_options_et_console() {
    options_.hide();
    if (console_)
        console_->hide();
}

Editeurs& Sim1::editeurs() {
    if (!editeurs_)
        editeurs_ = std::make_unique<Editeurs>(this, seance_, bureau());
    return *editeurs_;
}

bool Sim1::peut_partir() {
    return !editeurs_ || editeurs_->peut_partir();
}

void Sim1::partir() {
    if (editeurs_)
        editeurs_->partir();
    terminer(0);
}

void Sim1::ecrire_reprises() {
    seance_.reprise().ecrire_ou_prevenir(*this);
    if (editeurs_)
        editeurs_->ecrire_reprises();
}

void Sim1::terminer(int code_de_sortie) {
    if (terminee_)
        return;
    terminee_ = true;
    Timer.stop();
    suspendue_ = false;
    terminer_(code_de_sortie);
}

void Sim1::Form_Unload() {
    options_.Command4_Click();
}

void Sim1::closeEvent(QCloseEvent* evenement) {
    if (!terminee_)
        Form_Unload();
    // Unsaved drawings may have kept the program from ending.
    evenement->setAccepted(terminee_);
}

void Sim1::keyPressEvent(QKeyEvent* evenement) {
    if (!options_.espace(*evenement) && (evenement->key() != Qt::Key_Escape || !arreter_course()))
        QWidget::keyPressEvent(evenement);
}
