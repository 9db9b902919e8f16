#pragma once

#include "analyse/analyse.h"
#include "draw/silhouette.h"
#include "sim/contour.h"
#include "ui/commun/vue_echelle.h"
#include "ui/verdict/genres_masques.h"

#include <optional>
#include <vector>

/// The table at one instant of a computed match: the robots where they are then, what they have
/// done and will do, a place that is to be looked at.
class VueInstant final : public VueEchelle {
public:
    explicit VueInstant(QWidget* parent);

    /// Another match: the view stays where it is. Both are the caller's.
    /// @param e  the state that the match was played from; what it draws is the whole table
    void montrer(const Etat& e, const Analyse& a, const GenresMasques& masques);
    void montrer_instant(std::int32_t temps);
    /// The robot whose seconds, actions and findings are marked.
    void choisir_robot(int robot);
    /// Rings a place and brings it into the view; nothing takes the ring away.
    void montrer_place(std::optional<QPointF> cm);

protected:
    QRectF etendue() const override;
    void peindre(QPainter& peintre) override;
    void peindre_dessus(QPainter& peintre) override;
    void presser(QPointF, Qt::KeyboardModifiers) override {}
    void glisser(QPointF, Qt::KeyboardModifiers) override {}
    void relacher(QPointF, Qt::KeyboardModifiers) override {}
    void abandonner() override {}
    void mouseDoubleClickEvent(QMouseEvent*) override { ajuster(); }
    void keyPressEvent(QKeyEvent* evenement) override;

private:
    /// What the painted table depends on.
    struct Cle {
        Camera camera;
        unsigned version;
        int robot;
        bool operator==(const Cle&) const = default;
    };

    /// What is drawn of a robot.
    struct Modele {
        Contour contour;
        Silhouette silhouette;
    };

    void peindre_la_table(QPainter& peintre) const;
    void peindre_la_suite(QPainter& peintre) const;
    void peindre_les_reperes(QPainter& peintre) const;
    void peindre_le_passe(QPainter& peintre) const;
    void peindre_les_robots(QPainter& peintre) const;

    const Etat* e_ = nullptr;
    const Analyse* a_ = nullptr;
    std::int32_t temps_ = 0;
    int robot_ = 1;
    unsigned version_ = 0;
    std::optional<QPointF> place_;
    std::vector<Constat> constats_; ///< whose places are marked
    std::vector<Modele> modeles_;   ///< robots 1, 2...
    Couche<Cle> fond_;
    Couche<Cle> suite_;
    Couche<Cle> reperes_;
};
