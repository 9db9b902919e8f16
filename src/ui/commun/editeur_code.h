#pragma once

#include <QPlainTextEdit>
#include <QRegularExpression>
#include <QSyntaxHighlighter>
#include <QTextCharFormat>

#include <functional>

/// Colours PICBASIC: comments, labels, jumps and tests, numbers. Follows the palette's lightness.
class ColorationPicbasic final : public QSyntaxHighlighter {
public:
    ColorationPicbasic(QTextDocument* document, const QPalette& palette);

protected:
    void highlightBlock(const QString& texte) override;

private:
    void colorer(const QString& texte, const QRegularExpression& motif,
                 const QTextCharFormat& format);
    QTextCharFormat commentaire_, etiquette_, mot_, nombre_;
};

/// Colours a difference by the first character of its lines: green for "+", red for "-".
class ColorationDifference final : public QSyntaxHighlighter {
public:
    ColorationDifference(QTextDocument* document, const QPalette& palette);

protected:
    void highlightBlock(const QString& texte) override;

private:
    QTextCharFormat ajoute_, retire_, coupe_;
};

/// A read-only text with the file's line numbers beside it.
class VueCode final : public QPlainTextEdit {
public:
    VueCode();
    /// @param premiere  line number of the first block; a block numbered below 1 has none
    void montrer(const QString& texte, int premiere);
    /// Called with the line under a double click and the character's place in it.
    std::function<void(const QString& ligne, int colonne)> au_double_clic;
    void peindre_numeros(QPaintEvent* evenement);
    int largeur_numeros() const;

protected:
    void resizeEvent(QResizeEvent* evenement) override;
    void mouseDoubleClickEvent(QMouseEvent* evenement) override;

private:
    void placer_marge();
    QWidget* marge_;
    int premiere_ = 1;
};
