#pragma once

#include "config/document_table.h"
#include "ui/commun/historique.h"
#include "ui/commun/vue_echelle.h"
#include "ui/editeurs/foutil.h"

#include <memory>
#include <optional>

/// The table under edit, painted as the simulator paints it; the mouse places, chooses, moves and
/// resizes its records.
class VueTable final : public VueEchelle {
public:
    VueTable(Historique<DocumentTable>& historique, Foutil& outils, QWidget* parent);

    std::function<void()> a_la_legende;               ///< the caption's tool was used
    std::function<void(const std::string&)> au_refus; ///< why a record cannot be added

    /// The document or the selection changed.
    void rafraichir();
    /// The mouse passes over the zones of the floor.
    void verrouiller_les_zones(bool oui) { zones_verrouillees_ = oui; }
    bool verrouille(const Fiche& e) const;
    /// Places a tool's record about a point (cm).
    void poser(const Outil& outil, QPointF cm);

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
    enum class Geste { aucun, placer, deplacer, tirer, cadre };

    const DocumentTable& montre() const { return provisoire_ ? *provisoire_ : h_.doc(); }
    std::optional<std::size_t> objet_sous(QPointF cm) const;
    std::optional<std::size_t> poignee_sous(QPointF pixels) const;
    void peindre_legende(QPainter& peintre) const;
    void choisir_un(std::size_t i, bool en_plus);
    bool choisi(std::size_t i) const;
    void deplacer(QPointF cm, Qt::KeyboardModifiers touches);
    void ajouter(Fiche e, const QString& nom);
    void changer_forme(QPointF cm);
    void montrer(DocumentTable d);
    void choisir_dans(const QRectF& cm, bool en_plus);

    Historique<DocumentTable>& h_;
    Foutil& outils_;
    std::unique_ptr<Etat> e_; ///< what the drawing paints
    bool zones_verrouillees_ = false;
    Geste geste_ = Geste::aucun;
    std::optional<std::size_t> sous_; ///< the record under the mouse when it was pressed
    std::size_t pris_ = 0;            ///< the one that a move or a pull is measured on
    std::size_t poignee_ = 0;
    std::optional<DocumentTable> provisoire_; ///< the document as a drag shows it
    std::optional<Fiche> ebauche_;            ///< what the tool in hand is drawing
};
