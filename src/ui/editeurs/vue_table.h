#pragma once

#include "edition/objets_table.h"
#include "ui/editeurs/vue_edition.h"

#include <memory>

/// The table under edit, painted as the simulator paints it; the mouse places, chooses, moves and
/// resizes its records.
class VueTable final : public VueEdition<DocumentTable> {
public:
    VueTable(Historique<DocumentTable>& historique, Foutil& outils, QWidget* parent);

    std::function<void()> a_la_legende; ///< the caption's tool was used

    void rafraichir() override;
    /// The mouse passes over the zones of the floor.
    void verrouiller_les_zones(bool oui) { sans_zones_ = oui; }
    /// What the mouse can take.
    Choix prenables() const;

protected:
    QRectF etendue() const override;
    void peindre(QPainter& peintre) override;
    void peindre_dessus(QPainter& peintre) override;

private:
    Geste saisir(QPointF pixels, bool en_plus) override;
    Qt::CursorShape curseur(QPointF pixels) const override;
    bool tirer_poignee(DocumentTable& d, QPointF pixels,
                       Qt::KeyboardModifiers touches) const override;
    void montre_change() override { montre().remplir(*e_); }
    Choix dans(const Bornes& cm) const override;
    QString nom_du_geste(Geste geste) const override;
    QString nom_de_l_ajout(const Fiche& fiche) const override;
    bool accepte(const Outil&) const override { return true; }
    void poser(const Outil& outil, QPointF cm) override;
    std::optional<std::size_t> objet_sous(QPointF pixels) const override;

    std::optional<std::size_t> poignee_sous(QPointF pixels) const;
    void peindre_choix(QPainter& peintre) const;
    void peindre_legende(QPainter& peintre) const;

    std::unique_ptr<Etat> e_; ///< what the drawing paints
    bool sans_zones_ = false;
    std::size_t poignee_ = 0;
};
