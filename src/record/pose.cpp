#include "record/pose.h"

namespace {

void poser(Etat& e, Entier16 I, const Pose& pose) {
    e.XInit(I) = e.XRobot(I) = pose.x;
    e.YInit(I) = e.YRobot(I) = pose.y;
    e.CapInit(I) = e.CapRobot(I) = pose.cap;
}

} // namespace

ChampsPose tele_get_xya(const Etat& e, Entier16 I) {
    Entier16 A = arrondir16(e.CapInit(I));
    float X = e.XInit(I);
    float Y = e.YInit(I);
    if (e.TableHorizontale) {
        const float ancien_x = X;
        X = simple(e.XMax - double{Y});
        Y = ancien_x;
        A = A + 90;
    }
    return {std::string(texte_simple(X).vue()), std::string(texte_simple(Y).vue()),
            std::string(texte_entier(A).vue())};
}

void tele_set_xya(Etat& e, Moteur& moteur, Fenetres& f, Entier16 I, Entier16& X, Entier16& Y,
                  Entier16& A) {
    if (e.TableHorizontale) {
        const Entier16 tape_x = X;
        X = Y;
        Y = e.YMax - tape_x;
        A = A - 90;
    }
    poser(e, I, {static_cast<float>(X), static_cast<float>(Y), static_cast<float>(A)});
    e.RobotTele = I;
    moteur.Run_Jeu();
    f.Dessine_Table();
    f.Dessine_Robot();
}

ChampsPose champs_pour(const Etat& e, const Pose& affichee) {
    const Entier16 x = arrondir16(affichee.x);
    const Entier16 y = arrondir16(affichee.y);
    const int cap = arrondir16(affichee.cap);
    const auto champs = [](Entier16 X, Entier16 Y, int A) {
        return ChampsPose{std::string(texte_entier(X).vue()), std::string(texte_entier(Y).vue()),
                          std::string(texte_entier(A % 360).vue())};
    };
    return e.TableHorizontale ? champs(e.YMax - y, x, cap + 90) : champs(x, y, cap);
}

LimitesPose limites_de_position(const Etat& e) {
    if (e.TableHorizontale)
        return {e.YMax, e.XMax};
    return {e.XMax, e.YMax};
}

int ecart_de_relecture(const Etat& e) {
    return e.TableHorizontale ? int{e.XMax} - int{e.YMax} : 0;
}

// In the turned frame YMax is the unturned width: x = YMax - y', y = x', and back.
Pose pose_des_fichiers(const Etat& e, Entier16 I) {
    const Pose p{e.XInit(I), e.YInit(I), e.CapInit(I)};
    if (!e.TableHorizontale)
        return p;
    return {simple(e.YMax - double{p.y}), static_cast<float>(arrondir16(p.x)),
            simple(double{p.cap} + 90)};
}

void poser_depuis_fichier(Etat& e, Entier16 I, Pose pose) {
    if (e.TableHorizontale)
        pose = {pose.y, simple(e.YMax - double{static_cast<float>(arrondir16(pose.x))}),
                simple(double{pose.cap} - 90)};
    poser(e, I, pose);
}
