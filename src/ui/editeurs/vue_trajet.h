#pragma once

#include "analyse/essai.h"
#include "edition/tirage.h"
#include "sim/contour.h"
#include "ui/commun/couche.h"
#include "ui/commun/historique.h"
#include "ui/commun/vue_echelle.h"

#include <functional>
#include <memory>
#include <optional>

/// The path of the trajectory under edit on its table: what was saved lies beneath it as a ghost,
/// the chosen actions are marked, and the mouse pulls the start, and where an action ends.
class VueTrajet final : public VueEchelle {
public:
    VueTrajet(Historique<DocumentTrajet>& historique, QWidget* parent);

    std::function<void(const DocumentTrajet&)> au_glissement; ///< a drag would make this of it
    std::function<void(const QString& nom, DocumentTrajet)> au_lacher; ///< a drag ended so
    std::function<void()> a_l_abandon;

    /// The table and the robots; called again for another ghost. @param etat  of etat_des_fichiers
    void regler_projet(const Etat& etat, int robot);
    /// @param essai    the match with the document as it is shown
    /// @param fantome  with the saved one; null: there is none, or it is the same
    void montrer(const DocumentTrajet& montre, const EssaiTrajet& essai,
                 const EssaiTrajet* fantome);

protected:
    QRectF etendue() const override;
    void peindre(QPainter& peintre) override;
    void peindre_dessus(QPainter& peintre) override;
    void presser(QPointF pixels, Qt::KeyboardModifiers touches) override;
    void glisser(QPointF pixels, Qt::KeyboardModifiers touches) override;
    void relacher(QPointF pixels, Qt::KeyboardModifiers touches) override;
    void survoler(QPointF pixels) override;
    void abandonner() override;

private:
    /// A place that the mouse can pull.
    struct Prise {
        std::size_t fiche = 0;
        bool cap = false; ///< the heading of a start pose, or the turn
    };

    std::optional<QPointF> place(const Prise& prise) const; ///< pixels
    std::optional<Prise> prise_sous(QPointF pixels) const;
    QPointF pointe(const PoseTick& pose) const;
    Fiche tiree(const Prise& prise, QPointF cm, Qt::KeyboardModifiers touches) const;
    void peindre_fond(QPainter& peintre);
    void peindre_prises(QPainter& peintre) const;
    void peindre_choisies(QPainter& peintre) const;
    void peindre_robot(SurfaceQt& surface, const PoseTick& pose) const;
    std::vector<QPointF> chemin_de(std::size_t i) const;

    Historique<DocumentTrajet>& h_;
    std::unique_ptr<Etat> e_; ///< what the drawing paints
    Contour contour_;
    DocumentTrajet montre_;
    const EssaiTrajet* essai_ = nullptr;
    const EssaiTrajet* fantome_ = nullptr;

    /// What lies beneath while one types: the table and the ghost.
    struct Fond {
        Camera camera;
        int projet;
        bool fantome;
        bool operator==(const Fond&) const = default;
    };
    Couche<Fond> fond_;
    int projet_ = 0; ///< how often it was set
    std::optional<Prise> prise_;
    std::optional<DocumentTrajet> provisoire_;
};
