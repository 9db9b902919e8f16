// Where the main window's controls lie, and the options window beside it.
#include "draw/disposition.h"
#include "draw/table.h"
#include "ui/commun/place.h"
#include "ui/principale/sim1.h"
#include "ui/verdict/verdict.h"

#include <QScreen>

#include <algorithm>

namespace {

/// Largest screen side that the layout is told of: its sizes are 16-bit twips.
constexpr int ecran_maximal = 2000;
/// Side of the logo, of the table's smaller one.
constexpr double part_du_logo = 0.4;

double twips(int pixels) {
    return pixels * double(twips_par_pixel);
}

int pixels(double twips) {
    return static_cast<int>(twips / twips_par_pixel);
}

double cote_logo(const Etat& e) {
    return part_du_logo * std::min<int>(e.XMax, e.YMax);
}

} // namespace

// The options window's place is no room for the table, whose width is rounded up by XMax / 2 twips
// at most.
MesuresEcran Sim1::mesures(int largeur_lignes) const {
    const QSize ecran = screen()->availableGeometry().size();
    const QSize bords = cadre(*this);
    const int pour_options = options_.sizeHint().width() + bords.width();
    const int largeur = std::min(ecran.width() - pour_options, ecran_maximal);
    return {.largeur_ecran = twips(largeur) - e->XMax / 2.0,
            .hauteur_ecran = twips(std::min(ecran.height(), ecran_maximal)),
            .cadre_horizontal = twips(bords.width()),
            .cadre_vertical = twips(bords.height()),
            .hauteur_Mess = twips(Mess.hauteur(largeur_lignes)),
            .hauteur_Info = twips(Info.hauteur(largeur_lignes)),
            .largeur_logo = cote_logo(*e),
            .hauteur_logo = cote_logo(*e)};
}

void Sim1::Init_Table() {
    // The read-outs take more lines where the table is narrow.
    MesuresEcran m = mesures(ecran_maximal);
    const int lignes = std::max(Mess.largeur_minimale(), Info.largeur_minimale());
    m = mesures(std::max(lignes, pixels(::Init_Table(*e, m).largeur_Table)));
    const Disposition d = ::Init_Table(*e, m);
    Table.Echelle = d.Echelle;
    taille_dessinee_ = {e->XMax, e->YMax};
    taille_Table_ = {pixels(d.largeur_Table), pixels(d.hauteur_Table)};
    // A table narrower than what is to be read stands in the middle.
    resize(std::max(lignes, pixels(d.largeur_fenetre - m.cadre_horizontal)),
           pixels(d.hauteur_fenetre - m.cadre_vertical) + BarreMatch::hauteur);
    placer();
    placer_options();
}

// The table keeps its proportions whatever size the user gives to the window.
void Sim1::placer() {
    const int h_Mess = Mess.hauteur(width());
    const int h_Info = Info.hauteur(width());
    Mess.setGeometry(0, 0, width(), h_Mess);
    Info.setGeometry(0, h_Mess, width(), h_Info);
    const int haut = h_Mess + h_Info;
    const QSize place(width(), std::max(0, height() - haut - BarreMatch::hauteur));
    const QSize taille = taille_Table_.scaled(place, Qt::KeepAspectRatio);
    Table.setGeometry((width() - taille.width()) / 2, haut, taille.width(), taille.height());
    barre_.setGeometry(Table.x(), Table.geometry().bottom() + 1, Table.width(),
                       BarreMatch::hauteur);
    placer_logo();
    placer_verdict();
}

// At rest the verdict takes what the read-outs leave free, just above the table; where that is too
// little, the place of the sensor's.
void Sim1::placer_verdict() {
    LigneVerdict& ligne = verdict_->ligne();
    ligne.setVisible(!en_marche());
    const int haut = Mess.est_vide() ? 0 : Mess.height();
    constexpr int ecart = 18;
    const int libre = Info.fin_du_texte() > 0 ? Info.fin_du_texte() + ecart : 0;
    const int gauche = width() - libre < ligne.largeur_utile() ? 0 : libre;
    ligne.setGeometry(gauche, haut, width() - gauche, Table.y() - haut);
}

void Sim1::placer_logo() {
    const double cote = cote_logo(*e);
    const Repere r = Table.repere();
    const QRectF boite = r.boite((e->XMax - cote) / 2, (e->YMax + cote) / 2, (e->XMax + cote) / 2,
                                 (e->YMax - cote) / 2);
    const int n = static_cast<int>(std::min(boite.width(), boite.height()));
    logo.setGeometry(static_cast<int>(boite.left()), static_cast<int>(boite.top()), n, n);
    LNom.placer(logo.geometry());
}

void Sim1::placer_options() {
    const QRect ecran = screen()->availableGeometry();
    const int voulu = pos().x() + width() + cadre(*this).width();
    const int dernier = ecran.right() + 1 - options_.sizeHint().width() - cadre(*this).width();
    proposer_place(options_, {std::max(ecran.left(), std::min(voulu, dernier)), pos().y()});
}
