#pragma once

#include "config/nom_projet.h"
#include "edition/outils.h"
#include "ui/commun/nombre.h"

#include <QButtonGroup>
#include <QPointF>
#include <QRadioButton>
#include <QScrollArea>
#include <QToolButton>
#include <QWidget>

#include <functional>
#include <string>
#include <vector>

/// One thing that the palette places.
struct Outil {
    using Forme = FormeOutil;
    const char* nom;     ///< objectName of its button
    const char* texte;   ///< its tool tip and its name for assistive tools
    const char* legende; ///< on its button
    const char* groupe;  ///< the heading over it in the palette
    const char* cle;     ///< key of the record that it makes
    Forme forme;
};

/// A tool of the palette: a click takes it in hand, a drag carries it onto the drawing.
class BoutonOutil final : public QToolButton {
public:
    BoutonOutil(const Outil& outil, QWidget* parent);

    static constexpr auto format = "application/x-tavolmex-outil";

protected:
    void mousePressEvent(QMouseEvent* evenement) override;
    void mouseMoveEvent(QMouseEvent* evenement) override;

private:
    const Outil& outil_;
    QPoint prise_;
};

/// The editors' palette: what is drawn (table or robot), the tools, the size of what they place. It
/// lies in the editor that is used, or floats as a window of its own.
class Foutil final : public QWidget {
public:
    explicit Foutil(QWidget* parent);

    std::function<void()> au_choix_du_dessin; ///< chx_dessinTable or chx_dessinRobot was chosen
    std::function<void()> au_choix_d_outil;
    std::function<void()> au_demenagement; ///< it went elsewhere
    /// The keys of the drawing's command of that name ("annuler", "retablir") were pressed in its
    /// window.
    std::function<void(const char* commande)> a_l_annulation;

    static const std::vector<Outil>& outils();
    static const Outil* outil(const QString& nom);
    /// The tool in hand; `outil_Selection` chooses and moves.
    const Outil& en_main() const { return *en_main_; }
    void prendre(const Outil& outil);
    void reposer() { prendre(outils().front()); }
    /// Shows the tools of the drawing that the user has turned to; opens no window.
    void suivre(GenreFichier genre);

    /// What the user likes, from then on and at the next start.
    void ancrer(bool oui);
    bool ancree() const { return ancree_; }
    /// Docked, it moves there.
    void loger(QScrollArea& place);
    bool est_dans(const QScrollArea& place) const { return place_ == &place; }

    /// What a tool makes in one click: of the palette's sizes, about a point (cm).
    Fiche creer(const Outil& outil, QPointF centre) const;
    /// What a tool makes between the ends of a drag.
    static Fiche tracer(const Outil& outil, QPointF a, QPointF b);

    QRadioButton chx_dessinTable, chx_dessinRobot;
    NombreEntier largeur, hauteur, rayon, longueur, incidence;

private:
    void nommer();
    void placer();
    void placer_ancrage();
    void montrer_ancrage();
    QWidget* placer_outils();
    QWidget* placer_tailles();
    void montrer_outils(bool table);
    void connecter();
    void connecter_touches();

    QWidget* bureau_; ///< whose window it is when it floats
    QScrollArea* place_ = nullptr;
    bool ancree_;
    QToolButton ancrage_;
    QList<QAction*> touches_; ///< of the drawing's commands while it floats
    const Outil* en_main_ = nullptr;
    int autre_longueur_ = 10; ///< of the lines of the drawing that is not chosen (cm)
    bool suit_ = false;       ///< the choice of the drawing comes from its window
    QButtonGroup groupe_;
    std::vector<QWidget*> de_la_table_; ///< what only the table has
};
