#include "draw/disposition.h"

namespace {
constexpr double reserve = 450; ///< twips kept free below the window
} // namespace

Disposition Init_Table(Etat& e, const MesuresEcran& m) {
    const Entier16 fw = arrondir16(m.cadre_horizontal);
    const Entier16 fh = arrondir16(m.cadre_vertical);
    const Entier16 aw = arrondir16(m.largeur_ecran - fw);
    const Entier16 ah = arrondir16(m.hauteur_ecran - fh - 2 * m.hauteur_Mess - reserve);

    const Entier16 en_largeur = arrondir16(diviser(aw, e.XMax));
    const Entier16 en_hauteur = arrondir16(diviser(ah, e.YMax));
    Disposition d;
    d.Echelle = en_hauteur < en_largeur ? en_hauteur : en_largeur;
    d.largeur_Table = e.XMax * d.Echelle;
    d.hauteur_Table = e.YMax * d.Echelle;
    d.largeur_fenetre = fw + d.largeur_Table;
    d.hauteur_fenetre = fh + d.hauteur_Table + m.hauteur_Mess + m.hauteur_Info;
    d.gauche_logo = (e.XMax - m.largeur_logo) / 2;
    d.haut_logo = (e.YMax + m.hauteur_logo) / 2;

    e.ZoneRedessin = {0, e.XMax, 0, e.YMax};
    d.ZoneLogo = {arrondir16(d.gauche_logo), arrondir16(d.gauche_logo + m.largeur_logo),
                  arrondir16(d.haut_logo - m.hauteur_logo), arrondir16(d.haut_logo)};
    return d;
}
