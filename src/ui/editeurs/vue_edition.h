#pragma once

#include "config/document.h"
#include "edition/choix.h"
#include "edition/ligne_brisee.h"
#include "ui/commun/historique.h"
#include "ui/commun/vue_echelle.h"
#include "ui/editeurs/foutil.h"

#include <QDropEvent>

#include <optional>

/// What every view under edit does alike, whatever its document: a gesture from its press to its
/// release or its end, the sketch of the tool in hand, the frame, tools carried onto it.
class VueTirable : public VueEchelle {
public:
    VueTirable(Foutil& outils, QWidget* parent);

    std::function<void(const std::string&)> au_refus; ///< why a record cannot be added
    std::function<void(QPoint ecran)> au_menu;        ///< of what is chosen

protected:
    enum class Geste { aucun, placer, cadre, deplacer, poignee };

    /// What a press without a tool begins; sets `sous_` and, for a move, `pris_`.
    virtual Geste saisir(QPointF pixels, bool en_plus) = 0;
    virtual Qt::CursorShape curseur(QPointF pixels) const = 0;
    /// The document as the present drag makes it.
    virtual void tirer(Geste geste, QPointF pixels, Qt::KeyboardModifiers touches) = 0;
    /// True when the present drag has changed what is shown.
    virtual bool a_tire() const = 0;
    /// Ends a drag that has.
    virtual void garder(Geste geste) = 0;
    /// Ends a frame (cm) or a click.
    virtual void encadrer(const Bornes& cm, bool en_plus) = 0;
    virtual void cliquer(Geste geste, bool en_plus) = 0;
    virtual bool accepte(const Outil& outil) const = 0;
    /// Places a tool's record about a point (cm).
    virtual void poser(const Outil& outil, QPointF cm) = 0;
    /// @returns false when they cannot be added, which is told
    virtual bool ajouter(std::vector<Fiche> fiches) = 0;
    virtual std::optional<std::size_t> objet_sous(QPointF pixels) const = 0;
    /// Chooses the record under the mouse, unless it is chosen already.
    virtual void choisir_sous(QPointF pixels) = 0;
    virtual void rafraichir() = 0;

    void peindre_ebauche(QPainter& peintre) const;
    /// The way of the present drag, so that a point of what is dragged comes onto the grid (cm).
    Vecteur ecart(QPointF repere, QPointF pixels, Qt::KeyboardModifiers touches) const;

    void presser(QPointF pixels, Qt::KeyboardModifiers touches) final;
    void glisser(QPointF pixels, Qt::KeyboardModifiers touches) final;
    void relacher(QPointF pixels, Qt::KeyboardModifiers touches) final;
    void survoler(QPointF pixels) final;
    void abandonner() override;
    void dragEnterEvent(QDragEnterEvent* evenement) final;
    void dropEvent(QDropEvent* evenement) final;
    void keyPressEvent(QKeyEvent* evenement) final;
    void contextMenuEvent(QContextMenuEvent* evenement) final;

    Foutil& outils_;
    Geste geste_ = Geste::aucun;
    std::optional<std::size_t> sous_; ///< the record under the mouse when it was pressed
    std::size_t pris_ = 0;            ///< the one that a move or a pull is measured on

private:
    void placer(QPointF pixels, Qt::KeyboardModifiers touches);
    void placer_au_milieu();

    bool brise() const; ///< the chain's tool is in hand
    void continuer_la_chaine(QPointF pixels, Qt::KeyboardModifiers touches);
    void finir_la_chaine();
    bool ferme_la_chaine(QPointF pixels) const;
    void peindre_chaine(QPainter& peintre) const;

    LigneBrisee chaine_;           ///< between its clicks
    std::optional<Fiche> ebauche_; ///< what the tool in hand is drawing
};

/// The same over a document with its steps.
template <typename Doc>
class VueEdition : public VueTirable {
public:
    VueEdition(Historique<Doc>& historique, Foutil& outils, QWidget* parent)
        : VueTirable(outils, parent), h_(historique) {}

    /// The document or the selection changed.
    void rafraichir() override {
        provisoire_.reset();
        geste_ = Geste::aucun;
        const std::size_t n = h_.selection().size();
        setAccessibleDescription(n == 0   ? QString("Rien n'est choisi")
                                 : n == 1 ? QString("Un objet est choisi")
                                          : QString("%1 objets sont choisis").arg(n));
        update();
    }
    /// The document as the present drag shows it.
    const Doc& montre() const { return provisoire_ ? *provisoire_ : h_.doc(); }

protected:
    /// Pulls what was taken hold of. @returns false when the document stays as it is shown
    virtual bool tirer_poignee(Doc& d, QPointF pixels, Qt::KeyboardModifiers touches) const = 0;
    /// montre() changed during a drag.
    virtual void montre_change() = 0;
    virtual Choix dans(const Bornes& cm) const = 0;
    virtual QString nom_du_geste(Geste geste) const = 0;
    virtual QString nom_de_l_ajout(const Fiche& fiche) const = 0;

    bool ajouter(std::vector<Fiche> fiches) final {
        Doc d = h_.doc();
        const QString nom =
            fiches.size() == 1 ? nom_de_l_ajout(fiches.front()) : "Tracer une ligne brisée";
        try {
            const Choix nouveaux = creer_tous(d, std::move(fiches));
            h_.changer(nom, std::move(d), nouveaux);
            return true;
        } catch (const ErreurExecution& erreur) {
            update();
            au_refus(erreur.what());
            return false;
        }
    }
    void choisir_sous(QPointF pixels) final {
        if (const auto i = objet_sous(pixels); i && !choisi(h_.selection(), *i))
            h_.choisir({*i});
    }
    void cliquer(Geste, bool en_plus) override {
        h_.choisir(apres_clic(h_.selection(), sous_, en_plus));
    }
    Historique<Doc>& h_;

private:
    void tirer(Geste geste, QPointF pixels, Qt::KeyboardModifiers touches) final {
        Doc d = h_.doc();
        if (geste == Geste::deplacer)
            deplacer(d, h_.selection(),
                     ecart(QPointF(d[pris_].v[0], d[pris_].v[1]), pixels, touches));
        else if (!tirer_poignee(d, pixels, touches))
            return;
        provisoire_ = std::move(d);
        montre_change();
    }
    bool a_tire() const final { return provisoire_.has_value(); }
    void garder(Geste geste) final {
        Doc d = std::move(*provisoire_);
        provisoire_.reset();
        const bool ajoute = d.nombre() != h_.doc().nombre(); // its indices have moved
        h_.changer(nom_du_geste(geste), std::move(d), ajoute ? Choix{} : h_.selection());
    }
    void encadrer(const Bornes& cm, bool en_plus) final {
        h_.choisir(apres_cadre(h_.selection(), dans(cm), en_plus));
    }

    std::optional<Doc> provisoire_;
};
