#pragma once

#include <cmath>

/// One direction of a drawing to scale: which value lies at which pixel. Values are centimetres in
/// the views; a time axis has seconds.
class Axe {
public:
    enum class Sens { avec_les_pixels, contre_eux }; ///< how values grow

    /// @param min, max  limits of the scale, logical pixels per unit
    explicit Axe(double min, double max, Sens sens = Sens::avec_les_pixels)
        : min_(min), max_(max), sens_(sens == Sens::contre_eux ? -1 : 1), echelle_(min) {}

    double valeur(double pixel) const { return centre_ + sens_ * (pixel - milieu()) / echelle_; }
    double pixel(double valeur) const { return milieu() + sens_ * (valeur - centre_) * echelle_; }
    double echelle() const { return echelle_; } ///< logical pixels per unit

    /// Lies between two pixels from now on; the value in the middle stays there.
    void poser(double de, double a) {
        de_ = de;
        a_ = a;
    }
    /// Puts a value in the middle, at a scale within the limits.
    void cadrer(double centre, double echelle);
    /// The scale at which so many units (1 at least) fit between two margins of so many pixels.
    double echelle_pour(double etendue, double marge) const;
    /// Shows the values between two.
    void ajuster(double de, double a, double marge) {
        cadrer((de + a) / 2, echelle_pour(a - de, marge));
    }
    /// The value at that pixel stays there.
    void zoomer(double facteur, double autour);
    void glisser(double pixels) { centre_ -= sens_ * pixels / echelle_; }

    /// The smallest of `pas` times 1, 2, 5, 10, 20... whose multiples are at least so many pixels
    /// apart.
    double pas_lisible(double pas, double pixels) const;
    /// Calls faire(value, pixel) for each multiple of `pas` that is seen, from the smallest on.
    template <typename Faire>
    void graduer(double pas, const Faire& faire) const {
        const double fin = valeur(sens_ > 0 ? a_ : de_);
        for (int i = premier_multiple(pas); i * pas <= fin; ++i)
            faire(i * pas, pixel(i * pas));
    }

    bool operator==(const Axe&) const = default;

private:
    double milieu() const { return (de_ + a_) / 2; }
    int premier_multiple(double pas) const {
        return static_cast<int>(std::ceil(valeur(sens_ > 0 ? de_ : a_) / pas));
    }

    double min_, max_, sens_;
    double de_ = 0, a_ = 0; ///< pixels
    double centre_ = 0;     ///< value in the middle
    double echelle_;
};
