#pragma once

#include <QLabel>
#include <QPixmap>
#include <QWidget>

#include <functional>

/// How much of the logo and its banner is seen while something is to be read beneath them.
inline constexpr double opacite_fantome = 0.12;

/// The project's picture over the middle of the table; crisp at every size and density.
class Logo final : public QWidget {
public:
    explicit Logo(QWidget* parent);
    std::function<void()> au_clic;
    /// A ghost lets the table be seen, and pointed at.
    void estomper(bool fantome);

protected:
    void paintEvent(QPaintEvent*) override;
    void mousePressEvent(QMouseEvent*) override {}
    void mouseReleaseEvent(QMouseEvent* evenement) override;

private:
    QPixmap image_;
    bool attendue_ = false; ///< the picture is about to be made
    bool fantome_ = false;
};

/// The project's banner: a card behind the logo, with the text below it. The line breaks that push
/// the text down from the picture's top are not shown as such.
class Banniere final : public QLabel {
public:
    explicit Banniere(QWidget* parent);
    /// @param logo  where the logo lies; the card has the same left, top and width
    void placer(const QRect& logo);
    void estomper(bool fantome);

protected:
    void paintEvent(QPaintEvent*) override;

private:
    QRect zone_du_texte() const;
    QRect place_du_texte() const;
    int haut_du_texte_ = 0;
    bool fantome_ = false;
};
