#pragma once

#include "config/document_robot.h"
#include "ui/commun/historique.h"
#include "ui/commun/vue_echelle.h"
#include "ui/editeurs/foutil.h"

#include <optional>

/// The robot under edit, in robot coordinates (cm, forward upwards): its segments, its reference
/// point, which is also the middle of the sensor line, the line's extremity, and the wheels.
class VueRobot final : public VueEchelle {
public:
    VueRobot(Historique<DocumentRobot>& historique, Foutil& outils, QWidget* parent);

    std::function<void(const std::string&)> au_refus; ///< why a segment cannot be added
    std::function<void()> au_glissement;              ///< montre() changed during a drag

    /// The document or the selection changed.
    void rafraichir();
    /// The document as the present drag shows it.
    const DocumentRobot& montre() const { return provisoire_ ? *provisoire_ : h_.doc(); }

protected:
    QRectF etendue() const override;
    void peindre(QPainter& peintre) override;
    void peindre_dessus(QPainter& peintre) override;
    void presser(QPointF pixels, Qt::KeyboardModifiers touches) override;
    void glisser(QPointF pixels, Qt::KeyboardModifiers touches) override;
    void relacher(QPointF pixels, Qt::KeyboardModifiers touches) override;
    void survoler(QPointF pixels) override;
    void abandonner() override;
    void dragEnterEvent(QDragEnterEvent* evenement) override;
    void dropEvent(QDropEvent* evenement) override;

private:
    enum class Geste { aucun, placer, deplacer, bout, reference, extremite, roue, cadre };

    Geste geste_sous(QPointF pixels);
    bool pres(QPointF pixels, QPointF cm) const;
    QPointF reference() const;
    QPointF extremite() const;
    QPointF roue(int cote) const; ///< -1 left, 1 right
    void peindre_reperes(QPainter& peintre) const;
    void peindre_segments(QPainter& peintre) const;
    void choisir_sous(bool en_plus);
    bool appliquer(DocumentRobot& d, QPointF pixels, Qt::KeyboardModifiers touches) const;
    void ajouter(Fiche segment);
    QString nom_du_geste(Geste geste) const;

    Historique<DocumentRobot>& h_;
    Foutil& outils_;
    Geste geste_ = Geste::aucun;
    std::size_t pris_ = 0; ///< the segment under the mouse when it was pressed
    std::size_t bout_ = 0; ///< its end that is pulled, 0 or 1
    std::optional<DocumentRobot> provisoire_;
    std::optional<Fiche> ebauche_;
};
