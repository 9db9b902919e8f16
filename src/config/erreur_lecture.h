#pragma once

#include <filesystem>
#include <string>

/// What a reader of a project's files complained about. Message boxes, "verifier" and the findings
/// word this value.
struct ErreurDeLecture {
    enum class Nature {
        acces,  ///< the file cannot be opened or read
        contenu ///< a line, or the file as a whole, is refused
    };
    Nature nature = Nature::contenu;
    std::filesystem::path fichier;
    int robot = 0;          ///< 0: the settings or the table
    int ligne = 0;          ///< within that file, from 1; 0 when not even the first one was reached
    int ligne_annoncee = 0; ///< counted on over the trajectories of all robots
    std::string raison;     ///< without the file's name
    std::string consequence{}; ///< what becomes of the match; may be empty
    std::string suite{};       ///< of the file's name behind the project's: " Robot3.ini"
};

/// The text of the message box: file and line.
std::string annonce(const ErreurDeLecture& erreur);
/// What stands beneath it: the reason.
std::string explication(const ErreurDeLecture& erreur);
