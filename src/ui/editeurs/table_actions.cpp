#include "ui/editeurs/table_actions.h"

#include "sim/actions.h"
#include "ui/commun/boites.h"

#include <QCompleter>
#include <QHeaderView>
#include <QLineEdit>
#include <QStyledItemDelegate>

#include <algorithm>

namespace {

QStringList mots_des_actions() {
    QStringList mots;
    for (const actions::Action& a : actions::table)
        if (!a.mot.empty())
            mots << texte_qt(a.mot);
    return mots;
}

} // namespace

/// One cell while it is typed in.
class TableActions::Saisie final : public QStyledItemDelegate {
public:
    explicit Saisie(TableActions& table) : QStyledItemDelegate(&table), table_(table) {
        connect(this, &QAbstractItemDelegate::closeEditor, this, [this] {
            table_.au_conseil({});
            table_.fin_de_frappe();
        });
    }

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem&,
                          const QModelIndex& index) const override {
        auto* ligne = new QLineEdit(parent);
        ligne->setFrame(false);
        ligne->setAccessibleName(
            table_.modele_.headerData(index.column(), Qt::Horizontal, Qt::DisplayRole).toString());
        if (index.column() == ModeleActions::action) {
            auto* propositions = new QCompleter(mots_des_actions(), ligne);
            propositions->setCaseSensitivity(Qt::CaseInsensitive);
            propositions->setFilterMode(Qt::MatchContains);
            ligne->setCompleter(propositions);
        }
        conseiller(*ligne, table_.modele_.limites_de(index));
        const QPersistentModelIndex ou = index;
        connect(ligne, &QLineEdit::textChanged, ligne,
                [this, ligne, ou](const QString& texte) { a_la_frappe(*ligne, ou, texte); });
        return ligne;
    }

    // What is being typed stays as it is, the cursor too, while the trajectory follows.
    void setEditorData(QWidget* editeur, const QModelIndex& index) const override {
        if (!static_cast<QLineEdit*>(editeur)->isModified())
            QStyledItemDelegate::setEditorData(editeur, index);
    }

    void setModelData(QWidget* editeur, QAbstractItemModel* modele,
                      const QModelIndex& index) const override {
        modele->setData(index, static_cast<QLineEdit*>(editeur)->text(), Qt::EditRole);
    }

private:
    void conseiller(QLineEdit& ligne, const QString& conseil) const {
        ligne.setToolTip(conseil);
        table_.au_conseil(conseil);
    }
    void a_la_frappe(QLineEdit& ligne, const QModelIndex& ou, const QString& texte) const {
        const ModeleActions::Lecture lue = table_.modele_.lire(ou, texte);
        QPalette couleurs = table_.palette();
        if (!lue.fiche)
            couleurs.setColor(QPalette::Text, table_.modele_.alerte());
        ligne.setPalette(couleurs);
        conseiller(ligne, lue.fiche ? table_.modele_.limites_de(ou) : lue.refus);
        if (!lue.fiche)
            return;
        DocumentTrajet essai = table_.h_.doc();
        essai.remplacer(static_cast<std::size_t>(ou.row()), *lue.fiche);
        table_.a_la_frappe(essai);
    }

    TableActions& table_;
};

TableActions::TableActions(Historique<DocumentTrajet>& historique, QWidget* parent)
    : QTableView(parent), h_(historique), modele_(historique, this) {
    nommer();
    setModel(&modele_);
    setItemDelegate(new Saisie(*this));
    elargir();
    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
        if (!en_cours_)
            au_choix(choisis());
    });
}

void TableActions::nommer() {
    setObjectName("tableActions");
    setAccessibleName("Actions du trajet");
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed |
                    QAbstractItemView::AnyKeyPressed);
    setAlternatingRowColors(true);
    setWordWrap(false);
    setShowGrid(false);
    setTabKeyNavigation(true);
    verticalHeader()->hide();
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 8);
    horizontalHeader()->setStretchLastSection(true);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
}

// As wide as what they usually hold, however little of it is there.
void TableActions::elargir() {
    constexpr const char* usuels[] = {
        "000000",    "Balise gauche", "4000 (40,00 s)", "rayon 100 cm",
        "cap -179°", "90,00 s",       "90,00 s",        "-100,0 ; 100,0 ; 359,9°"};
    int colonne = 0;
    for (const char* texte : usuels) {
        setColumnWidth(colonne, std::max(fontMetrics().horizontalAdvance(texte) + 12,
                                         horizontalHeader()->sectionSizeHint(colonne)));
        ++colonne;
    }
}

void TableActions::montrer(const DocumentTrajet& montre, const EssaiTrajet* essai) {
    en_cours_ = true;
    modele_.montrer(montre, essai);
    if (choisis() != h_.selection())
        choisir(h_.selection());
    en_cours_ = false;
}

void TableActions::choisir(const Selection& selection) {
    QItemSelection lignes;
    for (const std::size_t i : selection) {
        const auto rang = static_cast<int>(i);
        if (rang < modele_.rowCount())
            lignes.select(modele_.index(rang, 0), modele_.index(rang, ModeleActions::remarque));
    }
    selectionModel()->select(lignes, QItemSelectionModel::ClearAndSelect);
    if (selection.empty() || static_cast<int>(selection.front()) >= modele_.rowCount())
        return;
    const int colonne = currentIndex().isValid() ? currentIndex().column() : ModeleActions::action;
    const QModelIndex premiere = modele_.index(static_cast<int>(selection.front()), colonne);
    selectionModel()->setCurrentIndex(premiere, QItemSelectionModel::NoUpdate);
    scrollTo(premiere);
}

Selection TableActions::choisis() const {
    Selection s;
    for (const QModelIndex& ligne : selectionModel()->selectedRows())
        s.push_back(static_cast<std::size_t>(ligne.row()));
    std::sort(s.begin(), s.end());
    return s;
}

void TableActions::finir_la_saisie() {
    auto* const ligne = qobject_cast<QLineEdit*>(focusWidget());
    if (state() != EditingState || ligne == nullptr || ligne->parentWidget() != viewport())
        return;
    commitData(ligne);
    closeEditor(ligne, QAbstractItemDelegate::NoHint);
}

void TableActions::taper_l_action(std::size_t i) {
    const QModelIndex ou = modele_.index(static_cast<int>(i), ModeleActions::action);
    setFocus();
    setCurrentIndex(ou);
    edit(ou);
}
