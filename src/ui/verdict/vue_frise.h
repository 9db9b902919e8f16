#pragma once

#include "analyse/deroulement.h"
#include "ui/commun/couche.h"
#include "ui/commun/gestes.h"
#include "ui/verdict/peinture_frise.h"

#include <QWidget>

#include <functional>

/// The timeline of a computed match: a lane a robot, a segment an action, the findings, a time axis
/// and a cursor. The wheel zooms at the mouse, the middle button pans, a double click where no
/// action is shows all, one on an action asks for its editor; the left button puts the cursor and
/// chooses the robot.
class VueFrise final : public QWidget {
public:
    /// @param d  where the cursor is; it belongs to the window
    VueFrise(const Deroulement& d, QWidget* parent);

    std::function<void(std::int32_t temps)> au_curseur;    ///< the user puts the cursor there
    std::function<void(int robot)> au_robot;               ///< the user chooses this lane
    std::function<void(int robot, int numero)> au_segment; ///< wants to change this action

    /// Another match or other findings: scale and place stay. The analysis is the caller's.
    /// @param e  the state that the match was played from
    void montrer(const Etat& e, const Analyse& a, std::vector<MarqueFrise> marques);
    void choisir_robot(int robot);
    int robot() const { return contenu_.robot; }
    /// The cursor or the loop have moved.
    void suivre_le_curseur();
    /// Moves the view so that the cursor is in it.
    void faire_voir_le_curseur();
    /// What is at the cursor, in words: the value that assistive tools read.
    void dire(const QString& lecture);
    const QString& lecture() const { return lecture_; }
    const Deroulement& deroulement() const { return d_; }
    void ajuster();
    void zoomer(double facteur);

    /// Where a time lies, logical pixels.
    double pixel(std::int32_t temps) const { return axe_.pixel(temps / 100.0); }
    DispositionFrise places() const;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent* evenement) override;
    void paintEvent(QPaintEvent* evenement) override;
    void resizeEvent(QResizeEvent*) override;
    void mousePressEvent(QMouseEvent* evenement) override;
    void mouseMoveEvent(QMouseEvent* evenement) override;
    void mouseReleaseEvent(QMouseEvent* evenement) override;
    void mouseDoubleClickEvent(QMouseEvent* evenement) override;
    void wheelEvent(QWheelEvent* evenement) override;
    void keyPressEvent(QKeyEvent* evenement) override;
    void focusOutEvent(QFocusEvent* evenement) override;

private:
    /// What the painted lanes depend on.
    struct Cle {
        Axe axe;
        unsigned version;
        int robot;
        bool operator==(const Cle&) const = default;
    };

    void suivre(Gestes::Suite suite);
    void prendre();
    void mettre_le_curseur();
    void modifier_au_curseur();
    void vue_changee();
    const ActionJouee* action_en(QPointF pixels) const;
    QString bulle(QPointF pixels) const;
    void peindre_boucle(QPainter& peintre) const;
    void peindre_curseur(QPainter& peintre) const;
    QRect bande_du_curseur(std::int32_t temps) const;

    const Deroulement& d_;
    ContenuFrise contenu_;
    const Etat* etat_ = nullptr;
    Axe axe_;
    bool ajustee_ = true; ///< shows the whole match, until the user looks elsewhere
    unsigned version_ = 0;
    Gestes gestes_;
    std::int32_t avant_ = 0;  ///< where the cursor was when it was taken hold of
    std::int32_t montre_ = 0; ///< where it was last painted
    QString lecture_;
    Couche<Cle> fond_;
};
