#pragma once

#include <cstdint>
#include <optional>

/// Where a cursor is in a computed match and how it moves: by hand, or played at some speed, over
/// and over between two instants. Times in hundredths of a second. It knows no clock: it is told
/// what time has passed.
class Deroulement {
public:
    static constexpr double au_plus_vite = 0; ///< one second of the match at each call

    /// Another match: the cursor and the loop stay where they are, as far as it goes.
    /// @param pas  of a tick, 1 or 5
    void regler(std::int32_t duree, int pas);

    std::int32_t temps() const { return static_cast<std::int32_t>(position_); }
    std::int32_t duree() const { return duree_; }
    void aller(std::int32_t temps);
    /// To the next tick or, with -1, to the one before.
    void avancer(int sens);

    bool en_lecture() const { return en_lecture_; }
    /// Plays on from the cursor; from the start (the loop's) where there is nothing left.
    void lire();
    void arreter() { en_lecture_ = false; }
    double vitesse() const { return vitesse_; }
    /// @param vitesse  times the match's own
    void regler_vitesse(double vitesse) { vitesse_ = vitesse; }
    /// So much real time has passed: moves the cursor of what is played, until the end.
    void passer(double secondes);

    /// The loop's ends. Each is set at the cursor; what would stand before its start goes.
    std::optional<std::int32_t> debut_boucle() const { return a_; }
    std::optional<std::int32_t> fin_boucle() const { return b_; }
    void poser_debut_boucle();
    void poser_fin_boucle();
    void oter_boucle() { a_ = b_ = std::nullopt; }

private:
    std::int32_t depart() const { return a_.value_or(0); }

    std::int32_t duree_ = 0;
    int pas_ = 1;
    double position_ = 0;
    double vitesse_ = 1;
    bool en_lecture_ = false;
    std::optional<std::int32_t> a_, b_;
};
