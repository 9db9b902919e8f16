#include "boucle_minimale.h"

#include "sim/actions.h"

#include <cmath>

namespace {

constexpr double rad(double degres) {
    return degres * 3.14159 / 180;
}
float f32(double x) {
    return static_cast<float>(x);
}

int colonne(float x) {
    for (int i = 0; i < 7; ++i) {
        if (static_cast<float>(30 * i) < x && x < static_cast<float>(30 * i + 30))
            return i;
    }
    return 6;
}

bool couleur(float x, float y) {
    const int i = colonne(x);
    int j = 0;
    while (i < 6 && j < 9 &&
           !(static_cast<float>(30 * j) < y && y < static_cast<float>(30 * j + 30)))
        ++j;
    return (i + j) % 2 == 0;
}

} // namespace

BoucleMinimale::Code BoucleMinimale::code_de(const Nom10& nom) {
    using namespace actions;
    const std::pair<Nom10, Code> noms[] = {
        {FIN, Code::fin},       {PAUSE, Code::pause},   {AVANCE, Code::avance},
        {RECULE, Code::recule}, {DROITE, Code::droite}, {GAUCHE, Code::gauche},
        {VIRAVDR, Code::avdr},  {VIRAVGA, Code::avga},  {VIRARDR, Code::ardr},
        {VIRARGA, Code::arga},  {BALISE_DRO, Code::bd}, {BALISE_GAU, Code::bg}};
    for (const auto& [n, code] : noms) {
        if (n == nom)
            return code;
    }
    return Code::fin;
}

BoucleMinimale::BoucleMinimale(const Etat& e)
    : point_x_(e.PointX), point_y_(e.PointY), pas_temps_(e.PasTemps) {
    for (int i = 1; i <= e.NbRobot; ++i) {
        Robot r;
        for (int k = 1; k <= e.TrajNbActions(i); ++k)
            r.trajet.push_back(
                {code_de(e.TrajAction(i, k)), e.TrajParam1(i, k), e.TrajParam2(i, k)});
        r.x0 = e.XInit(i);
        r.y0 = e.YInit(i);
        r.cap0 = e.CapInit(i);
        r.xm0 = e.XmInit(i);
        r.ym0 = e.YmInit(i);
        r.xextr0 = e.XextrInit(i);
        r.yextr0 = e.YextrInit(i);
        r.dist = e.DistExtr(i);
        r.vlin = e.VitesseLin(i);
        r.vrot = e.VitesseRot(i);
        r.entraxe = e.Entraxe(i);
        robots_.push_back(std::move(r));
    }
}

void BoucleMinimale::jouer() {
    for (Robot& r : robots_) {
        r.num = 0;
        r.action = {Code::rien, 0, 0};
        r.x = r.x0;
        r.y = r.y0;
        r.cap = r.cap0;
        r.xm = r.xm0;
        r.ym = r.ym0;
        r.xextr = r.xextr0;
        r.yextr = r.yextr0;
    }
    incidence_ = 0;
    carreaux_ = 0;
    prediction_ = 0;
    for (int temps = 0; temps <= duree_du_match;) {
        temps += pas_temps_;
        for (Robot& r : robots_)
            executer(r);
    }
}

void BoucleMinimale::executer(Robot& r) {
    switch (r.action.code) {
    case Code::fin:
        return;
    case Code::pause:
        r.progression = f32(double{r.progression} + pas_temps_);
        if (r.progression > static_cast<float>(r.action.p1))
            r.action.code = Code::rien;
        return;
    case Code::avance:
        return avancer(r, r.action.p1);
    case Code::recule:
        return avancer(r, -r.action.p1);
    case Code::droite:
        return tourner(r, -r.action.p1);
    case Code::gauche:
        return tourner(r, r.action.p1);
    case Code::avdr:
        return virer(r, -r.action.p1, 90);
    case Code::avga:
        return virer(r, r.action.p1, -90);
    case Code::ardr:
        return virer(r, -r.action.p1, -90);
    case Code::arga:
        return virer(r, r.action.p1, 90);
    case Code::bd:
        return chercher(r, true);
    case Code::bg:
        return chercher(r, false);
    case Code::rien:
        return charger(r);
    }
}

