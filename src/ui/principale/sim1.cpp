#include "ui/principale/sim1.h"

#include "draw/disposition.h"
#include "draw/table.h"
#include "sim/damier.h"
#include "sim/orientation.h"
#include "ui/aide/aide.h"
#include "ui/commun/garde.h"
#include "ui/commun/place.h"
#include "ui/console/telecommande.h"
#include "ui/generation/dialog.h"
#include "ui/principale/editeurs.h"
#include "ui/principale/restauration.h"
#include "ui/principale/surveillance.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QMenu>

Sim1::Sim1(const std::filesystem::path& dossier_application, std::function<void(int)> terminer)
    : e(std::make_unique<Etat>()),
      terminer_(std::move(terminer)),
      projet_(*e, *this, dossier_application),
      moteur_(*e, *this),
      Mess(LigneTexte::Sorte::etat, this),
      Info(LigneTexte::Sorte::capteur, this),
      Table(*e, *this, this),
      LNom(&Table),
      logo(&Table),
      options_(*this),
      reprise_(*e, projet_.dossier_configuration()),
      surveillance_(std::make_unique<Surveillance>(*this)),
      aide_(std::make_unique<ServiceAide>(*this)) {
    nommer();
    connecter();
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
    Table.setAccessibleDescription("Affiche les options");
    Table.setContextMenuPolicy(Qt::CustomContextMenu);
    logo.setAccessibleName("Logo");
}

void Sim1::connecter() {
    connect(&Timer, &QTimer::timeout, this, [this] { Timer_Timer(); });
    connect(&Table, &QWidget::customContextMenuRequested, this,
            [this](const QPoint& ou) { menu_robots(ou); });
    options_.brancher(options_.dessinAire, [this] { editeurs().montrer(); });
    Table.au_clic = [this] { Table_Click(); };
    logo.au_clic = [this] { logo_Click(); };
}

void Sim1::Form_Load() {
    garde(*this, [this] {
        // Shown at the end, or under the first message: a window manager heeds the place and the
        // size that a window asks for before it appears, and the user sees no half-made window.
        move(screen()->availableGeometry().topLeft());
        e->NomProjet = "Defaut";
        ecrire_LNom("\r\n\r\nArdanel Fichier de configuration par défaut");
        Info.ecrire("");
        charger_projet();
    });
    if (terminee_)
        return;
    garde(*this, [this] { options_.appliquer(e->Options); });
    garde(*this, [this] {
        options_.modifie = false;
        Dessine_Table();
        Dessine_Robot();
    });
    if (terminee_)
        return;
    show();
    Table_Click();
    garde(*this, [this] {
        prendre_projet();
        proposer_reprise();
    });
}

// Says so when another program has it open too.
void Sim1::prendre_projet() {
    if (const AvisPartage avis = reprise_.prendre_projet(); !avis.texte.empty())
        message(avis.texte, avis.explication);
}

// What a crash, a kill or a power cut left unsaved.
void Sim1::proposer_reprise() {
    const bool repris = reprise_.proposer(*this, [this](const std::string& nom) {
        e->NomProjet = nom;
        recharger_projet();
    });
    if (repris && !terminee_)
        continuer_enregistrement();
    if (!terminee_ && RepriseDessin::en_attente(projet_.dossier_configuration()))
        editeurs().proposer_reprises();
}

void Sim1::continuer_enregistrement() {
    const int dernier = reprise_.dernier_robot();
    if (dernier > e->NbRobot && dernier <= robots_des_fichiers)
        options_.choisir_robots(dernier);
    redessiner();
    montrer_console();
    console_->continuer_le_dernier();
}

// The bare caption is the default project's.
void Sim1::montrer_titre() {
    const bool nomme = !e->NomProjet.empty() && e->NomProjet != "Defaut";
    const QString nom = texte_qt(e->NomProjet).replace("[*]", "[*][*]"); // no mark of changes
    setWindowTitle(nomme ? nom + " – Tavolmex" : "Tavolmex");
}

