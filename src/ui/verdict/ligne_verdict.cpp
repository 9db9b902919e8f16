#include "ui/verdict/ligne_verdict.h"

#include "ui/commun/boites.h"

#include <QKeyEvent>
#include <QPainter>
#include <QStyleOptionFocusRect>

#include <algorithm>
#include <array>

namespace {

constexpr int marge = 6; ///< logical pixels, as the read-outs have them
constexpr int marge_verticale = 3;
constexpr const char* separation = " · ";

} // namespace

LigneVerdict::LigneVerdict(QWidget* parent) : QAbstractButton(parent) {
    setObjectName("verdict");
    setAccessibleName("Verdict du match");
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
    setAutoFillBackground(true);
    setAccessibleDescription("Ouvre la liste des constats");
}

void LigneVerdict::ecrire(const TexteVerdict& texte) {
    texte_ = texte;
    const QString entier = texte_qt(texte.entier());
    setText(entier);
    setAccessibleName("Verdict du match : " + entier);
    setAccessibleDescription(texte_qt(texte.projet) + ". Ouvre la liste des constats");
    setToolTip(texte_qt(texte.projet) + "\n" + entier + "\nClic ou F7 : la liste des constats");
    update();
}

QFont LigneVerdict::police(bool lien) const {
    QFont f = font();
    f.setBold(lien);
    f.setUnderline(lien && underMouse());
    return f;
}

int LigneVerdict::largeur(const Morceau& morceau) const {
    if (morceau.texte.isEmpty())
        return 0; // the bold font is not loaded before it is needed
    return QFontMetrics(police(morceau.lien)).horizontalAdvance(morceau.texte);
}

int LigneVerdict::largeur_utile() const {
    return largeur({texte_qt(texte_.constats), true}) + 2 * marge;
}

// Breaks between parts only.
std::vector<LigneVerdict::Rangee> LigneVerdict::ranger(const std::vector<Morceau>& morceaux) const {
    const int place = width() - 2 * marge;
    const int entre = fontMetrics().horizontalAdvance(separation);
    std::vector<Rangee> rangees;
    int occupe = 0;
    for (const Morceau& m : morceaux) {
        if (m.texte.isEmpty())
            continue;
        const int l = largeur(m);
        if (rangees.empty() || occupe + entre + l > place) {
            rangees.emplace_back();
            occupe = l;
        } else {
            occupe += entre + l;
        }
        rangees.back().push_back(m);
    }
    return rangees;
}

std::size_t LigneVerdict::rangees_possibles() const {
    return static_cast<std::size_t>(
        std::max(0, (height() - 2 * marge_verticale) / fontMetrics().height()));
}

// The project above its verdict, where there is a row for it and no read-out beside it.
std::vector<LigneVerdict::Rangee> LigneVerdict::rangees() const {
    std::vector<Rangee> toutes = rangees_du_verdict();
    if (x() == 0 && toutes.size() < rangees_possibles())
        toutes.insert(toutes.begin(),
                      {{fontMetrics().elidedText(texte_qt(texte_.projet), Qt::ElideRight,
                                                 width() - 2 * marge)}});
    return toutes;
}

std::vector<LigneVerdict::Rangee> LigneVerdict::rangees_du_verdict() const {
    const Morceau fin{texte_qt(texte_.fin)};
    const Morceau marge_restante{texte_qt(texte_.marge)};
    const Morceau arrivee{texte_qt(texte_.arrivee)};
    const Morceau constats{texte_qt(texte_.constats), true};
    const std::size_t possibles = std::clamp<std::size_t>(rangees_possibles(), 1, 2);
    const auto tient = [&](const std::vector<Rangee>& rangees) {
        return rangees.size() <= possibles && std::ranges::all_of(rangees, [&](const Rangee& r) {
                   return r.size() > 1 || largeur(r.front()) <= width() - 2 * marge;
               });
    };
    for (const auto& choix : std::array<std::vector<Morceau>, 3>{
             {{fin, marge_restante, arrivee, constats},
              {fin, marge_restante, constats},
              {texte_.marge.empty() ? fin : marge_restante, constats}}}) {
        if (auto r = ranger(choix); tient(r))
            return r;
    }
    return {{constats}};
}

void LigneVerdict::peindre_rangee(QPainter& peintre, const Rangee& rangee, int y) const {
    int x = marge;
    for (const Morceau& m : rangee) {
        if (x > marge) {
            peintre.setFont(police(false));
            peintre.setPen(palette().color(QPalette::WindowText));
            peintre.drawText(x, y, separation);
            x += fontMetrics().horizontalAdvance(separation);
        }
        peintre.setFont(police(m.lien));
        peintre.setPen(palette().color(m.lien ? QPalette::Link : QPalette::WindowText));
        peintre.drawText(x, y, m.texte);
        x += largeur(m);
    }
}

void LigneVerdict::paintEvent(QPaintEvent*) {
    QPainter peintre(this);
    const std::vector<Rangee> toutes = rangees();
    const int h = fontMetrics().height();
    const int hauteur = static_cast<int>(toutes.size()) * h;
    const int haut = std::max(marge_verticale, (height() - hauteur) / 2);
    int y = haut + fontMetrics().ascent();
    for (const Rangee& rangee : toutes) {
        peindre_rangee(peintre, rangee, y);
        y += h;
    }
    if (!hasFocus())
        return;
    QStyleOptionFocusRect focus;
    focus.initFrom(this);
    focus.rect = QRect(1, haut - 1, width() - 2, hauteur + 2);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &peintre, this);
}

void LigneVerdict::enterEvent(QEnterEvent* evenement) {
    QAbstractButton::enterEvent(evenement);
    update();
}

void LigneVerdict::leaveEvent(QEvent* evenement) {
    QAbstractButton::leaveEvent(evenement);
    update();
}

void LigneVerdict::keyPressEvent(QKeyEvent* evenement) {
    if (evenement->key() == Qt::Key_Return || evenement->key() == Qt::Key_Enter)
        click();
    else
        QAbstractButton::keyPressEvent(evenement);
}
