#include "ui/generation/choix_fichier.h"

#include "ui/commun/boites.h"

#include <QDir>
#include <QGridLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <QStorageInfo>

#include <vector>

namespace fs = std::filesystem;

namespace {

constexpr int role_chemin = Qt::UserRole;

QString qt(const fs::path& chemin) {
    return QString::fromStdString(chemin.string());
}

fs::path chemin_de(const QString& texte) {
    return texte.toStdString();
}

bool est_un_vrai_volume(const QStorageInfo& volume) {
    if (!volume.isValid() || !volume.isReady() || volume.bytesTotal() <= 0)
        return false;
    const QByteArray sorte = volume.fileSystemType();
    return volume.isRoot() || (sorte != "tmpfs" && sorte != "devtmpfs" && sorte != "overlay" &&
                               sorte != "squashfs" && sorte != "efivarfs");
}

fs::path le_plus_proche(fs::path dossier) {
    std::error_code erreur;
    dossier = fs::absolute(dossier, erreur).lexically_normal();
    if (dossier.filename().empty() && dossier.has_relative_path())
        dossier = dossier.parent_path();
    while (!fs::is_directory(dossier, erreur) && dossier.has_relative_path())
        dossier = dossier.parent_path();
    return dossier;
}

} // namespace

ListeLecteurs::ListeLecteurs() {
    lister();
    connect(this, &QComboBox::currentIndexChanged, this, [this](int i) {
        if (au_choix && i >= 0)
            au_choix(chemin_de(itemData(i).toString()));
    });
}

void ListeLecteurs::showPopup() {
    lister();
    suivre(dossier_);
    QComboBox::showPopup();
}

void ListeLecteurs::lister() {
    const QSignalBlocker muet(this);
    clear();
    for (const QStorageInfo& volume : QStorageInfo::mountedVolumes()) {
        if (!est_un_vrai_volume(volume))
            continue;
        const QString nom = volume.isRoot() ? volume.rootPath() : volume.displayName();
        addItem(nom, volume.rootPath());
    }
    if (count() == 0)
        addItem("/", "/");
}

void ListeLecteurs::suivre(const fs::path& dossier) {
    const QSignalBlocker muet(this);
    dossier_ = dossier;
    int meilleur = 0;
    qsizetype longueur = -1;
    for (int i = 0; i < count(); ++i) {
        const QString racine = itemData(i).toString();
        if (qt(dossier).startsWith(racine) && racine.size() > longueur) {
            meilleur = i;
            longueur = racine.size();
        }
    }
    setCurrentIndex(meilleur);
}

ListeDossiers::ListeDossiers() {
    connect(this, &QListWidget::itemActivated, this, [this](QListWidgetItem* dossier) {
        aller(chemin_de(dossier->data(role_chemin).toString()));
    });
}

void ListeDossiers::ajouter(const fs::path& dossier, int profondeur) {
    const QString nom = dossier.has_filename() ? qt(dossier.filename()) : qt(dossier);
    auto* element = new QListWidgetItem(QString(qsizetype{2} * profondeur, ' ') + nom, this);
    element->setData(role_chemin, qt(dossier));
    element->setToolTip(qt(dossier));
}

void ListeDossiers::aller(const fs::path& chemin) {
    chemin_ = le_plus_proche(chemin);
    clear();
    std::vector<fs::path> au_dessus{chemin_};
    while (au_dessus.back().has_relative_path())
        au_dessus.push_back(au_dessus.back().parent_path());
    int profondeur = 0;
    for (auto i = au_dessus.rbegin(); i != au_dessus.rend(); ++i)
        ajouter(*i, profondeur++);
    QListWidgetItem* ici = item(count() - 1);
    QFont gras = font();
    gras.setBold(true);
    ici->setFont(gras);
    const QDir dossier(qt(chemin_));
    for (const QString& nom : dossier.entryList(QDir::Dirs | QDir::NoDotAndDotDot,
                                                QDir::Name | QDir::IgnoreCase | QDir::LocaleAware))
        ajouter(chemin_ / nom.toStdString(), profondeur);
    setCurrentItem(ici);
    scrollToItem(ici, QAbstractItemView::PositionAtTop);
    if (au_changement)
        au_changement();
}

void ListeFichiers::lister(const fs::path& dossier, const QString& motif) {
    dossier_ = dossier;
    motif_ = motif;
    clear();
    addItems(presents());
    marquer();
    setCurrentItem(nullptr);
}

void ListeFichiers::marquer() {
    if (!marque)
        return;
    QFont gras = font();
    gras.setBold(true);
    for (int i = 0; i < count(); ++i) {
        QListWidgetItem& ligne = *item(i);
        const QString texte = marque(dossier_ / ligne.text().toStdString());
        ligne.setFont(texte.isEmpty() ? font() : gras);
        ligne.setToolTip(texte);
        ligne.setData(Qt::AccessibleTextRole,
                      texte.isEmpty() ? QVariant() : QVariant(ligne.text() + " – " + texte));
    }
}