void BoucleMinimale::charger(Robot& r) {
    if (r.num < r.trajet.size()) {
        r.action = r.trajet[r.num++];
        predire(r);
    } else {
        r.action.code = Code::fin;
    }
    r.progression = 0;
}

void BoucleMinimale::avancer(Robot& r, int distance) {
    float pas = f32(distance < 1 ? -(double{r.vlin} * pas_temps_) : double{r.vlin} * pas_temps_);
    for (Robot& j : robots_) {
        const double c = std::cos(rad(incidence_));
        const double s = std::sin(rad(incidence_));
        j.xm = f32(j.xm + pas * c);
        j.ym = f32(j.ym + pas * s);
        j.xextr = f32(j.xm + j.dist * c);
        j.yextr = f32(j.ym + j.dist * s);
    }
    r.progression = f32(double{r.progression} + pas);
    if (std::fabs(r.progression) >= std::fabs(static_cast<float>(distance))) {
        r.action.code = Code::rien;
        pas = f32(distance - double{r.progression} + pas);
    }
    r.x = f32(r.x + pas * std::cos(rad(r.cap)));
    r.y = f32(r.y + pas * std::sin(rad(r.cap)));
}

void BoucleMinimale::tourner(Robot& r, int angle) {
    const bool gauche = angle >= 1;
    if (static_cast<float>(angle) == (gauche ? r.cap : r.progression))
        incidence_ = f32(double{r.progression} + 1);
    else if (gauche)
        incidence_ = r.cap < 0 ? f32(double{r.cap} + 360) : r.cap;
    else
        incidence_ = r.cap > 360 ? f32(double{r.cap} - 360) : r.cap;
    if (incidence_ == 360)
        incidence_ = 0;
    const double tour = double{r.vrot} * pas_temps_;
    float pas = f32(gauche ? tour : -tour);
    for (Robot& j : robots_) {
        j.xextr = f32(j.xm + j.dist * std::cos(rad(incidence_)));
        j.yextr = f32(j.ym + j.dist * std::sin(rad(incidence_)));
    }
    r.progression = f32(double{r.progression} + pas);
    if (std::fabs(r.progression) >= std::fabs(static_cast<float>(angle))) {
        r.action.code = Code::rien;
        pas = f32(angle - double{r.progression} + pas);
    }
    r.cap = f32(double{r.cap} + pas);
}

void BoucleMinimale::virer(Robot& r, int angle, int cote) {
    const int rayon = r.action.p2;
    double vitesse = double{r.vlin} * pas_temps_ / (double{r.entraxe} / 2 + rayon);
    if (angle <= 0)
        vitesse = -vitesse;
    const float w = f32(vitesse);
    float da = f32(double{w} * 180 / 3.14159);
    r.progression = f32(double{r.progression} + da);
    if (std::fabs(r.progression) >= std::fabs(static_cast<float>(angle))) {
        r.action.code = Code::rien;
        da = f32(angle - double{r.progression} + da);
    }
    const double a1 = rad(cote + double{r.cap});
    const double a2 = rad(da + double{r.cap} + cote);
    r.x = f32(r.x - rayon * std::cos(a1) + rayon * std::cos(a2));
    r.y = f32(r.y - rayon * std::sin(a1) + rayon * std::sin(a2));
    r.cap = f32(double{r.cap} + da);
    for (Robot& j : robots_) {
        j.xm = f32(j.xm - rayon * std::cos(a1) + rayon * std::cos(a2));
        j.ym = f32(j.ym - rayon * std::sin(a1) + rayon * std::sin(a2));
    }
}

