#include "feuille/page.h"

#include "analyse/phrases.h"
#include "feuille/largeur_texte.h"

#include <algorithm>
#include <array>

namespace {

constexpr double bord = 12; ///< of the paper
constexpr double largeur_utile = largeur_page - 2 * bord;
constexpr double gouttiere = 5;
constexpr double interligne = 1.3;
constexpr Couleur gris{190, 190, 190};
constexpr double corps_courant = 8;
constexpr double corps_des_titres = 10;
constexpr double corps_des_fichiers = 6;

double ligne_de(double corps) {
    return corps * mm_par_point * interligne;
}

/// A column of text that fills from the top.
struct Colonne {
    double x = 0, y = 0, largeur = 0, bas = 0;

    bool a_place(double hauteur) const { return y + hauteur <= bas; }
};

/// How the actions are set: the first of these in which all of them find their place.
struct Mise {
    double hauteur_image = 0; ///< at most
    double corps = 0;
    int colonnes = 1;
};
constexpr std::array mises{Mise{150, 9.5, 1}, Mise{150, 8.5, 1}, Mise{130, 8.5, 1},
                           Mise{150, 7.2, 2}, Mise{120, 7.2, 2}, Mise{110, 6, 2}};

std::string autres(std::size_t n, const char* quoi) {
    return "… " + std::to_string(n) + (n > 1 ? " autres " : " autre ") + quoi + (n > 1 ? "s" : "");
}

class Composition {
public:
    explicit Composition(const Feuille& feuille) : f(feuille) {}

    Page page() {
        fichiers();
        en_tete();
        for (const Mise& mise : mises) {
            if (preparer(mise) >= lignes_voulues() || &mise == &mises.back()) {
                image();
                a_cote();
                actions(mise);
                break;
            }
        }
        return std::move(p);
    }

private:
    void ecrire(double x, double y, double corps, std::string texte, bool gras = false) {
        p.textes.push_back({x, y, corps, gras, std::move(texte)});
    }
    /// One more line of a column.
    void ligne(Colonne& c, double corps, const std::string& texte, bool gras = false) {
        c.y += ligne_de(corps);
        ecrire(c.x, c.y, corps, texte, gras);
    }
    void titre(Colonne& c, const std::string& texte) {
        ligne(c, corps_des_titres, texte, true);
        c.y += 1;
        p.filets.push_back({c.x, c.y, c.x + c.largeur, c.y, couleurs::noir});
        c.y += 0.5;
    }

    // At the bottom, two or three a line.
    void fichiers() {
        std::vector<std::string> textes;
        for (const FichierDeFeuille& fichier : f.fichiers)
            textes.push_back(fichier.nom + "  " + fichier.date + "  " + fichier.somme);
        double plus_large = 1;
        for (const std::string& texte : textes)
            plus_large = std::max(plus_large, largeur_texte(texte, corps_des_fichiers));
        const auto colonnes = std::max<std::size_t>(
            1, static_cast<std::size_t>(largeur_utile / (plus_large + gouttiere)));
        const std::size_t rangees = (textes.size() + colonnes - 1) / colonnes;
        const double hauteur = static_cast<double>(rangees) * ligne_de(corps_des_fichiers);
        bas_ = hauteur_page - bord - hauteur - 4;
        Colonne c{bord, bas_ + 1, largeur_utile, hauteur_page};
        p.filets.push_back({bord, bas_ + 1, bord + largeur_utile, bas_ + 1, gris});
        for (std::size_t n = 0; n < textes.size(); ++n) {
            const std::size_t colonne = n % colonnes;
            const std::size_t rangee = n / colonnes + 1;
            const double x =
                bord + static_cast<double>(colonne) * largeur_utile / static_cast<double>(colonnes);
            const double y = c.y + static_cast<double>(rangee) * ligne_de(corps_des_fichiers);
            ecrire(x, y, corps_des_fichiers, textes[n]);
        }
    }

    void en_tete() {
        constexpr double corps_du_nom = 18;
        constexpr double corps_du_verdict = 10;
        Colonne c{bord, bord, largeur_utile, bas_};
        const double date = largeur_texte(f.date, corps_courant);
        ecrire(bord + largeur_utile - date, bord + ligne_de(corps_du_nom), corps_courant, f.date);
        const std::string nom = "Feuille de match – " + f.projet;
        const double place = largeur_utile - date - gouttiere;
        const double serre = place / largeur_texte(nom, corps_du_nom, true);
        c.y += ligne_de(corps_du_nom);
        ecrire(bord, c.y, corps_du_nom * std::min(1.0, serre), nom, true);
        c.y += 1.5;
        for (const std::string& texte : couper(f.verdict, corps_du_verdict, largeur_utile))
            ligne(c, corps_du_verdict, texte);
        haut_ = c.y + 4;
    }

