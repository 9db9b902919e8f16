#include "ui/editeurs/icones_dessin.h"

#include "config/fiche_table.h"
#include "ui/commun/icone_peinte.h"
#include "ui/editeurs/formes.h"
#include "ui/editeurs/foutil.h"

#include <QPainter>
#include <QPainterPath>

#include <array>
#include <string>

namespace {

constexpr QRectF cadre(2.5, 3.5, 15, 13);
constexpr QPointF centre(10, 10);

// Two letters share each of white and black.
void lettre(QPainter& p, std::string_view cle) {
    p.setPen(qGray(p.brush().color().rgb()) < 128 ? Qt::white : Qt::black);
    QFont police = p.font();
    police.setPixelSize(cle.size() == 1 ? 10 : 8);
    police.setBold(true);
    p.setFont(police);
    p.drawText(QRectF(0, 0, 20, 20), Qt::AlignCenter,
               QString::fromLatin1(cle.data(), int(cle.size())));
}

// Filled with its own colour inside the desktop's line: white shows on white, black on black.
void remplir(QPainter& p, std::string_view cle) {
    p.setBrush(formes::couleur(cle));
}

void pointiller(QPainter& p) {
    QPen trait = p.pen();
    trait.setDashPattern({2, 1.6});
    p.setPen(trait);
}

void peindre_cercle(QPainter& p, std::string_view cle) {
    if (cle == "DR") {
        pointiller(p);
        return p.drawEllipse(centre, 7.5, 7.5);
    }
    remplir(p, cle);
    p.drawEllipse(centre, 7.5, 7.5);
    lettre(p, cle);
}

void peindre_boite(QPainter& p, std::string_view cle) {
    if (cle == "LE")
        return p.drawEllipse(cadre);
    if (cle == "DC") {
        pointiller(p);
        return p.drawRect(cadre);
    }
    remplir(p, cle);
    p.drawRect(cadre);
    lettre(p, cle);
}

void noeud(QPainter& p, QPointF ici) {
    p.setBrush(p.pen().color());
    p.drawEllipse(ici, 1.2, 1.2);
}

void trait(QPainter& p, QPointF a, QPointF b) {
    p.drawLine(a, b);
    noeud(p, a);
    noeud(p, b);
}

void peindre_legende(QPainter& p) {
    p.drawPolyline(QPolygonF({{4, 6}, {4, 4}, {16, 4}, {16, 6}}));
    p.drawLine(QPointF(10, 4), QPointF(10, 16));
    p.drawLine(QPointF(8, 16), QPointF(12, 16));
}

void peindre_fleche(QPainter& p) {
    p.drawPolygon(QPolygonF(
        {{5, 2.5}, {5, 15}, {8.2, 12}, {10.4, 17}, {12.6, 16}, {10.4, 11.2}, {14.8, 10.8}}));
}

void peindre_ligne_brisee(QPainter& p) {
    const std::array<QPointF, 4> points{{{3, 15}, {7, 5}, {12, 12}, {17, 4}}};
    p.drawPolyline(points.data(), int(points.size()));
    for (const QPointF& ici : points)
        noeud(p, ici);
}

void peindre_outil(QPainter& p, const Outil& outil) {
    switch (outil.forme) {
    case Outil::Forme::selection:
        return peindre_fleche(p);
    case Outil::Forme::legende:
        return peindre_legende(p);
    case Outil::Forme::boite:
        return peindre_boite(p, outil.cle);
    case Outil::Forme::cercle:
        return peindre_cercle(p, outil.cle);
    case Outil::Forme::horizontale:
        return trait(p, {3, 10}, {17, 10});
    case Outil::Forme::verticale:
        return trait(p, {10, 3}, {10, 17});
    case Outil::Forme::libre:
        return trait(p, {4, 15}, {16, 5});
    case Outil::Forme::brisee:
        return peindre_ligne_brisee(p);
    }
}

// An arrow that turns back to the left; `sens` -1 mirrors it.
void peindre_retour(QPainter& p, double sens) {
    p.translate(centre);
    p.scale(sens, 1);
    p.drawPolyline(QPolygonF({{-3, -6}, {-7, -2}, {-3, 2}}));
    p.drawLine(QPointF(-7, -2), QPointF(2, -2));
    p.drawArc(QRectF(-2, -2, 8, 8), -90 * 16, 180 * 16);
    p.drawLine(QPointF(2, 6), QPointF(-3, 6));
}

void peindre_loupe(QPainter& p, bool plus) {
    p.drawEllipse(QPointF(8.5, 8.5), 5.5, 5.5);
    p.drawLine(QPointF(12.6, 12.6), QPointF(17, 17));
    p.drawLine(QPointF(6, 8.5), QPointF(11, 8.5));
    if (plus)
        p.drawLine(QPointF(8.5, 6), QPointF(8.5, 11));
}

void peindre_ajuster(QPainter& p) {
    for (const double x : {-1.0, 1.0})
        for (const double y : {-1.0, 1.0})
            p.drawPolyline(
                QPolygonF({centre + QPointF(7 * x, 3 * y), centre + QPointF(7 * x, 7 * y),
                           centre + QPointF(3 * x, 7 * y)}));
    p.drawRect(QRectF(7, 7, 6, 6));
}

void peindre_grille(QPainter& p) {
    p.drawRect(QRectF(3, 3, 14, 14));
    for (const double d : {7.7, 12.3}) {
        p.drawLine(QPointF(d, 3), QPointF(d, 17));
        p.drawLine(QPointF(3, d), QPointF(17, d));
    }
}

// A magnet, its poles down.
void peindre_aimant(QPainter& p) {
    QPainterPath fer(QPointF(4, 16));
    fer.lineTo(4, 9);
    fer.arcTo(QRectF(4, 3, 12, 12), 180, -180);
    fer.lineTo(16, 16);
    fer.lineTo(12, 16);
    fer.lineTo(12, 9);
    fer.arcTo(QRectF(8, 7, 4, 4), 0, 180);
    fer.lineTo(8, 16);
    fer.closeSubpath();
    p.drawPath(fer);
    p.drawLine(QPointF(4, 13), QPointF(8, 13));
    p.drawLine(QPointF(12, 13), QPointF(16, 13));
}

// Two bars against a line on the left; turned by so many quarters.
void peindre_alignement(QPainter& p, int quarts) {
    p.translate(centre);
    p.rotate(90.0 * quarts);
    p.drawLine(QPointF(-7, -8), QPointF(-7, 8));
    p.drawRect(QRectF(-4, -5.5, 11, 4));
    p.drawRect(QRectF(-4, 1.5, 6, 4));
}

void peindre_alignement_au_milieu(QPainter& p, int quarts) {
    p.translate(centre);
    p.rotate(90.0 * quarts);
    p.drawRect(QRectF(-7, -5.5, 14, 4));
    p.drawRect(QRectF(-4, 1.5, 8, 4));
    for (const auto& [a, b] : {std::pair{-8.0, -5.5}, {-1.5, 1.5}, {5.5, 8.0}})
        p.drawLine(QPointF(0, a), QPointF(0, b));
}

void peindre_copie(QPainter& p) {
    p.drawRoundedRect(QRectF(7, 7, 10, 10), 1.5, 1.5);
    p.drawPolyline(QPolygonF({{5, 13}, {3, 13}, {3, 3}, {13, 3}, {13, 5}}));
}

void peindre_ciseaux(QPainter& p) {
    p.drawEllipse(QPointF(6, 15), 2.2, 2.2);
    p.drawEllipse(QPointF(14, 15), 2.2, 2.2);
    p.drawLine(QPointF(7.4, 13.2), QPointF(14, 3));
    p.drawLine(QPointF(12.6, 13.2), QPointF(6, 3));
}

void peindre_presse_papiers(QPainter& p) {
    p.drawRoundedRect(QRectF(4, 4.5, 12, 13), 1.5, 1.5);
    p.drawRect(QRectF(7.5, 2.5, 5, 3.5));
    for (const double y : {10.0, 13.5})
        p.drawLine(QPointF(7, y), QPointF(13, y));
}

void peindre_corbeille(QPainter& p) {
    p.drawLine(QPointF(3, 5), QPointF(17, 5));
    p.drawPolyline(QPolygonF({{8, 5}, {8, 2.8}, {12, 2.8}, {12, 5}}));
    p.drawPolyline(QPolygonF({{5, 5}, {6, 17}, {14, 17}, {15, 5}}));
    for (const double x : {8.5, 11.5})
        p.drawLine(QPointF(x, 8.5), QPointF(x, 13.5));
}

void peindre_dupliquer(QPainter& p) {
    peindre_copie(p);
    p.drawLine(QPointF(12, 9.5), QPointF(12, 14.5));
    p.drawLine(QPointF(9.5, 12), QPointF(14.5, 12));
}

// A window beside, or within, a larger one.
void peindre_ancrage(QPainter& p, bool dedans) {
    p.drawRect(QRectF(3, 4, 14, 12));
    if (dedans)
        p.drawLine(QPointF(8, 4), QPointF(8, 16));
    else
        p.drawPolyline(QPolygonF({{11, 7}, {14, 7}, {14, 10}}));
    if (!dedans)
        p.drawLine(QPointF(14, 7), QPointF(9, 12));
}

struct Commande {
    std::string_view nom;
    void (*peindre)(QPainter& p);
};

constexpr Commande commandes[] = {
    {"annuler", [](QPainter& p) { peindre_retour(p, 1); }},
    {"retablir", [](QPainter& p) { peindre_retour(p, -1); }},
    {"couper", peindre_ciseaux},
    {"copier", peindre_copie},
    {"coller", peindre_presse_papiers},
    {"dupliquer", peindre_dupliquer},
    {"supprimer", peindre_corbeille},
    {"zoom_plus", [](QPainter& p) { peindre_loupe(p, true); }},
    {"zoom_moins", [](QPainter& p) { peindre_loupe(p, false); }},
    {"ajuster", peindre_ajuster},
    {"grille", peindre_grille},
    {"accrocher", peindre_aimant},
    {"ancrer", [](QPainter& p) { peindre_ancrage(p, true); }},
    {"detacher", [](QPainter& p) { peindre_ancrage(p, false); }},
    {"aligner", [](QPainter& p) { peindre_alignement(p, 0); }},
    {"aligner_gauche", [](QPainter& p) { peindre_alignement(p, 0); }},
    {"aligner_haut", [](QPainter& p) { peindre_alignement(p, 1); }},
    {"aligner_droite", [](QPainter& p) { peindre_alignement(p, 2); }},
    {"aligner_bas", [](QPainter& p) { peindre_alignement(p, 3); }},
    {"aligner_milieu_x", [](QPainter& p) { peindre_alignement_au_milieu(p, 0); }},
    {"aligner_milieu_y", [](QPainter& p) { peindre_alignement_au_milieu(p, 1); }},
};

} // namespace

QIcon icone_outil(const Outil& outil) {
    return icone_peinte(cote_icone, [&outil](QPainter& p) { peindre_outil(p, outil); });
}

QIcon icone_objet(std::string_view cle) {
    return icone_peinte(cote_icone, [cle = std::string(cle)](QPainter& p) {
        if (cle == "LN")
            trait(p, {4, 15}, {16, 5});
        else if (nombre_de_champs(cle) == 3)
            peindre_cercle(p, cle);
        else
            peindre_boite(p, cle);
    });
}

QIcon icone_commande(std::string_view nom) {
    for (const Commande& c : commandes)
        if (c.nom == nom)
            return icone_peinte(cote_icone, c.peindre);
    return {};
}
