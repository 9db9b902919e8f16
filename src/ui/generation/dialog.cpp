#include "ui/generation/dialog.h"

#include "record/origine.h"
#include "seance/seance.h"
#include "ui/commun/boites.h"
#include "ui/commun/bureau.h"
#include "ui/commun/garde.h"
#include "ui/commun/place.h"
#include "ui/generation/ouv_generation.h"
#include "ui/generation/visualiser.h"

#include <QCloseEvent>
#include <QSettings>

namespace {

constexpr auto cle_depart = "generation/depart";
constexpr auto cle_entree = "generation/entree";
constexpr auto cle_cible = "generation/cible";

constexpr std::string_view rappel_options =
    "La fenêtre des options est masquée : « Fermer », dans la fenêtre de génération, la fait "
    "revenir ; un clic sur l'aire de jeu aussi.";

} // namespace

std::vector<std::filesystem::path> dossiers_de_generation() {
    const QSettings reglages;
    std::vector<std::filesystem::path> dossiers;
    for (const char* cle : {cle_depart, cle_cible, cle_entree}) {
        if (const QString dossier = reglages.value(cle).toString(); !dossier.isEmpty())
            dossiers.emplace_back(dossier.toStdString());
    }
    return dossiers;
}

Dialog::Dialog(QWidget* parent, Seance& seance, Bureau& bureau)
    : QWidget(parent, Qt::Window),
      seance_(seance),
      bureau_(bureau),
      depart_({"Drive1",
               "Dir1",
               "File1",
               "Combo1",
               "Lecteur où se trouve le fichier de départ (\"codé à la main\")",
               "Répertoire où se trouve le fichier de départ (\"codé à la main\")",
               "Sélectionner fichier de départ (\"codé à la main\")",
               "Extention du fichier de départ (\"codé à la main\")",
               "du programme de départ",
               {"*.bas", "*.*"}}),
      entree_({"Drive",
               "Dir",
               "File",
               "Combo",
               "Lecteur du fichier où se trouve le code de génération interne au simulateur",
               "Répertoire du fichier où se trouve le code de génération interne au simulateur",
               "Sélectionner le fichier où se trouve le code de génération interne au simulateur",
               "Extention de fichier où se trouve le code de génération interne au simulateur",
               "de la trajectoire enregistrée",
               {"*.ini", "*.*"}}),
      coloration_(apercu_),
      rejeu_(seance,
             [this] {
                 if (isVisible())
                     repos_.start();
             }),
      fraicheur_(seance, [this](const QString& texte) { entree_renouvelee(texte); }) {
    nommer();
    placer();
    connecter();
    retenir_place(*this);
    Form_Load();
}

Dialog::~Dialog() = default;

void Dialog::Form_Load() {
    fichier_a_generer.clear();
    const QSettings reglages;
    const auto dernier = [&](const char* cle) {
        const std::filesystem::path dossier = reglages.value(cle).toString().toStdString();
        std::error_code erreur;
        return std::filesystem::is_directory(dossier, erreur)
                   ? dossier
                   : seance_.projet().dossier_configuration();
    };
    depart_.dossiers.aller(dernier(cle_depart));
    entree_.dossiers.aller(dernier(cle_entree));
}

void Dialog::partir_de(const std::filesystem::path& programme) {
    depart_.dossiers.aller(programme.parent_path());
    depart_.fichiers.choisir(programme.filename().string());
}

void Dialog::retenir_dossiers() const {
    QSettings reglages;
    reglages.setValue(cle_depart, texte_qt(depart_.dossiers.chemin().string()));
    reglages.setValue(cle_entree, texte_qt(entree_.dossiers.chemin().string()));
    const std::filesystem::path cible = fichier_a_generer.text().toStdString();
    if (cible.has_parent_path())
        reglages.setValue(cle_cible, texte_qt(cible.parent_path().string()));
}

Demande Dialog::demande() const {
    return {.depart = depart_.fichier(),
            .entree = entree_.fichier(),
            .cible = fichier_a_generer.text().toStdString(),
            .fonction = Txt_NomFctGen.text().toStdString(),
            .menu = menu.isChecked(),
            .CheminCourant = CheminCourant_};
}

void Dialog::generer_Click() {
    compte_rendu_.clear(); // what it says is of the former attempt
    garde(seance_.fenetres(), [this] { generer_et_montrer(); });
    if (compte_rendu_.text().isEmpty())
        compte_rendu_.setText("Rien n'a été généré. " + texte_qt(rappel_options));
    compte_rendu_.show();
    // Whatever happened: only the result and this window matter now.
    bureau_.cacher_options_et_console();
    repos_.start();
}