    bool en_largeur() const { return f.largeur > f.hauteur; }

    /// Places picture and columns. @returns how many lines of actions there is room for
    std::size_t preparer(const Mise& mise) {
        const double largeur_max = en_largeur() ? largeur_utile : 0.55 * largeur_utile;
        const double hauteur_max = en_largeur() ? 0.75 * mise.hauteur_image : mise.hauteur_image;
        const double echelle = std::min(largeur_max / f.largeur, hauteur_max / f.hauteur);
        p.image_x = bord;
        p.image_y = haut_;
        p.image_largeur = f.largeur * echelle;
        p.image_hauteur = f.hauteur * echelle;
        const double dessous = haut_ + p.image_hauteur + 2;
        if (en_largeur()) {
            constexpr double hauteur_des_textes = 50;
            const double l = (largeur_utile - gouttiere) / 2;
            placements_ = {bord, dessous, l, dessous + hauteur_des_textes};
            constats_ = {bord + l + gouttiere, dessous, l, placements_.bas};
            haut_des_actions_ = placements_.bas + 1;
        } else {
            const double x = bord + p.image_largeur + gouttiere;
            placements_ = {x, haut_ - 3, bord + largeur_utile - x, haut_ + p.image_hauteur};
            haut_des_actions_ = dessous;
        }
        return lignes_possibles(mise);
    }

    std::size_t par_colonne(const Mise& mise) const {
        constexpr double tete = 7; ///< the title
        const double place = bas_ - haut_des_actions_ - tete;
        const double titre_seul = f.plans.size() > 1 ? 1 : 0; // goes to the next column
        return static_cast<std::size_t>(std::max(place / ligne_de(mise.corps) - titre_seul, 1.0));
    }
    std::size_t lignes_possibles(const Mise& mise) const {
        return par_colonne(mise) * static_cast<std::size_t>(mise.colonnes);
    }
    std::size_t lignes_voulues() const { return lignes_avec(hauteur_infinie); }
    /// With so many actions a robot at most: its title and, if some are left out, a line more.
    std::size_t lignes_avec(std::size_t actions) const {
        std::size_t n = 0;
        for (const PlanDeFeuille& plan : f.plans)
            n += 1 + (plan.actions.size() > actions ? actions + 1 : plan.actions.size());
        return n;
    }

    void image() {
        for (const bool vertical : {false, true})
            for (const double part : {0.0, 1.0}) {
                const double x = p.image_x + part * p.image_largeur;
                const double y = p.image_y + part * p.image_hauteur;
                p.filets.push_back(
                    vertical ? FiletDePage{x, p.image_y, x, p.image_y + p.image_hauteur, gris}
                             : FiletDePage{p.image_x, y, p.image_x + p.image_largeur, y, gris});
            }
    }

    void a_cote() {
        titre(placements_, "Placement au départ");
        const std::size_t restants = placements();
        if (restants > 0)
            ligne(placements_, corps_courant, autres(restants, "robot"));
        if (!en_largeur()) {
            constats_ = placements_;
            constats_.y += 3;
        }
        titre(constats_, f.constats.empty()
                             ? "Aucun constat"
                             : compte(static_cast<int>(f.constats.size()), "constat"));
        constats();
    }

    bool detailles() const { return f.placements.size() <= 3; }
    std::vector<std::string> lignes_du_placement(const Placement& r) const {
        if (!detailles())
            return couper(std::to_string(r.robot) + " : " + r.texte_court(), corps_courant,
                          placements_.largeur);
        std::vector<std::string> lignes;
        for (const std::string& texte : {r.texte_reference(), r.texte_contour(), r.texte_cap()})
            for (std::string& l : couper(texte, corps_courant, placements_.largeur))
                lignes.push_back(std::move(l));
        return lignes;
    }

    /// @returns how many robots find no place
    std::size_t placements() {
        const double place_des_constats = en_largeur() ? 0 : 30;
        for (std::size_t n = 0; n < f.placements.size(); ++n) {
            const Placement& r = f.placements[n];
            const std::vector<std::string> lignes = lignes_du_placement(r);
            const double hauteur = static_cast<double>(lignes.size() + 2) * ligne_de(corps_courant);
            if (!placements_.a_place(hauteur + place_des_constats))
                return f.placements.size() - n;
            if (detailles() && f.placements.size() > 1)
                ligne(placements_, corps_courant, "Robot " + std::to_string(r.robot), true);
            for (const std::string& l : lignes)
                ligne(placements_, corps_courant, l);
        }
        return 0;
    }

