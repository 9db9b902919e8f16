#pragma once

#include "edition/segments_robot.h"
#include "ui/editeurs/vue_edition.h"

/// The robot under edit, in robot coordinates (cm, forward upwards): its segments, its reference
/// point, which is also the middle of the sensor line, the line's extremity, and the wheels.
class VueRobot final : public VueEdition<DocumentRobot> {
public:
    VueRobot(Historique<DocumentRobot>& historique, Foutil& outils, QWidget* parent);

    std::function<void()> au_glissement; ///< montre() changed during a drag

    /// Shows what a measure means ("A1"...), none for another text.
    void expliquer(const QString& mesure);

protected:
    QRectF etendue() const override;
    void peindre(QPainter& peintre) override;
    void peindre_dessus(QPainter& peintre) override;
    void abandonner() override;

private:
    enum class Poignee { bout, reference, extremite, roue };
    /// What lies under the mouse.
    struct Prise {
        Geste geste = Geste::cadre;
        std::size_t segment = 0; ///< the one to move, or whose end it is
        Poignee poignee = Poignee::bout;
        std::size_t bout = 0; ///< 0 or 1
    };

    Geste saisir(QPointF pixels, bool en_plus) override;
    Qt::CursorShape curseur(QPointF pixels) const override;
    bool tirer_poignee(DocumentRobot& d, QPointF pixels,
                       Qt::KeyboardModifiers touches) const override;
    void montre_change() override { au_glissement(); }
    void cliquer(Geste geste, bool en_plus) override;
    Choix dans(const Bornes& cm) const override;
    QString nom_du_geste(Geste geste) const override;
    QString nom_de_l_ajout(const Fiche&) const override { return "Ajouter un segment"; }
    bool accepte(const Outil& outil) const override;
    void poser(const Outil& outil, QPointF cm) override;
    std::optional<std::size_t> objet_sous(QPointF pixels) const override;

    Prise prise_sous(QPointF pixels) const;
    bool pres(QPointF pixels, QPointF cm) const;
    QPointF reference() const;
    QPointF extremite() const;
    QPointF roue(int cote) const; ///< -1 left, 1 right
    void peindre_reperes(QPainter& peintre) const;
    void peindre_segments(QPainter& peintre) const;

    std::string expliquee_; ///< the measure whose field is used
    Prise prise_;           ///< of the present gesture
};
