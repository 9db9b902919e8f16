#include "ui/principale/restauration.h"

#include "base/difference.h"
#include "base/fichiers.h"
#include "base/texte.h"
#include "seance/seance.h"
#include "ui/commun/boites.h"
#include "ui/commun/place.h"
#include "ui/generation/dialog.h"

#include <QKeyEvent>
#include <QSignalBlocker>

#include <algorithm>

namespace fs = std::filesystem;

namespace {

constexpr std::size_t maximum_de_lignes = 20'000; // nobody reads more
constexpr auto tous_les_fichiers = "Tous les fichiers";
constexpr int role_copie = Qt::UserRole;

QString legende(const Version& v) {
    return texte_qt(v.sorte + " – " + v.fichier);
}

QString taille_lisible(std::uintmax_t octets) {
    return octets < 10'000 ? QString("%1 octets").arg(octets) : QString("%1 Ko").arg(octets / 1024);
}

QString texte_compare(std::string_view present, std::string_view version) {
    std::string texte;
    std::size_t n = 0;
    for (const LigneComparee& ligne : comparer_lignes(present, version)) {
        if (++n > maximum_de_lignes) {
            texte.append("@ …\n");
            break;
        }
        texte.append(1, ligne.signe).append(" ").append(ligne.texte).append("\n");
    }
    return texte_qt(texte);
}

} // namespace

Restauration::Restauration(QWidget* parent, Seance& seance)
    : QWidget(parent, Qt::Window),
      seance_(seance),
      coloration_(apercu_),
      veilleur_([this] { lister(); }) {
    nommer();
    placer();
    connecter();
    retenir_place(*this);
}

void Restauration::connecter() {
    connect(&Fermer, &QPushButton::clicked, this, [this] { close(); });
    connect(&restaurer_, &QPushButton::clicked, this, [this] { restaurer_Click(); });
    connect(&filtre_, &QComboBox::currentIndexChanged, this, [this] { remplir_liste(); });
    connect(&liste_, &QTreeWidget::currentItemChanged, this, [this] { choisir(); });
}

// Whatever was kept or changed meanwhile.
void Restauration::showEvent(QShowEvent* evenement) {
    QWidget::showEvent(evenement);
    compte_rendu_.hide();
    lister();
}

void Restauration::keyPressEvent(QKeyEvent* evenement) {
    if (evenement->key() == Qt::Key_Escape)
        return Fermer.click();
    QWidget::keyPressEvent(evenement);
}

void Restauration::lister() {
    if (!isVisible())
        return;
    std::vector<fs::path> dossiers = dossiers_de_generation();
    dossiers.push_back(seance_.projet().dossier_application());
    versions_ = lister_versions(seance_.projet().dossier_configuration(), seance_.etat().NomProjet,
                                std::move(dossiers));
    remplir_filtre();
    remplir_liste();
}

void Restauration::remplir_filtre() {
    const QSignalBlocker muet(&filtre_);
    const QString choix = filtre_.currentText();
    QStringList fichiers;
    for (const Version& v : versions_)
        fichiers << legende(v);
    fichiers.removeDuplicates();
    fichiers.sort(Qt::CaseInsensitive);
    filtre_.clear();
    filtre_.addItem(tous_les_fichiers);
    filtre_.addItems(fichiers);
    filtre_.setCurrentIndex(std::max(0, filtre_.findText(choix)));
}

// The chosen version stays chosen, else the newest one is.
void Restauration::remplir_liste() {
    const QTreeWidgetItem* const ancienne = liste_.currentItem();
    const QVariant choix = ancienne == nullptr ? QVariant() : ancienne->data(0, role_copie);
    const QSignalBlocker muet(&liste_);
    liste_.clear();
    for (const Version& v : versions_) {
        if (filtre_.currentIndex() > 0 && filtre_.currentText() != legende(v))
            continue;
        auto* ligne =
            new QTreeWidgetItem(&liste_, {legende(v), texte_qt(v.date), taille_lisible(v.taille)});
        ligne->setData(0, role_copie, texte_qt(v.copie.string()));
        ligne->setToolTip(0, texte_qt(v.original.empty() ? v.fichier : v.original.string()));
        ligne->setTextAlignment(2, Qt::AlignRight | Qt::AlignVCenter);
        if (ligne->data(0, role_copie) == choix)
            liste_.setCurrentItem(ligne);
    }
    if (liste_.currentItem() == nullptr)
        liste_.setCurrentItem(liste_.topLevelItem(0));
    choisir();
}

const Version* Restauration::choisie() const {
    const QTreeWidgetItem* const ligne = liste_.currentItem();
    if (ligne == nullptr)
        return nullptr;
    const fs::path copie = ligne->data(0, role_copie).toString().toStdString();
    const auto trouvee = std::find_if(versions_.begin(), versions_.end(),
                                      [&](const Version& v) { return v.copie == copie; });
    return trouvee == versions_.end() ? nullptr : &*trouvee;
}

void Restauration::choisir() {
    restaurer_.setEnabled(false);
    apercu_.clear();
    const Version* const version = choisie();
    const fs::path configuration = seance_.projet().dossier_configuration();
    veilleur_.suivre({configuration, configuration / "Sauvegardes",
                      version == nullptr ? fs::path() : version->original});
    if (version != nullptr)
        montrer(*version);
    else
        titre_apercu_.setText("Aucune version n'est gardée pour ce projet : la première le sera "
                              "quand un de ses fichiers sera remplacé.");
}

void Restauration::montrer(const Version& version) {
    const std::string octets = lire_octets(version.copie);
    const bool connu = !version.original.empty();
    std::error_code erreur;
    const bool present = connu && fs::exists(version.original, erreur);
    const std::string actuel = present ? lire_octets(version.original) : std::string();
    const QString nom = texte_qt(version.fichier);
    if (!connu)
        titre_apercu_.setText("Contenu de cette version ; le dossier de " + nom +
                              " n'est pas connu et sera demandé :");
    else if (!present)
        titre_apercu_.setText("Contenu de cette version ; " + nom + " n'existe plus :");
    else if (actuel == octets)
        titre_apercu_.setText("Cette version est identique à " + nom + " :");
    else
        titre_apercu_.setText("Dans " + nom + ", ces lignes reviennent (+) ou disparaissent (-) :");
    const std::string texte = en_utf8(octets);
    apercu_.setPlainText(texte_compare(present ? en_utf8(actuel) : texte, texte));
    restaurer_.setEnabled(!present || actuel != octets);
}

// A program may have been anywhere. Empty when the user gives up.
fs::path Restauration::destination(const Version& version) {
    if (!version.original.empty())
        return version.original;
    const fs::path propose = seance_.projet().dossier_configuration() / version.fichier;
    return Boites(*this)
        .choisir_destination("Où remettre " + texte_qt(version.fichier) + " ?",
                             texte_qt(propose.string()))
        .toStdString();
}

void Restauration::restaurer_Click() {
    const Version* const choix = choisie();
    if (choix == nullptr)
        return;
    const Version version = *choix;
    const fs::path fichier = destination(version);
    if (fichier.empty())
        return;
    const fs::path gardee = restaurer_version(
        version.copie, fichier, seance_.projet().dossier_configuration() / "Sauvegardes");
    std::string texte = "Restauré : " + fichier.string() + ", version du " + version.date + ".";
    if (!gardee.empty())
        texte += "\nLa version remplacée est gardée : " + gardee.filename().string();
    compte_rendu_.setText(texte_qt(texte));
    compte_rendu_.show();
    lister();
}
