#include "ui/editeurs/liste_choix.h"

#include <algorithm>

ListeChoix::ListeChoix(QWidget* parent) : QListWidget(parent) {
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    connect(this, &QListWidget::itemSelectionChanged, this, [this] {
        if (!en_cours_)
            au_choix(choisis());
    });
}

Selection ListeChoix::choisis() const {
    Selection s;
    for (const QListWidgetItem* item : selectedItems())
        s.push_back(static_cast<std::size_t>(item->data(Qt::UserRole).toULongLong()));
    std::sort(s.begin(), s.end());
    return s;
}

void ListeChoix::montrer(const std::vector<Rangee>& rangees, const Selection& choisis) {
    en_cours_ = true;
    int rang = 0;
    for (const Rangee& r : rangees) {
        if (rang == count())
            addItem(QString());
        QListWidgetItem& rangee = *item(rang++);
        if (rangee.text() != r.texte) {
            rangee.setText(r.texte);
            if (r.image)
                rangee.setIcon(r.image());
        }
        rangee.setData(Qt::UserRole, static_cast<qulonglong>(r.indice));
        rangee.setSelected(std::binary_search(choisis.begin(), choisis.end(), r.indice));
        if (choisis.size() == 1 && choisis.front() == r.indice && currentItem() != &rangee) {
            setCurrentItem(&rangee, QItemSelectionModel::NoUpdate);
            scrollToItem(&rangee);
        }
    }
    while (count() > rang)
        delete takeItem(rang);
    en_cours_ = false;
}

// The fields of what was just chosen take room from the list: its row stays in sight.
void ListeChoix::resizeEvent(QResizeEvent* evenement) {
    QListWidget::resizeEvent(evenement);
    if (currentItem() != nullptr)
        scrollToItem(currentItem());
}
