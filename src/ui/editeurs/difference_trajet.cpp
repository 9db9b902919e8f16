#include "ui/editeurs/difference_trajet.h"

#include "edition/difference.h"
#include "ui/commun/boites.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QSplitter>
#include <QVBoxLayout>

#include <algorithm>

namespace {

struct Aspect {
    const char *signe, *mot;
};

Aspect aspect(ActionComparee::Sorte sorte) {
    switch (sorte) {
    case ActionComparee::Sorte::changee:
        return {"≠", "changée"};
    case ActionComparee::Sorte::retiree:
        return {"−", "retirée"};
    case ActionComparee::Sorte::ajoutee:
        return {"+", "ajoutée"};
    default:
        return {"=", "égale"};
    }
}

QString ligne(const DocumentTrajet& trajet, std::optional<std::size_t> i) {
    return i ? texte_qt(en_utf8(trajet.texte_de(*i))).trimmed() : QString();
}

} // namespace

DifferenceTrajet::DifferenceTrajet(QWidget* parent, const Sujet& sujet, std::vector<Source> sources)
    : QDialog(parent),
      sujet_(sujet),
      sources_(std::move(sources)),
      essai_(essayer(sujet.etat, sujet.provenance, sujet.trajet, sujet.robot)),
      vue_(historique_, this) {
    setObjectName("differenceTrajet");
    setWindowTitle("Comparer le trajet");
    for (const Source& source : sources_)
        sources_combo_.addItem(source.nom);
    placer();
    connect(&sources_combo_, &QComboBox::currentIndexChanged, this, [this] { comparer(); });
    connect(&reprendre_, &QPushButton::clicked, this, [this] { accept(); });
    connect(&fermer_, &QPushButton::clicked, this, [this] { reject(); });
    comparer();
}

void DifferenceTrajet::placer() {
    titre_.setText("&Comparer avec :");
    titre_.setBuddy(&sources_combo_);
    sources_combo_.setObjectName("comparerAvec");
    sources_combo_.setAccessibleName("Comparer avec");
    liste_.setObjectName("listeDifferences");
    liste_.setAccessibleName("Différences, action par action");
    liste_.setHeaderLabels({"", "L'autre", "Ce trajet"});
    liste_.setRootIsDecorated(false);
    liste_.setUniformRowHeights(true);
    vue_.setAttribute(Qt::WA_TransparentForMouseEvents);
    vue_.setFocusPolicy(Qt::NoFocus);
    vue_.setToolTip({});
    bilan_.setObjectName("bilanDifferences");
    bilan_.setWordWrap(true);
    reprendre_.setObjectName("reprendreVersion");
    reprendre_.setText("&Reprendre l'autre");
    reprendre_.setToolTip("L'autre prend la place de ce trajet, en un pas qui s'annule.");
    reprendre_.setAutoDefault(false);
    fermer_.setObjectName("fermerDifferences");
    fermer_.setText("Fermer");
    fermer_.setDefault(true);
    auto* tete = new QHBoxLayout;
    tete->addWidget(&titre_);
    tete->addWidget(&sources_combo_, 1);
    auto* partage = new QSplitter;
    partage->addWidget(&liste_);
    partage->addWidget(&vue_);
    partage->setSizes({520, 360});
    auto* pied = new QHBoxLayout;
    pied->addWidget(&bilan_, 1);
    pied->addWidget(&reprendre_);
    pied->addWidget(&fermer_);
    auto* lignes = new QVBoxLayout(this);
    lignes->addLayout(tete);
    lignes->addWidget(partage, 1);
    lignes->addLayout(pied);
    resize(900, 560);
}

void DifferenceTrajet::comparer() {
    liste_.clear();
    reprendre_.setEnabled(false);
    vue_.regler_projet(sujet_.etat, sujet_.robot);
    try {
        const auto rang = static_cast<std::size_t>(std::max(0, sources_combo_.currentIndex()));
        autre_ = DocumentTrajet::depuis(sources_.at(rang).octets());
        essai_autre_ = essayer(sujet_.etat, sujet_.provenance, autre_, sujet_.robot);
        vue_.montrer(sujet_.trajet, essai_, &essai_autre_);
        remplir();
    } catch (const ErreurExecution& erreur) {
        bilan_.setText(texte_qt(erreur.what()));
    }
}

void DifferenceTrajet::remplir() {
    int differences = 0;
    for (const ActionComparee& c : comparer_trajets(autre_, sujet_.trajet)) {
        const Aspect a = aspect(c.sorte);
        auto* rangee = new QTreeWidgetItem(
            &liste_, {a.signe, ligne(autre_, c.avant), ligne(sujet_.trajet, c.apres)});
        rangee->setData(0, Qt::AccessibleTextRole, a.mot);
        rangee->setToolTip(0, a.mot);
        if (c.sorte == ActionComparee::Sorte::egale)
            continue;
        ++differences;
        QFont gras = liste_.font();
        gras.setBold(true);
        for (int colonne = 0; colonne < 3; ++colonne)
            rangee->setFont(colonne, gras);
    }
    for (int colonne = 0; colonne < 2; ++colonne)
        liste_.resizeColumnToContents(colonne);
    const QString nombre = differences == 1 ? QString("Une ligne diffère.")
                                            : QString("%1 lignes diffèrent.").arg(differences);
    bilan_.setText(differences == 0 ? QString("Les mêmes actions.")
                                    : nombre + " Trait plein : ce trajet ; pointillé : l'autre.");
    reprendre_.setEnabled(autre_.ecrire() != sujet_.trajet.ecrire());
}
