#pragma once

#include <filesystem>
#include <string>

/// What the user chose before pressing "Générer".
struct Demande {
    std::filesystem::path depart; ///< hand-written program; empty: none selected
    std::filesystem::path entree; ///< generation input file; empty: none selected
    std::string cible;            ///< text of fichier_a_generer: the path of the generated file
    std::string fonction;         ///< text of Txt_NomFctGen: the generated subroutine's name
    bool menu = false;            ///< also register it in the program's LCD menu
    std::string CheminCourant;    ///< directory list that changed last; ends a refusal's message
};

/// Why a demand is refused; both texts are empty when it is not.
struct Refus {
    std::string message;
    std::string conseil; ///< what to change; a message box's secondary text, may be empty

    explicit operator bool() const { return !message.empty(); }
};

/// The checks that precede everything, in their order; the first that fails decides.
/// @throws ErreurExecution when the target's name has no "."
Refus verifier(const Demande& demande);

/// The target would replace the generation input that it is made from.
bool cible_est_l_entree(const Demande& demande);

/// The default target: <application>/Configuration/<project>GENERE.BAS.
/// @throws ErreurExecution when no project can bear the name
std::filesystem::path cible_par_defaut(const std::filesystem::path& dossier_configuration,
                                       const std::string& NomProjet);
