#pragma once

#include "config/document.h"
#include "config/fiche_robot.h"
#include "sim/etat.h"

#include <array>

/// A robot file under edit: segments "R" (x1, y1, x2, y2), speeds "V" (linear and turning,
/// hundredths), reference point and wheel track "A", sensor line "E" (extremity, length), initial
/// pose "I" (x, y, heading). Of V, A, E and I the last one counts.
class DocumentRobot : public Document {
public:
    static constexpr int segments_max = 50;

    static DocumentRobot nouveau();
    static DocumentRobot depuis(std::string_view octets);
    /// What figer() gave. @throws ErreurExecution for other bytes
    static DocumentRobot depuis_fige(std::string_view fige);

    /// @throws ErreurExecution, a sentence for the user, beyond 50 segments
    std::size_t ajouter(Fiche e);
    /// The last record of that key: V, A, E or I.
    std::optional<std::size_t> trouver(std::string_view cle) const;
    /// Its numbers, 0 when the file has none.
    std::array<float, 4> valeurs(std::string_view cle) const;
    /// Changes the last record of that key, or adds one.
    void regler(std::string_view cle, const std::array<float, 4>& v);

    /// The file's bytes. @throws ErreurExecution when the reader would not read back these very
    /// records
    std::string ecrire() const;
    static std::optional<RefusLecture> relire(std::string_view octets);
    /// Robot 1 of the state becomes this one, on its initial pose.
    void remplir(Etat& e) const;

private:
    std::string ligne_ecrite(std::size_t r) const;
    std::string texte_compris() const;
};