void Sim1::recharger_projet() {
    projet_.Installe();
    montrer_titre();
    surveillance_->prendre_note(); // what changes while it is read is read again
    moteur_.Fin_Jeu();
    projet_.LoadTable();
    projet_.Init_Robot();
    projet_.Init_Jeu();
    if (e->TableHorizontale)
        horizontal(*e);
    Init_Table();
    Dessine_Table();
    Dessine_Robot();
    options_.modifie = true;
    prendre_projet();
}

void Sim1::charger_projet_choisi() {
    recharger_projet();
    options_.retablir_plage();
    recommencer_console();
    if (reprise_.proposer(*this))
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

void Sim1::recommencer_console() {
    if (console_)
        console_->recommencer();
}

void Sim1::table_tournee() {
    if (console_)
        console_->indiquer_position();
}

void Sim1::robots_changes() {
    if (console_)
        console_->suivre_nombre_de_robots();
}

void Sim1::fichier_ecrit(const std::filesystem::path& fichier) {
    surveillance_->prendre_note_de(fichier);
}

void Sim1::montrer_aide(const QWidget& depuis) {
    aide_->montrer(depuis);
}

void Sim1::charger_projet() {
    projet_.Installe();
    projet_.LoadGeneral();
    montrer_titre();
    surveillance_->prendre_note(); // what changes while it is read is read again
    projet_.LoadTable();
    Init_Table();
    projet_.Init_Robot();
    projet_.Init_Jeu();
    initDamier(*e);
    if (e->TableHorizontale)
        horizontal(*e);
}

void Sim1::Table_Click() {
    montrer_options();
    if (console_)
        console_->hide();
}

void Sim1::montrer_console() {
    if (!console_)
        console_ = std::make_unique<Télécommande>(*this, reprise_);
    const QRect cadre_options = options_.frameGeometry();
    if (!console_->isVisible())
        proposer_place(*console_, cadre_options.topLeft());
    console_->show();
    console_->raise();
    console_->activateWindow();
}

void Sim1::montrer_generateur() {
    if (!generateur_)
        generateur_ = std::make_unique<Dialog>(*this);
    generateur_->show();
    generateur_->raise();
    generateur_->activateWindow();
}

void Sim1::cacher_options_et_console() {
    options_.hide();
    if (console_)
        console_->hide();
}

bool Sim1::SauvRobot() {
    BilanSauvegarde bilan =
        reprise_.sauver(*this, [this](const auto& fichier) { fichier_ecrit(fichier); });
    if (!bilan.en_surete())
        return sauver_ailleurs(std::move(bilan));
    if (!bilan.complete())
        message(bilan.message());
    return true;
}

// Nothing could be written: a full disk, a stick that is gone.
bool Sim1::sauver_ailleurs(BilanSauvegarde bilan) {
    if (bilan.acceptes.none())
        return question(bilan.message() + std::string(RetourLigne) +
                            "Faut-il continuer sans garder ce trajet ?",
                        "Non : rien n'est fermé, le trajet reste dans le programme.");
    while (question(bilan.message() + std::string(RetourLigne) +
                        "Faut-il l'écrire dans un autre dossier ?",
                    "Non : rien n'est fermé, le trajet reste dans le programme.")) {
        const QString dossier = boites_.choisir_dossier("Où écrire le trajet ?");
        if (dossier.isEmpty())
            continue;
        bilan.echecs = reprise_.sauver_ailleurs(bilan, dossier.toStdString());
        if (bilan.complete()) {
            information("Le trajet est écrit dans " + dossier.toStdString());
            return true;
        }
    }
    return false;
}

void Sim1::Active_Desactive(bool Status) {
    if (!console_)
        return;
    if (Status)
        console_->action_finie();
    else
        console_->Active_Desactive(false);
}

void Sim1::montrer_course(bool en_cours) {
    options_.montrer_course(en_cours);
    if (!en_cours && console_)
        console_->action_finie();
}

void Sim1::montrer_options() {
    options_.show();
    options_.raise();
    options_.activateWindow();
}

void Sim1::SaveGeneral() {
    if (options_.modifie)
        projet_.SaveGeneral(e->NomProjet, options_.reglages());
}

void Sim1::Timer_Timer() {
    const auto maintenant = std::chrono::steady_clock::now();
    // A box lets the timer run on underneath: the ticks wait until it is closed.
    if (boite_ouverte() || terminee_)
        return cadence_.retenir(maintenant);
    for (int n = 0; n < Cadence::par_evenement && en_course() && cadence_.echu(maintenant); ++n) {
        const Cadence::Duree avant = temps_de_calcul();
        moteur_.Timer_Timer();
        cadence_.compter(temps_de_calcul() - avant);
    }
}

void Sim1::menu_robots(const QPoint& ou) {
    QMenu menu(&Table);
    menu.setObjectName("menu_table");
    QMenu& robots = *menu.addMenu("Nombre de robots");
    robots.setObjectName("menu_robots");
    robots.setEnabled(options_.robots_modifiables());
    robots.addSection("Nombre de robots");
    for (int n = 1; n <= robots_des_fichiers; ++n) {
        QAction* choix = robots.addAction(QString::number(n));
        choix->setCheckable(true);
        choix->setChecked(n == e->NbRobot);
        choix->setData(n);
    }
    menu.addSeparator();
    const QAction* restaurer = menu.addAction("Restaurer une version…");
    const QAction* choix = menu.exec(Table.mapToGlobal(ou));
    if (choix == nullptr)
        return;
    if (choix == restaurer)
        montrer_restauration(*this);
    else
        options_.choisir_robots(choix->data().toInt());
}

Editeurs& Sim1::editeurs() {
    if (!editeurs_)
        editeurs_ = std::make_unique<Editeurs>(*this);
    return *editeurs_;
}

bool Sim1::peut_partir() {
    return !editeurs_ || editeurs_->peut_partir();
}

void Sim1::partir() {
    if (editeurs_)
        editeurs_->partir();
}

void Sim1::ecrire_reprises() {
    reprise_.ecrire_ou_prevenir(*this);
    if (editeurs_)
        editeurs_->ecrire_reprises();
}

void Sim1::terminer(int code_de_sortie) {
    if (terminee_)
        return;
    terminee_ = true;
    Timer.stop();
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

void Sim1::message(std::string_view texte, std::string_view explication) {
    show();
    boites_.message(texte, explication);
}

void Sim1::information(std::string_view texte) {
    show();
    boites_.information(texte);
}

bool Sim1::question(std::string_view texte, std::string_view explication) {
    show();
    return boites_.question(texte, explication);
}

void Sim1::regler_Timer(Entier16 ms) {
    if (ms > 0) {
        Timer.start(ms);
        cadence_.demarrer(std::chrono::milliseconds(ms), std::chrono::steady_clock::now());
    } else
        Timer.stop();
}

// The window is laid out again only where a text needs another height than the values.
void Sim1::ecrire_Mess(const LigneMess& mess) {
    const bool texte = Mess.est_texte();
    Mess.ecrire(mess);
    if (texte)
        placer();
}

void Sim1::ecrire_texte_Mess(std::string_view texte) {
    Mess.ecrire(texte);
    placer();
}

void Sim1::apres_actions() {
    if (console_)
        console_->suivre_le_temps();
}

void Sim1::ecrire_LNom(std::string_view texte) {
    LNom.setText(texte_qt(texte));
    placer_logo();
}

void Sim1::ecrire_nbre_carreaux(std::string_view texte) {
    options_.nbre_carreaux.setText(texte_qt(texte));
}

void Sim1::Dessine_Table() {
    if (!terminee_)
        Table.Dessine_Table();
}

void Sim1::Dessine_Robot() {
    if (!terminee_)
        Table.Dessine_Robot();
}

void Sim1::montrer_logo(bool visible) {
    logo.setVisible(visible);
    LNom.setVisible(visible);
}

bool Sim1::arreter_course() {
    if (!en_course())
        return false;
    if (!console_ || !console_->arreter_action())
        moteur_.Fin_Jeu();
    return true;
}

void Sim1::keyPressEvent(QKeyEvent* evenement) {
    if (evenement->key() != Qt::Key_Escape || !arreter_course())
        QWidget::keyPressEvent(evenement);
}

// What the write after the last action could not keep may find room now.
void Sim1::fin_du_programme() {
    if (!terminee_)
        ecrire_reprises();
    terminer(3);
}
