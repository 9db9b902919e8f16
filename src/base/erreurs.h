#pragma once

#include <filesystem>
#include <stdexcept>
#include <string>
#include <string_view>

/// Everything that the program's own code throws. what() is a French sentence without a final stop
/// that says what happened and shows the offending text, ready for a message box.
class ErreurExecution : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// What a message says of an error that nobody has dealt with.
std::string texte_erreur_execution(std::string_view raison);

/// A record that a reader does not know or that the file as a whole lacks.
class ErreurLecture : public ErreurExecution {
public:
    static constexpr int code = 31037;
    explicit ErreurLecture(const std::string& raison) : ErreurExecution(raison) {}
};

/// A text that is not the number asked for.
class ErreurConversion : public ErreurExecution {
public:
    /// @param texte    the text as it was found
    /// @param attendu  what was expected, for instance "un nombre entier de -32768 à 32767"
    ErreurConversion(std::string_view texte, std::string_view attendu);
};

/// An index outside its table.
class HorsTable : public ErreurExecution {
public:
    HorsTable(long long indice, long long dernier);
};

/// A whole number outside -32768..32767 (or outside the range that is named).
class Debordement : public ErreurExecution {
public:
    explicit Debordement(const std::string& raison) : ErreurExecution(raison) {}
    explicit Debordement(long long valeur);
};

class DivisionParZero : public ErreurExecution {
public:
    DivisionParZero() : ErreurExecution("division par zéro") {}
};

/// A file that cannot be opened, read, written or replaced.
class ErreurFichier : public ErreurExecution {
public:
    /// @param raison  the cause in French, for instance "le disque est plein"
    ErreurFichier(const std::filesystem::path& chemin, std::string_view raison);
    /// The cause is the system's error number.
    ErreurFichier(const std::filesystem::path& chemin, int numero_erreur);

    const std::filesystem::path& chemin() const { return chemin_; }
    const std::string& raison() const { return raison_; }

private:
    std::filesystem::path chemin_;
    std::string raison_;
};