std::vector<fs::path> ListeFichiers::tous() const {
    std::vector<fs::path> fichiers;
    fichiers.reserve(static_cast<std::size_t>(count()));
    for (int i = 0; i < count(); ++i)
        fichiers.push_back(dossier_ / item(i)->text().toStdString());
    return fichiers;
}

// Name filters ignore case unless told otherwise.
QStringList ListeFichiers::presents() const {
    return QDir(qt(dossier_))
        .entryList({motif_ == "*.*" ? "*" : motif_}, QDir::Files,
                   QDir::Name | QDir::IgnoreCase | QDir::LocaleAware);
}

void ListeFichiers::actualiser() {
    const QStringList voulus = presents();
    QStringList montres;
    for (int i = 0; i < count(); ++i)
        montres << item(i)->text();
    if (montres == voulus)
        return marquer(); // what they hold may have changed
    const fs::path choix = choisi();
    const QSignalBlocker muet(this);
    clear();
    addItems(voulus);
    marquer();
    choisir(choix.filename().string());
}

fs::path ListeFichiers::choisi() const {
    const QListWidgetItem* choix = currentItem();
    return choix == nullptr || !choix->isSelected() ? fs::path{}
                                                    : dossier_ / choix->text().toStdString();
}

void ListeFichiers::choisir(const std::string& nom) {
    const auto trouves = findItems(QString::fromStdString(nom), Qt::MatchExactly);
    setCurrentItem(trouves.isEmpty() ? nullptr : trouves.front());
}

ChoixFichier::ChoixFichier(const Controles& c) {
    nommer(c);
    lecteurs.au_choix = [this](const fs::path& racine) { dossiers.aller(racine); };
    dossiers.au_changement = [this] { relister(); };
    QObject::connect(&motif, &QComboBox::currentIndexChanged, &motif, [this] { relister(); });
    QObject::connect(&fichiers, &QListWidget::itemSelectionChanged, &fichiers, [this] {
        veiller();
        if (au_changement)
            au_changement(false);
    });
    QObject::connect(&parcourir, &QPushButton::clicked, &parcourir, [this] { parcourir_Click(); });
}

void ChoixFichier::nommer(const Controles& c) {
    const auto nom = [&c](QWidget& controle, const char* objet, const char* bulle,
                          const char* genre) {
        controle.setObjectName(objet);
        controle.setToolTip(bulle);
        controle.setAccessibleName(QString("%1 %2").arg(QString(genre), QString(c.quoi)));
        // A list that unfolds is called by its present choice.
        controle.setAccessibleDescription(controle.accessibleName());
    };
    nom(lecteurs, c.lecteur, c.bulle_lecteur, "Lecteur");
    nom(dossiers, c.dossier, c.bulle_dossier, "Répertoire");
    nom(fichiers, c.fichier, c.bulle_fichier, "Fichier");
    nom(motif, c.motif, c.bulle_motif, "Extension");
    motif.addItems(c.motifs);
    parcourir.setText("Parcourir…");
    parcourir.setObjectName(QString("parcourir_%1").arg(QString(c.fichier)));
    parcourir.setToolTip("Choisit le fichier dans la fenêtre du système");
}

QLayout* ChoixFichier::disposer(const QString& legende) {
    auto* grille = new QGridLayout;
    grille->setSpacing(6);
    grille->addWidget(&lecteurs, 0, 0);
    grille->addWidget(&dossiers, 1, 0);
    grille->addWidget(&motif, 0, 1);
    grille->addWidget(&fichiers, 1, 1);
    grille->addWidget(&parcourir, 2, 1);
    if (!legende.isEmpty())
        grille->addWidget(new QLabel(legende), 2, 0);
    grille->setRowStretch(1, 1);
    for (QWidget* liste : std::initializer_list<QWidget*>{&dossiers, &fichiers})
        liste->setMinimumSize(170, 72);
    return grille;
}

void ChoixFichier::relister() {
    lecteurs.suivre(dossiers.chemin());
    fichiers.lister(dossiers.chemin(), motif.currentText());
    veiller();
    if (au_changement)
        au_changement(true);
}

void ChoixFichier::veiller() {
    std::vector<fs::path> chemins{dossiers.chemin()};
    if (const fs::path choix = fichiers.choisi(); !choix.empty())
        chemins.push_back(choix);
    veilleur_.suivre(std::move(chemins));
}

void ChoixFichier::actualiser() {
    fichiers.actualiser();
    if (au_changement)
        au_changement(false);
}

void ChoixFichier::parcourir_Click() {
    QStringList filtres;
    for (int i = 0; i < motif.count(); ++i)
        filtres << QString("Fichiers %1 (%1)").arg(motif.itemText(i));
    const QString choix = Boites(parcourir).choisir_fichier(
        "Choisir un fichier", qt(dossiers.chemin()), filtres.join(";;"));
    if (choix.isEmpty())
        return;
    const fs::path fichier = chemin_de(choix);
    dossiers.aller(fichier.parent_path());
    fichiers.choisir(fichier.filename().string());
    if (fichiers.choisi().empty()) { // the pattern hides it
        motif.setCurrentIndex(motif.count() - 1);
        fichiers.choisir(fichier.filename().string());
    }
}
