#include "analyse/deroulement.h"

#include <algorithm>

namespace {

constexpr double centiemes_par_seconde = 100;

} // namespace

void Deroulement::regler(std::int32_t duree, int pas) {
    duree_ = duree;
    pas_ = pas;
    position_ = std::min<double>(position_, duree);
    if (a_ >= duree_ || b_ > duree_)
        oter_boucle();
}

void Deroulement::aller(std::int32_t temps) {
    position_ = std::clamp(temps, 0, duree_);
}

void Deroulement::avancer(int sens) {
    const std::int32_t ici = temps();
    aller(sens > 0 ? (ici / pas_ + 1) * pas_ : (ici - 1) / pas_ * pas_);
}

void Deroulement::lire() {
    en_lecture_ = true;
    if (position_ >= b_.value_or(duree_))
        position_ = depart();
}

void Deroulement::passer(double secondes) {
    if (!en_lecture_)
        return;
    const double chemin = vitesse_ == au_plus_vite ? centiemes_par_seconde
                                                   : secondes * vitesse_ * centiemes_par_seconde;
    const double fin = b_.value_or(duree_);
    position_ = std::min(position_ + chemin, fin);
    if (position_ < fin)
        return;
    if (b_)
        position_ = depart();
    else
        en_lecture_ = false;
}

void Deroulement::poser_debut_boucle() {
    a_ = temps();
    if (b_ <= a_)
        b_.reset();
}

void Deroulement::poser_fin_boucle() {
    b_ = temps();
    if (a_ >= b_)
        a_.reset();
    if (b_ == 0)
        b_.reset();
}
