#include "ui/editeurs/dessin_trajet.h"

#include "analyse/verdict.h"
#include "config/projet.h"
#include "ui/commun/cle_de_projet.h"

#include <QHBoxLayout>
#include <QSettings>
#include <QStatusBar>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

dessinTrajet::dessinTrajet(QWidget* parent, Foutil& outils, Programme programme, Seance& seance)
    : FenetreEditeur(parent, outils, std::move(programme),
                     {GenreFichier::trajet, "Trajet du robot",
                      "Fichiers de trajet (*?Trajet?.ini);;Tous les fichiers (*)", "trajet"}),
      seance_(seance),
      historique_([this] { rafraichir(); }),
      vue_(historique_, this),
      table_(historique_, this) {
    setObjectName("dessinTrajet");
    placer();
    connecter();
    regler_projet();
    preparer_menus();
    preparer_edition();
    preparer_trajet();
    ecouter(seance.annonces());
}

void dessinTrajet::placer() {
    auto* titre_robot = new QLabel("&Robot :");
    titre_robot->setBuddy(&robot_);
    robot_.setObjectName("robot");
    robot_.setAccessibleName("Robot");
    for (int n = 1; n <= robots_des_fichiers; ++n)
        robot_.addItem(QString::number(n));
    cherche_.setObjectName("chercheAction");
    cherche_.setAccessibleName("Chercher une action, une valeur ou un numéro");
    cherche_.setPlaceholderText("Chercher : action, valeur, numéro");
    cherche_.setClearButtonEnabled(true);
    cherche_.setMinimumWidth(240);
    bilan_.setObjectName("bilan");
    avis_.setObjectName("avis");
    for (QLabel* texte : {&bilan_, &avis_}) {
        texte->setTextFormat(Qt::PlainText);
        texte->setWordWrap(true);
    }
    generation_.setObjectName("avecGeneration");
    generation_.setText("&Préparer aussi l'entrée du générateur en enregistrant");
    auto* panneau = new QWidget;
    auto* lignes = new QVBoxLayout(panneau);
    auto* tete = new QHBoxLayout;
    tete->addWidget(titre_robot);
    tete->addWidget(&robot_);
    tete->addStretch(1);
    tete->addWidget(&cherche_);
    lignes->addLayout(tete);
    lignes->addWidget(&table_, 1);
    lignes->addWidget(&avis_);
    lignes->addWidget(&bilan_);
    lignes->addWidget(&generation_);
    assembler({historique_, vue_, *panneau, {380, 860}});
    resize(1240, 660);
}

void dessinTrajet::connecter() {
    vue_.au_deplacement = [this](QPointF cm) {
        position_.setText(
            QString("x = %1  y = %2 cm").arg(std::lround(cm.x())).arg(std::lround(cm.y())));
    };
    vue_.au_glissement = [this](const DocumentTrajet& d) { montrer_provisoire(&d); };
    vue_.au_lacher = [this](const QString& nom, DocumentTrajet d) {
        changer(nom, std::move(d), historique_.selection());
    };
    vue_.a_l_abandon = [this] { montrer_provisoire(nullptr); };
    table_.au_choix = [this](const Selection& s) { historique_.choisir(s); };
    table_.a_la_frappe = [this](const DocumentTrajet& d) { montrer_provisoire(&d); };
    table_.fin_de_frappe = [this] {
        montrer_provisoire(nullptr);
        montrer_bilan();
    };
    table_.au_conseil = [this](const QString& conseil) { statusBar()->showMessage(conseil); };
    connect(&cherche_, &QLineEdit::returnPressed, this, [this] { chercher(); });
    connect(&robot_, &QComboBox::activated, this, [this](int rang) { montrer_robot(rang + 1); });
    // Not "clicked": an assistive tool toggles without a click.
    connect(&generation_, &QCheckBox::toggled, this,
            [this](bool oui) { QSettings().setValue(cle_de_generation(), oui); });
}