void Dialog::generer_et_montrer() {
    const Demande d = demande();
    if (const Refus refus = verifier(d))
        return seance_.fenetres().message(refus.message, refus.conseil +
                                                             (refus.conseil.empty() ? "" : "\n\n") +
                                                             std::string(rappel_options));
    retenir_dossiers();
    const auto dossier = seance_.projet().dossier_configuration() / "Sauvegardes";
    try {
        dire_ce_qui_a_change("Fichier généré : ", ::generer(d, dossier, [this](std::string_view q) {
                                 return seance_.fenetres().question(q);
                             }));
    } catch (const GenerationInterrompue& arret) {
        dire_ce_qui_a_change("Génération interrompue, fichier incomplet : ", arret.faite);
        throw;
    }
    if (seance_.fenetres().question(question_voir))
        visualiser(true);
}

// A hand-written program was changed: where its former version is.
void Dialog::dire_ce_qui_a_change(std::string texte, const Generation& generation) {
    texte += fichier_a_generer.text().toStdString();
    if (generation.depart_reecrit)
        texte += "\nLe fichier de départ a été modifié.";
    for (const auto& copie : generation.sauvegardes)
        texte += "\nCopie de la version précédente : " + copie.string();
    compte_rendu_.setText(texte_qt(texte));
}

void Dialog::visualiser(bool modal) {
    visualiseur_ = std::make_unique<Visualiser>(parentWidget(), seance_.fenetres(), bureau_,
                                                fichier_a_generer.text().toStdString());
    if (modal)
        visualiseur_->setWindowModality(Qt::ApplicationModal);
    visualiseur_->Form_Load();
    visualiseur_->show();
}

void Dialog::rep_defaut_Click(bool coche) {
    fichier_a_generer.setText(
        coche ? texte_qt(cible_par_defaut(seance_.projet().dossier_configuration(),
                                          seance_.etat().NomProjet)
                             .string())
              : QString());
}

void Dialog::cible_choisie(const std::string& chemin) {
    fichier_a_generer.setText(texte_qt(chemin));
    bureau_.cacher_options_et_console();
    parentWidget()->show();
    bureau_.montrer_options();
    show();
    raise();
    activateWindow();
}

void Dialog::Choisir_Click() {
    if (!ouv_generation_)
        ouv_generation_ = std::make_unique<OuvGeneration>(
            parentWidget(), seance_.projet().dossier_application(),
            [this](const std::string& chemin) { cible_choisie(chemin); });
    ouv_generation_->show();
    ouv_generation_->raise();
    ouv_generation_->activateWindow();
}

void Dialog::visu_gene_Click() {
    visualiser(false);
}

void Dialog::Fermer_Click() {
    retenir_dossiers();
    hide();
    bureau_.montrer_options();
}

void Dialog::closeEvent(QCloseEvent*) {
    if (!seance_.terminee())
        Fermer_Click();
}

void Dialog::showEvent(QShowEvent* evenement) {
    QWidget::showEvent(evenement);
    if (entree_.fichier().empty() || projet_preselectionne_ != seance_.etat().NomProjet)
        preselectionner();
    repos_.start(); // what the trajectories and settings became meanwhile
}

void Dialog::connecter() {
    const auto relier = [this](QPushButton& bouton, void (Dialog::*procedure)()) {
        connect(&bouton, &QPushButton::clicked, this, procedure);
    };
    relier(generer, &Dialog::generer_Click);
    relier(Choisir, &Dialog::Choisir_Click);
    relier(visu_gene, &Dialog::visu_gene_Click);
    relier(Fermer, &Dialog::Fermer_Click);
    connect(&restaurer_, &QPushButton::clicked, this, [this] { bureau_.montrer_restauration(); });
    connect(&rep_defaut, &QCheckBox::toggled, this,
            [this](bool coche) { rep_defaut_Click(coche); });

    entree_.fichiers.marque = [](const std::filesystem::path& fichier) {
        const auto projet = projet_du_fichier(fichier);
        return projet ? "Fichier de génération du projet " + texte_qt(*projet) : QString();
    };
    repos_.setSingleShot(true);
    repos_.setInterval(250);
    connect(&repos_, &QTimer::timeout, this, [this] { rafraichir_apercu(); });
    const auto attendre = [this] { repos_.start(); };
    for (ChoixFichier* choix : {&depart_, &entree_}) {
        choix->au_changement = [this, choix](bool dossier) {
            if (dossier)
                CheminCourant_ = choix->dossiers.chemin().string();
            if (dossier && choix == &entree_)
                preselectionner();
            repos_.start();
        };
    }
    connect(&Txt_NomFctGen, &QLineEdit::textChanged, this, attendre);
    connect(&menu, &QCheckBox::toggled, this, attendre);
}
