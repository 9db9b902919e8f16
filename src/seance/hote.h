#pragma once

#include <filesystem>
#include <string_view>

/// What a session asks of whoever shows it, beside what the engine asks of `Fenetres`: the main
/// window, the command line, the tests.
class Hote {
public:
    /// The table's extent is known: sizes what shows it, chooses the scale, resets ZoneRedessin.
    /// @throws ErreurExecution when the extent does not allow it
    virtual void Init_Table() = 0;
    /// Draws everything anew after records were read; what shows it changes only with their extent.
    virtual void redessiner() = 0;
    /// Lets the settings read into Options reach their variables, orientation included.
    virtual void appliquer_reglages() = 0;
    /// A step of the start-up failed, and that was told. @returns whether the start-up goes on
    virtual bool apres_panne() = 0;
    /// Asks where to write a path that its own place refuses. @returns empty when none was chosen
    virtual std::filesystem::path choisir_dossier(std::string_view titre) = 0;
    /// The clock runs.
    virtual bool en_marche() const = 0;
    /// The end of the program was asked for: nothing of it goes on.
    virtual bool terminee() const = 0;

protected:
    ~Hote() = default;
};