QString dessinTrajet::cle_de_generation() const {
    return cle_de_projet("generation_avec_le_trajet", chemin().parent_path(), projet());
}

std::string dessinTrajet::projet() const {
    return projet_du_nom(chemin().stem().string(), GenreFichier::trajet);
}

int dessinTrajet::robot() const {
    return projet().empty() ? 1 : chemin().stem().string().back() - '0';
}

void dessinTrajet::montrer_robot(int robot) {
    const auto voulu = seance_.projet().chemin_trajet(robot);
    if (chemin() != voulu && preparer_depart(demander_depart()))
        ouvrir(voulu);
    robot_.setCurrentIndex(this->robot() - 1);
}

void dessinTrajet::choisir_l_action(int numero) {
    const auto& numeros = essai_.numeros;
    const auto ou = std::ranges::find(numeros, numero);
    if (numero > 0 && ou != numeros.end())
        historique_.choisir({static_cast<std::size_t>(ou - numeros.begin())});
}

void dessinTrajet::regler_projet() {
    try {
        etat_ = etat_des_fichiers(seance_.etat());
        provenance_ = provenance_de(seance_.projet());
    } catch (const ErreurExecution&) { // the main window says what is wrong with its project
        return;
    }
    vue_.regler_projet(*etat_, robot());
    montrer_fantome();
}

void dessinTrajet::fichier_change() {
    robot_.setCurrentIndex(robot() - 1);
    const QSignalBlocker lue_pas_choisie(generation_);
    generation_.setChecked(QSettings().value(cle_de_generation(), false).toBool());
    regler_projet();
}

void dessinTrajet::montrer_fantome() {
    fantome_.reset();
    if (!chemin().empty()) {
        enregistre_ = DocumentTrajet::depuis(sur_le_disque());
        fantome_ = essayer(*etat_, provenance_, enregistre_, robot());
    }
    recalculer();
}

void dessinTrajet::montrer_provisoire(const DocumentTrajet* provisoire) {
    if (provisoire == nullptr && !provisoire_)
        return;
    provisoire_ = provisoire == nullptr ? std::nullopt : std::optional(*provisoire);
    recalculer();
}

void dessinTrajet::rafraichir() {
    provisoire_.reset();
    recalculer();
}

void dessinTrajet::recalculer() {
    if (etat_ == nullptr)
        return;
    const DocumentTrajet& d = montre();
    essai_ = essayer(*etat_, provenance_, d, robot());
    table_.montrer(d, &essai_);
    const bool change = fantome_ && !enregistre_.memes_fiches(d);
    vue_.montrer(d, essai_, change ? &*fantome_ : nullptr);
    montrer_bilan();
}

void dessinTrajet::montrer_bilan() {
    bilan_.setText(texte_qt(verdict(essai_.analyse, robot())));
    QStringList avis{table_.modele().en_suspens()};
    const auto incomprises = montre().incomprises();
    for (const RefusLecture& r : montre().refus())
        if (std::ranges::binary_search(incomprises, r.ligne))
            avis << QString("Ligne %1 : %2. Elle est gardée telle quelle ; le simulateur s'y "
                            "arrêterait.")
                        .arg(r.ligne)
                        .arg(texte_qt(r.raison));
    if (projet() == seance_.etat().NomProjet && seance_.etat().TrajetModifie(robot()))
        avis << QString("Le trajet conduit à la console pour ce robot n'est pas enregistré : c'est "
                        "le fichier qui est montré.");
    if (const Selection& s = historique_.selection();
        s.size() == 1 && s.front() < montre().nombre())
        avis << table_.modele().remarque_de(s.front());
    avis.removeAll(QString());
    avis_.setText(avis.join("\n"));
    avis_.setVisible(!avis.isEmpty());
    comptes_.setText(QString("actions %1/%2").arg(montre().nb_actions()).arg(actions_max));
}
