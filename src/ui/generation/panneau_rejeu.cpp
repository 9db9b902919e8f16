#include "ui/generation/panneau_rejeu.h"

#include "analyse/code_attendu.h"
#include "base/fichiers.h"
#include "record/origine.h"
#include "ui/commun/boites.h"
#include "ui/commun/virages_croises.h"

#include <QHBoxLayout>
#include <QSignalBlocker>
#include <QVBoxLayout>

PanneauRejeu::PanneauRejeu(Seance& seance, std::function<void()> a_refaire)
    : seance_(seance), a_refaire_(std::move(a_refaire)) {
    nommer();
    placer();
    connect(&croises_, &QCheckBox::toggled, this, [this](bool croises) {
        retenir_virages_croises(configuration(), seance_.etat().NomProjet, croises);
        seance_.annonces().annoncer(&Ecouteur::reglages_changes); // the findings depend on it too
    });
    ecouter(seance.annonces());
}

void PanneauRejeu::nommer() {
    setObjectName("rejeu");
    setAccessibleName("Ce que fera le code");
    croises_.setObjectName("virages_croises");
    croises_.setText("Virages croisés");
    croises_.setToolTip("Dans le robot, Action_Droite tourne à gauche et Action_Gauche à droite, "
                        "comme le générateur le suppose. Retenu pour ce projet.");
    texte_.setObjectName("texte_rejeu");
    texte_.setAccessibleName("Écran et code comparés");
}

void PanneauRejeu::placer() {
    // The preview beside it decides on the height: the window has none to spare.
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Ignored);
    texte_.setReadOnly(true);
    texte_.setFrameShape(QFrame::NoFrame);
    texte_.setMinimumSize(150, 40);
    texte_.viewport()->setAutoFillBackground(false);
    texte_.setTabChangesFocus(true);
    auto* colonne = new QVBoxLayout;
    colonne->addWidget(&texte_, 1);
    colonne->addWidget(&croises_);
    auto* rangee = new QHBoxLayout(this);
    rangee->setContentsMargins(0, 0, 0, 0);
    rangee->addWidget(&vue_, 2);
    rangee->addLayout(colonne, 3);
}

void PanneauRejeu::montrer(const std::filesystem::path& entree) {
    {
        const QSignalBlocker silence(croises_);
        croises_.setChecked(virages_croises(configuration(), seance_.etat().NomProjet));
    }
    vue_.vider();
    try {
        comparer(entree);
    } catch (const ErreurExecution& erreur) {
        texte_.setPlainText(texte_qt("Rien à comparer : " + std::string(erreur.what()) + "."));
    }
}

void PanneauRejeu::comparer(const std::filesystem::path& entree) {
    if (entree.empty())
        return texte_.setPlainText("Ce que fera le code : choisissez une trajectoire.");
    const std::string& charge = seance_.etat().NomProjet;
    if (projet_du_fichier(entree).value_or(charge) != charge)
        return texte_.setPlainText("Rien à comparer : ce fichier est d'un autre projet.");
    auto etat = std::make_unique<Etat>(seance_.etat());
    const CodeDuRobot code{relire_entree(lire_octets(entree), entree), {}, croises_.isChecked()};
    const int robot = robot_du_code(*etat, code.relu);
    if (robot == 0)
        return texte_.setPlainText(
            "Rien à comparer : aucun trajet joué ne contient ces mouvements.");
    MatchCalcule ecran = calculer_match(*std::make_unique<Etat>(*etat));
    EcartDeCode ecart = comparer_au_code(*etat, ecran, robot, code);
    ecrire(phrases(ecart, code.relu));
    vue_.montrer(std::move(etat), std::move(ecran), std::move(ecart));
}

// The first sentence is what counts; coordinates stay on one line.
void PanneauRejeu::ecrire(const std::vector<std::string>& phrases) {
    QStringList lignes;
    for (const std::string& phrase : phrases)
        lignes << texte_qt(phrase)
                          .toHtmlEscaped()
                          .replace(" ; ", "&nbsp;;&nbsp;")
                          .replace(" cm", "&nbsp;cm")
                          .replace("cap ", "cap&nbsp;") +
                      ".";
    lignes.front() = "<b>" + lignes.front() + "</b>";
    texte_.clear();
    texte_.appendHtml(lignes.join("<br>"));
    texte_.moveCursor(QTextCursor::Start);
}
