#include "ui/commun/editeur_code.h"

#include "codegen/lexique.h"
#include "ui/commun/lisible.h"

#include <QFontDatabase>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QRegularExpression>
#include <QTextBlock>

namespace {

class Marge final : public QWidget {
public:
    explicit Marge(VueCode& vue) : QWidget(&vue), vue_(vue) {}

protected:
    void paintEvent(QPaintEvent* evenement) override { vue_.peindre_numeros(evenement); }

private:
    VueCode& vue_;
};

QTextCharFormat couleur(const QPalette& palette, const char* clair, const char* sombre) {
    QTextCharFormat format;
    format.setForeground(
        lisible(QColor(est_sombre(palette) ? sombre : clair), {palette.color(QPalette::Base)}));
    return format;
}

} // namespace

Coloration::Coloration(QPlainTextEdit& vue) : QSyntaxHighlighter(vue.document()) {
    vue.installEventFilter(this);
}

bool Coloration::eventFilter(QObject* vue, QEvent* evenement) {
    if (evenement->type() == QEvent::PaletteChange) {
        choisir_les_couleurs(static_cast<QWidget*>(vue)->palette());
        rehighlight();
    }
    return false;
}

ColorationPicbasic::ColorationPicbasic(QPlainTextEdit& vue) : Coloration(vue) {
    choisir_les_couleurs(vue.palette());
}

void ColorationPicbasic::choisir_les_couleurs(const QPalette& palette) {
    commentaire_ = couleur(palette, "#3c7a3c", "#8fce8f");
    etiquette_ = couleur(palette, "#8a2be2", "#d3a6ff");
    mot_ = couleur(palette, "#0047ab", "#7fb8ff");
    nombre_ = couleur(palette, "#b34700", "#ffb070");
    etiquette_.setFontWeight(QFont::Bold);
    mot_.setFontWeight(QFont::DemiBold);
}

void ColorationPicbasic::colorer(const QString& texte, const QRegularExpression& motif,
                                 const QTextCharFormat& format) {
    auto trouves = motif.globalMatch(texte);
    while (trouves.hasNext()) {
        const auto trouve = trouves.next();
        setFormat(int(trouve.capturedStart()), int(trouve.capturedLength()), format);
    }
}

void ColorationPicbasic::highlightBlock(const QString& texte) {
    static const QRegularExpression nombre(R"(\b[0-9]+\b)");
    static const QRegularExpression mot(
        R"(\b(gosub|goto|return|if|elseif|else|then|endif|for|to|next|while|wend|const|dim|as|delay)\b)",
        QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression etiquette(R"(^\s*[A-Za-z_][A-Za-z0-9_]*:)");
    colorer(texte, nombre, nombre_);
    colorer(texte, mot, mot_);
    colorer(texte, etiquette, etiquette_);
    const std::string utf8 = texte.toStdString();
    const std::size_t debut = debut_de_commentaire(utf8);
    const auto avant = QString::fromUtf8(utf8.data(), qsizetype(debut)).size();
    setFormat(int(avant), int(texte.size() - avant), commentaire_);
}

ColorationDifference::ColorationDifference(QPlainTextEdit& vue) : Coloration(vue) {
    choisir_les_couleurs(vue.palette());
}

void ColorationDifference::choisir_les_couleurs(const QPalette& palette) {
    const bool sombre = est_sombre(palette);
    ajoute_.setForeground(QColor(sombre ? "#a5e6a5" : "#0b5d1e"));
    ajoute_.setBackground(QColor(sombre ? "#16361b" : "#e3f6e5"));
    retire_.setForeground(QColor(sombre ? "#f2b0b0" : "#8f1d1d"));
    retire_.setBackground(QColor(sombre ? "#43191b" : "#fbe5e5"));
    coupe_.setForeground(palette.color(QPalette::PlaceholderText));
}

void ColorationDifference::highlightBlock(const QString& texte) {
    const int longueur = int(texte.size());
    if (texte.startsWith('+'))
        setFormat(0, longueur, ajoute_);
    else if (texte.startsWith('-'))
        setFormat(0, longueur, retire_);
    else if (texte.startsWith('@'))
        setFormat(0, longueur, coupe_);
}

VueCode::VueCode() : marge_(new Marge(*this)) {
    setReadOnly(true);
    setLineWrapMode(QPlainTextEdit::NoWrap);
    setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    constexpr int tabulation = 4;
    setTabStopDistance(tabulation * QFontMetricsF(font()).horizontalAdvance(' '));
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    connect(this, &QPlainTextEdit::updateRequest, this, [this] { marge_->update(); });
    placer_marge();
}

void VueCode::montrer(const QString& texte, int premiere) {
    premiere_ = premiere;
    setPlainText(texte);
    placer_marge();
}

int VueCode::largeur_numeros() const {
    const int dernier = premiere_ + blockCount();
    return fontMetrics().horizontalAdvance(QString::number(dernier) + "  ");
}

void VueCode::placer_marge() {
    setViewportMargins(largeur_numeros(), 0, 0, 0);
    const QRect r = contentsRect();
    marge_->setGeometry(r.left(), r.top(), largeur_numeros(), r.height());
}

void VueCode::resizeEvent(QResizeEvent* evenement) {
    QPlainTextEdit::resizeEvent(evenement);
    placer_marge();
}

void VueCode::peindre_numeros(QPaintEvent* evenement) {
    QPainter peintre(marge_);
    peintre.fillRect(evenement->rect(), palette().color(QPalette::AlternateBase));
    peintre.setPen(palette().color(QPalette::PlaceholderText));
    peintre.setFont(font());
    for (QTextBlock bloc = firstVisibleBlock(); bloc.isValid(); bloc = bloc.next()) {
        const QRectF r = blockBoundingGeometry(bloc).translated(contentOffset());
        if (r.top() > marge_->height())
            break;
        const int numero = premiere_ + bloc.blockNumber();
        if (numero >= 1)
            peintre.drawText(QRectF(0, r.top(), marge_->width() - 4, r.height()),
                             Qt::AlignRight | Qt::AlignVCenter, QString::number(numero));
    }
}

void VueCode::mouseDoubleClickEvent(QMouseEvent* evenement) {
    QPlainTextEdit::mouseDoubleClickEvent(evenement);
    suivre(cursorForPosition(evenement->pos()));
}

void VueCode::keyPressEvent(QKeyEvent* evenement) {
    if (evenement->key() == Qt::Key_Return || evenement->key() == Qt::Key_Enter)
        suivre(textCursor());
    else
        QPlainTextEdit::keyPressEvent(evenement);
}

void VueCode::suivre(const QTextCursor& ici) const {
    if (au_double_clic)
        au_double_clic(ici.block().text(), ici.positionInBlock());
}
