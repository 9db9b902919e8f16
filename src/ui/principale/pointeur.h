#pragma once

#include "record/pose.h"
#include "ui/commun/gestes.h"
#include "ui/principale/table.h"

#include <QWidget>

#include <functional>
#include <optional>

/// Over the table: the pointer's place in centimetres, in the corner that it does not hide; where
/// somebody waits for a start pose, dragging proposes one, from the place towards the heading.
class Pointeur final : public QWidget {
public:
    /// @param etat  the table's
    Pointeur(Table& table, const Etat& etat);

    std::function<void()> au_passage; ///< the pointer came or left
    /// The robot that a drag places; 0 when a drag is nothing but a click.
    std::function<int()> robot_a_placer;
    std::function<void(const Pose&)> proposer;

    bool present() const { return lieu_.has_value(); }
    /// "120 ; 80"; empty while the pointer is elsewhere.
    QString position() const;
    /// The pointer is there (pixels of the table), whatever the events said.
    void noter(QPointF pixel);

protected:
    bool eventFilter(QObject* objet, QEvent* evenement) override;
    void paintEvent(QPaintEvent*) override;

private:
    bool traiter(QEvent* evenement);
    bool presser(const QMouseEvent& evenement);
    bool relacher(const QMouseEvent& evenement);
    bool couper();
    void bouger(const QMouseEvent& evenement);
    void quitter();
    void ecrire();
    bool tire() const { return robot_ != 0 && gestes_.en_cours() && gestes_.loin(); }
    Pose pose() const;
    QRect carte() const;
    void peindre_depart(QPainter& peintre) const;

    Table& table_;
    const Etat& e_;
    std::optional<QPointF> lieu_; ///< pixels
    Gestes gestes_;
    int robot_ = 0;           ///< that the present drag places
    bool avale_ = false;      ///< a drag was cut: its release is no click
    bool par_quinze_ = false; ///< the heading goes by 15 degrees
    QString texte_;
    QRect carte_; ///< what the text covers
};
