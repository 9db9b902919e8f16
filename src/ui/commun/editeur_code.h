#pragma once

#include <QPlainTextEdit>
#include <QRegularExpression>
#include <QSyntaxHighlighter>
#include <QTextCharFormat>

#include <functional>

/// Colours a view's text by the view's palette, a new one at once.
class Coloration : public QSyntaxHighlighter {
protected:
    explicit Coloration(QPlainTextEdit& vue);
    virtual void choisir_les_couleurs(const QPalette& palette) = 0;
    bool eventFilter(QObject* vue, QEvent* evenement) override;
};

/// Colours PICBASIC: comments, labels, jumps and tests, numbers.
class ColorationPicbasic final : public Coloration {
public:
    explicit ColorationPicbasic(QPlainTextEdit& vue);

protected:
    void highlightBlock(const QString& texte) override;

private:
    void choisir_les_couleurs(const QPalette& palette) override;
    void colorer(const QString& texte, const QRegularExpression& motif,
                 const QTextCharFormat& format);
    QTextCharFormat commentaire_, etiquette_, mot_, nombre_;
};

/// Colours a difference by the first character of its lines: green for "+", red for "-".
class ColorationDifference final : public Coloration {
public:
    explicit ColorationDifference(QPlainTextEdit& vue);

protected:
    void highlightBlock(const QString& texte) override;

private:
    void choisir_les_couleurs(const QPalette& palette) override;
    QTextCharFormat ajoute_, retire_, coupe_;
};

/// A read-only text with the file's line numbers beside it.
class VueCode final : public QPlainTextEdit {
public:
    VueCode();
    /// @param premiere  line number of the first block; a block numbered below 1 has none
    void montrer(const QString& texte, int premiere);
    /// Called with the line under a double click, or the cursor's on Enter, and the character's
    /// place in it.
    std::function<void(const QString& ligne, int colonne)> au_double_clic;
    void peindre_numeros(QPaintEvent* evenement);
    int largeur_numeros() const;

protected:
    void resizeEvent(QResizeEvent* evenement) override;
    void mouseDoubleClickEvent(QMouseEvent* evenement) override;
    void keyPressEvent(QKeyEvent* evenement) override;

private:
    void suivre(const QTextCursor& ici) const;
    void placer_marge();
    QWidget* marge_;
    int premiere_ = 1;
};