void BoucleMinimale::chercher(Robot& r, bool a_droite) {
    constexpr auto pas = static_cast<float>(5 * 3.14159 / 180);
    r.progression = 0;
    for (Robot& j : robots_) {
        j.xextr = f32(j.xm + j.dist * std::cos(rad(incidence_)));
        j.yextr = f32(j.ym + j.dist * std::sin(rad(incidence_)));
    }
    const float s = a_droite ? -pas : pas;
    if (s == (a_droite ? r.progression : r.cap))
        incidence_ = f32(double{r.progression} + 1);
    else if (a_droite)
        incidence_ = r.cap > 360 ? f32(double{r.cap} - 360) : r.cap;
    else
        incidence_ = r.cap < 0 ? f32(double{r.cap} + 360) : r.cap;
    if (incidence_ == 360)
        incidence_ = 0;
    const double tour = double{r.vrot} * pas_temps_;
    float t = f32(a_droite ? -tour : tour);
    r.progression = f32(double{t} + r.progression);
    if (std::fabs(s) <= std::fabs(r.progression))
        t = s;
    r.cap = f32(double{r.cap} + t);
    const PointBalise& b = a_droite ? point_y_ : point_x_;
    const auto distance = [&b](double x, double y) {
        return std::sqrt((b.X - x) * (b.X - x) + (b.Y - y) * (b.Y - y));
    };
    const double d2 = distance(r.xextr, r.yextr) + r.dist;
    const double dmin = distance(r.xm, r.ym);
    if (std::round(dmin * 100) == std::round(d2 * 100))
        r.action.code = Code::rien;
}

void BoucleMinimale::predire(const Robot& r) {
    const float xd = robots_[0].xextr;
    const float yd = robots_[0].yextr;
    const int p = r.action.p1;
    switch (r.action.code) {
    case Code::avance:
    case Code::recule:
    case Code::droite:
    case Code::gauche:
        return marcher(xd, yd, f32(xd + p * std::cos(rad(incidence_))),
                       f32(yd + p * std::sin(rad(incidence_))));
    case Code::avdr:
    case Code::arga:
        return predire_arc(r, 90);
    case Code::avga:
    case Code::ardr:
        return predire_arc(r, -90);
    default:
        return;
    }
}

void BoucleMinimale::predire_arc(const Robot& r, int cote) {
    if (!avec_arcs)
        return;
    const float xd = robots_[0].xextr;
    const float yd = robots_[0].yextr;
    const int rayon = r.action.p2;
    const double a1 = rad(cote + double{r.cap});
    const double a2 = rad(r.action.p1 + double{r.cap} + cote);
    marcher_si_fini(xd, yd, f32(xd - rayon * std::cos(a1) + rayon * std::cos(a2)),
                    f32(yd - rayon * std::sin(a1) + rayon * std::sin(a2)));
}

void BoucleMinimale::marcher_si_fini(float xd, float yd, float xf, float yf) {
    if (prediction_ == finis_.size()) {
        int k = 0;
        float x = xd;
        float y = yd;
        while (k <= 32767 && (x < xf || y < yf)) {
            ++k;
            x = f32(xd + k * std::cos(rad(incidence_)));
            y = f32(yd + k * std::sin(rad(incidence_)));
        }
        finis_.push_back(k <= 32767);
    }
    if (finis_[prediction_++])
        marcher(xd, yd, xf, yf);
}

void BoucleMinimale::marcher(float xd, float yd, float xf, float yf) {
    float x = xd;
    float y = yd;
    bool vue = couleur(x, y);
    for (int k = 0; x < xf || y < yf;) {
        if (couleur(x, y) != vue) {
            vue = !vue;
            ++carreaux_;
        }
        ++k;
        x = f32(xd + k * std::cos(rad(incidence_)));
        y = f32(yd + k * std::sin(rad(incidence_)));
    }
}
