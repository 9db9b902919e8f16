#pragma once

#include "analyse/analyse.h"
#include "ui/commun/couche.h"

#include <bitset>
#include <span>
#include <vector>

/// What may be laid on the table, each to be chosen; the choices outlive the program.
enum class Calque {
    trace,           ///< while nothing runs
    trace_en_course, ///< while a match runs
    secondes,
    actions,
    bande,
    constats,
    lisibles ///< the robots' fill, number and heading mark
};
inline constexpr std::size_t nombre_de_calques = 7;

struct CalqueNomme {
    Calque calque;
    const char* nom;   ///< of its setting and of its line in the menu
    const char* texte; ///< of that line
    bool d_abord;      ///< as long as nothing was chosen
};
std::span<const CalqueNomme> calques_nommes();

class ChoixCalques {
public:
    /// As they were chosen last.
    ChoixCalques();
    bool operator[](Calque calque) const { return choisis_.test(std::size_t(calque)); }
    void choisir(Calque calque, bool oui);
    bool operator==(const ChoixCalques&) const = default;

private:
    std::bitset<nombre_de_calques> choisis_;
};

/// The computed match over the table: painted once for each computation, choice and size.
class CalqueTrace {
public:
    explicit CalqueTrace(const Etat& etat) : e_(etat) {}

    /// @param a         must outlive the layer  @param constats  whose places are marked
    void changer(const Analyse& a, std::vector<Constat> constats);
    bool existe() const { return analyse_ != nullptr; }
    /// @param table  what it lies on, with that mapping of its pixels
    void peindre(QPainter& peintre, const QWidget& table, const ChoixCalques& choix);

private:
    struct Cle {
        int version;
        ChoixCalques choix;
        bool operator==(const Cle&) const = default;
    };
    void peindre_trace(QPainter& peintre, QSizeF taille, const ChoixCalques& choix) const;

    const Etat& e_;
    const Analyse* analyse_ = nullptr;
    std::vector<Constat> constats_;
    int version_ = 0;
    Couche<Cle> couche_;
};
