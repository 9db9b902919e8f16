#include "ui/generation/fraicheur_entree.h"

#include "analyse/code_attendu.h"
#include "base/fichiers.h"
#include "record/origine.h"
#include "record/renouvellement.h"
#include "ui/commun/boites.h"
#include "ui/commun/garde.h"

#include <QHBoxLayout>

namespace fs = std::filesystem;

namespace {

// So many of the lines that go are named.
constexpr std::size_t lignes_montrees = 6;

std::string enumeration(const std::vector<std::string>& lignes) {
    std::string texte;
    for (std::size_t i = 0; i < std::min(lignes.size(), lignes_montrees); ++i)
        texte += (i == 0 ? "" : " ; ") + lignes[i];
    return lignes.size() > lignes_montrees ? texte + " ; …" : texte;
}

bool plus_ancien(const fs::path& fichier, const fs::path& que) {
    std::error_code absent;
    return fs::last_write_time(fichier, absent) < fs::last_write_time(que, absent);
}

} // namespace

FraicheurEntree::FraicheurEntree(Seance& seance,
                                 std::function<void(const QString&)> au_renouvellement)
    : seance_(seance), au_renouvellement_(std::move(au_renouvellement)) {
    nommer();
    placer();
    connect(&robot_, &QComboBox::activated, this, [this] {
        choisi_pour_ = entree_;
        comparer();
    });
    connect(&renouveler_, &QPushButton::clicked, this, [this] { renouveler(); });
}

void FraicheurEntree::nommer() {
    setObjectName("fraicheur");
    hide(); // until something is to be said
    avis_.setObjectName("avis_entree");
    avis_.setTextFormat(Qt::PlainText);
    avis_.setWordWrap(true);
    titre_robot_.setText("&Robot :");
    titre_robot_.setBuddy(&robot_);
    robot_.setObjectName("robot_de_l_entree");
    robot_.setAccessibleName("Robot dont le trajet donne le fichier de génération");
    for (int n = 1; n <= robots_des_fichiers; ++n)
        robot_.addItem(QString::number(n));
    renouveler_.setObjectName("renouveler_entree");
    renouveler_.setToolTip("Écrit ce que donne le trajet enregistré du robot ; la version "
                           "remplacée est gardée dans Sauvegardes.");
}

void FraicheurEntree::placer() {
    auto* rangee = new QHBoxLayout(this);
    rangee->setContentsMargins(0, 0, 0, 0);
    rangee->addWidget(&avis_, 1);
    rangee->addWidget(&titre_robot_);
    rangee->addWidget(&robot_);
    rangee->addWidget(&renouveler_);
}

// The project's own input, wherever a copy of it lies; when none is selected, the one that is still
// missing.
bool FraicheurEntree::concerne(const fs::path& entree) const {
    std::error_code erreur;
    return entree.empty() ? !fs::exists(seance_.projet().chemin(suite_de_l_entree), erreur)
                          : projet_du_fichier(entree) == seance_.etat().NomProjet;
}

void FraicheurEntree::montrer(const fs::path& entree) {
    setVisible(concerne(entree));
    if (!concerne(entree))
        return;
    entree_ = entree.empty() ? seance_.projet().chemin(suite_de_l_entree) : entree;
    if (choisi_pour_ != entree_)
        robot_.setCurrentIndex(entree.empty() ? 0 : robot_probable(lire_octets(entree)) - 1);
    comparer();
}

/// The one whose trajectory gives it, else the one whose moves are most like it.
int FraicheurEntree::robot_probable(const std::string& octets) const {
    const Etat& etat = seance_.etat();
    if (const int n = robot_de_l_entree(octets, etat, seance_.projet()); n != 0)
        return n;
    try {
        return std::max(1, robot_du_code(etat, relire_entree(octets, entree_)));
    } catch (const ErreurExecution&) { // a value that the robot could not read
        return 1;
    }
}

void FraicheurEntree::comparer() {
    const QString nom = texte_qt(entree_.filename().string());
    std::error_code erreur;
    const bool existe = fs::exists(entree_, erreur);
    renouveler_.setText(existe ? "Re&nouveler" : "&Préparer");
    renouveler_.setEnabled(false);
    try {
        voulu_ = entree_du_fichier(seance_.etat(), robot(), trajet()).texte;
        const QString ecart_trouve =
            existe ? ecart(lire_octets(entree_), robot()) : nom + " n'existe pas encore.";
        renouveler_.setEnabled(!ecart_trouve.isEmpty());
        avis_.setText(ecart_trouve.isEmpty()
                          ? QString("À jour : %1 est ce que donne le trajet du robot %2.")
                                .arg(nom)
                                .arg(robot())
                          : ecart_trouve);
    } catch (const ErreurExecution& raison) {
        avis_.setText(QString("Le trajet du robot %1 ne donne pas de fichier de génération : %2")
                          .arg(robot())
                          .arg(texte_qt(raison.what())));
    }
}

/// What tells the input from the trajectory, empty when nothing does. Dates only say which is the
/// older one: copying changes them.
QString FraicheurEntree::ecart(const std::string& octets, int robot) const {
    if (octets == voulu_)
        return {};
    const auto partent = lignes_perdues(octets, voulu_).size();
    const auto viennent = lignes_perdues(voulu_, octets).size();
    return QString(plus_ancien(entree_, trajet())
                       ? "%1 est plus ancien que le trajet du robot %2 et en diffère"
                       : "%1 n'est pas ce que donne le trajet du robot %2")
               .arg(texte_qt(entree_.filename().string()))
               .arg(robot) +
           QString(" (lignes en trop : %1, qui manquent : %2).").arg(partent).arg(viennent);
}

bool FraicheurEntree::peut_remplacer(const std::string& octets) {
    if (se_refait(octets, seance_.etat(), seance_.projet()))
        return true;
    const auto partent = lignes_perdues(octets, voulu_);
    return seance_.fenetres().question(
        entree_.filename().string() +
            " n'est ce que donne aucune version gardée d'un trajet : il a été changé à la main, ou "
            "enregistré avec d'autres mouvements. Doit-on le remplacer ?",
        (partent.empty() ? std::string("Ses lignes sont dans un autre ordre.")
                         : "N'y seraient plus : " + enumeration(partent) + ".") +
            " La version remplacée est gardée dans Sauvegardes.");
}

void FraicheurEntree::renouveler() {
    garde(seance_.fenetres(), [this] {
        std::error_code absent;
        if (fs::exists(entree_, absent) && !peut_remplacer(lire_octets(entree_)))
            return;
        const GenerationPreparee neuve = entree_du_fichier(seance_.etat(), robot(), trajet());
        const fs::path copie =
            sauvegarder_version(entree_, seance_.projet().dossier_configuration() / "Sauvegardes");
        remplacer_fichier(entree_, neuve.texte);
        seance_.annonces().annoncer(&Ecouteur::fichier_ecrit, entree_);
        std::string texte = "Écrit d'après le trajet du robot " + std::to_string(robot()) + " : " +
                            entree_.string();
        if (neuve.hors_du_match)
            texte += "\nLe match de 90 s finit avant ou avec une action de ce trajet.";
        if (!copie.empty())
            texte += "\nCopie de la version précédente : " + copie.string();
        au_renouvellement_(texte_qt(texte));
    });
}
