#pragma once

#include "config/fiche.h"
#include "config/ligne.h"

#include <exception>
#include <string_view>

/// Reads one line into a record. The first thing wrong is kept as the reason why the line is
/// refused; what is read after it counts no more.
class LectureFiche {
public:
    /// @param ligne  a line that counts, without its comment
    explicit LectureFiche(std::string_view ligne);

    std::string_view cle() const { return lue_.fiche.cle; }
    Fiche& fiche() { return lue_.fiche; }
    const Champs& champs() const { return champs_; }
    /// The text up to the next comma; "" when there is none: the line is refused.
    std::string_view suivant();
    /// The number at place i of the record: the next field, or what `texte` says.
    void entier(std::size_t i);
    void entier(std::size_t i, std::string_view texte);
    void simple(std::size_t i, std::string_view texte);
    void refuser(const std::exception& raison);

    bool refusee() const { return !lue_.refus.empty(); }
    FicheLue lue() { return std::move(lue_); }

private:
    Champs champs_;
    FicheLue lue_;
};