    void constats() {
        constexpr double corps = 7;
        constexpr double retrait = 3;
        for (std::size_t n = 0; n < f.constats.size(); ++n) {
            const auto lignes = couper(f.constats[n], corps, constats_.largeur - retrait);
            const double hauteur = static_cast<double>(lignes.size() + 1) * ligne_de(corps);
            if (!constats_.a_place(hauteur))
                return ligne(constats_, corps, autres(f.constats.size() - n, "constat"));
            ecrire(constats_.x, constats_.y + ligne_de(corps), corps, "▲");
            constats_.x += retrait;
            for (const std::string& l : lignes)
                ligne(constats_, corps, l);
            constats_.x -= retrait;
            constats_.y += 0.8;
        }
    }

    void actions(const Mise& mise) {
        Colonne tete{bord, haut_des_actions_, largeur_utile, bas_};
        titre(tete, "Actions : numéro, action, début → fin (s), arrivée x ; y ; cap (cm, °)");
        const std::size_t possibles = lignes_possibles(mise);
        std::size_t garde = hauteur_infinie;
        if (lignes_avec(garde) > possibles)
            for (garde = possibles; garde > 0 && lignes_avec(garde) > possibles; --garde) {
            }
        const double largeur = (largeur_utile - gouttiere * (mise.colonnes - 1)) / mise.colonnes;
        const double corps = corps_qui_tient(mise.corps, largeur);
        colonne_ = {bord, tete.y, largeur, bas_};
        for (const PlanDeFeuille& plan : f.plans) {
            place_pour(2 * ligne_de(corps), tete.y);
            ligne(colonne_, corps, plan.titre, true);
            for (std::size_t n = 0; n < std::min(garde, plan.actions.size()); ++n) {
                place_pour(ligne_de(corps), tete.y);
                action(plan.actions[n], corps);
            }
            if (plan.actions.size() > garde) {
                place_pour(ligne_de(corps), tete.y);
                ligne(colonne_, corps, autres(plan.actions.size() - garde, "action"));
            }
        }
    }

    // The next column begins where this one has no room.
    void place_pour(double hauteur, double haut) {
        if (colonne_.a_place(hauteur) || colonne_.x + colonne_.largeur + 1 >= bord + largeur_utile)
            return;
        colonne_.x += colonne_.largeur + gouttiere;
        colonne_.y = haut;
    }

    /// The size in which the widest line fits a column, where its four parts begin then.
    double corps_qui_tient(double corps, double largeur) {
        const double ligne = mesurer_les_colonnes(corps);
        if (ligne <= largeur)
            return corps;
        corps *= largeur / ligne;
        mesurer_les_colonnes(corps);
        return corps;
    }

    /// @returns how wide a line of all four parts is
    double mesurer_les_colonnes(double corps) {
        const double entre = corps * mm_par_point;
        double poses = 0;
        x_texte_ = x_temps_ = x_pose_ = 0;
        for (const PlanDeFeuille& plan : f.plans)
            for (const ActionDeFeuille& a : plan.actions) {
                x_texte_ = std::max(x_texte_, largeur_texte(a.numero, corps));
                x_temps_ = std::max(x_temps_, largeur_texte(a.texte, corps));
                x_pose_ = std::max(x_pose_, largeur_texte(a.temps, corps));
                poses = std::max(poses, largeur_texte(a.pose, corps));
            }
        x_texte_ += entre / 2;
        x_temps_ += x_texte_ + entre;
        x_pose_ += x_temps_ + entre;
        return x_pose_ + poses;
    }

    void action(const ActionDeFeuille& a, double corps) {
        ligne(colonne_, corps, a.numero);
        ecrire(colonne_.x + x_texte_, colonne_.y, corps, a.texte);
        ecrire(colonne_.x + x_temps_, colonne_.y, corps, a.temps);
        ecrire(colonne_.x + x_pose_, colonne_.y, corps, a.pose);
        const double y = colonne_.y + 0.25 * corps * mm_par_point;
        p.filets.push_back({colonne_.x, y, colonne_.x + colonne_.largeur, y, gris});
    }

    static constexpr std::size_t hauteur_infinie = 100'000;

    const Feuille& f;
    Page p;
    double haut_ = 0, bas_ = 0, haut_des_actions_ = 0;
    Colonne placements_, constats_, colonne_;
    double x_texte_ = 0, x_temps_ = 0, x_pose_ = 0;
};

} // namespace

Page composer(const Feuille& f) {
    return Composition(f).page();
}
