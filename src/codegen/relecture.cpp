#include "codegen/relecture.h"

#include "base/erreurs.h"
#include "codegen/lexique.h"

#include <algorithm>
#include <map>
#include <optional>

namespace {

std::string entre_guillemets(std::string_view texte) {
    constexpr std::size_t montres = 60;
    const std::string_view debut = premiers_caracteres(texte, montres);
    return "« " + std::string(debut) + (debut.size() < texte.size() ? "… »" : " »");
}

bool commence_par(std::string_view texte, std::string_view debut) {
    return minuscules(texte.substr(0, debut.size())) == minuscules(debut);
}

// What follows `mot` and at least one blank; nothing when the text does not begin so.
std::optional<std::string_view> apres_mot(std::string_view texte, std::string_view mot) {
    const std::string_view reste = texte.substr(std::min(mot.size(), texte.size()));
    if (!commence_par(texte, mot) || reste.empty() || rogner(reste).size() == reste.size())
        return std::nullopt;
    return rogner(reste);
}

// A whole decimal number; the robot's language has other forms, which are not guessed.
std::optional<Entier16> nombre(std::string_view texte) {
    if (texte.find_first_not_of("-0123456789") != std::string_view::npos)
        return std::nullopt;
    try {
        return lire_entier16(texte);
    } catch (const ErreurConversion&) {
        return std::nullopt;
    }
}

// Cuts the next statement off: they stand between colons outside texts.
std::string_view prendre_instruction(std::string_view& reste) {
    bool dans_un_texte = false;
    std::size_t fin = 0;
    for (; fin < reste.size() && (dans_un_texte || reste[fin] != ':'); ++fin)
        dans_un_texte = dans_un_texte != (reste[fin] == '"');
    const std::string_view instruction = rogner(reste.substr(0, fin));
    reste.remove_prefix(std::min(fin + 1, reste.size()));
    return instruction;
}

class LecteurDeFonction {
public:
    /// Reads the statements of a line. @returns false after a Return
    bool lire_ligne(std::size_t numero, std::string_view ligne) {
        numero_ = numero;
        ligne_ = rogner(ligne);
        std::string_view reste = ligne_.substr(0, debut_de_commentaire(ligne_));
        if (const std::string_view etiquette = etiquette_definie(reste); !etiquette.empty())
            reste.remove_prefix(etiquette.size() + 1);
        while (!reste.empty()) {
            const std::string_view instruction = prendre_instruction(reste);
            if (minuscules(instruction) == "return")
                return false;
            if (!instruction.empty())
                lire(instruction);
        }
        return true;
    }

    void noter(const std::string& raison) {
        code_.incomprises.push_back({numero_, entre_guillemets(ligne_) + " : " + raison});
    }
    CodeRelu code() && { return std::move(code_); }

private:
    void lire(std::string_view instruction) {
        if (const auto sous_programme = apres_mot(instruction, "gosub"))
            return appeler(*sous_programme);
        if (std::ranges::none_of(regles_de_traduction(), [&](const RegleTraduction& r) {
                return affecter(r, instruction) || executer(r, instruction);
            }))
            noter("instruction inconnue du rejeu");
    }

    // "Val_Action = 120"
    bool affecter(const RegleTraduction& r, std::string_view instruction) {
        const std::size_t egal = instruction.find('=');
        if (!r.affectation.ends_with('=') || egal == std::string_view::npos ||
            variable(r.affectation) != minuscules(rogner(instruction.substr(0, egal))))
            return false;
        const auto valeur = nombre(rogner(instruction.substr(egal + 1)));
        valeurs_[variable(r.affectation)] = valeur;
        if (!valeur)
            noter("seul le robot connaît cette valeur");
        return true;
    }

    // "Delay 50": a statement of its own, without a subroutine.
    bool executer(const RegleTraduction& r, std::string_view instruction) {
        const auto argument =
            r.sous_programme.empty() ? apres_mot(instruction, rogner(r.affectation)) : std::nullopt;
        if (!argument)
            return false;
        if (const auto valeur = nombre(*argument))
            code_.mouvements.push_back({&r, *valeur, numero_});
        else
            noter("seul le robot connaît cette valeur");
        return true;
    }

    void appeler(std::string_view nom) {
        for (const RegleTraduction& r : regles_de_traduction()) {
            if (r.sous_programme.empty() || minuscules(nom) != minuscules(r.sous_programme))
                continue;
            const std::optional<Entier16> valeur =
                r.affectation.empty() ? Entier16(0) : valeurs_[variable(r.affectation)];
            if (valeur)
                code_.mouvements.push_back({&r, *valeur, numero_});
            else
                noter("sa valeur n'est pas connue ici");
            return;
        }
        noter("sous-programme inconnu du rejeu");
    }

    static std::string variable(std::string_view affectation) {
        return minuscules(rogner(affectation.substr(0, affectation.find('='))));
    }

    CodeRelu code_;
    std::map<std::string, std::optional<Entier16>> valeurs_; ///< none: not known
    std::size_t numero_ = 0;
    std::string_view ligne_;
};

bool porte_l_etiquette(std::string_view ligne, const std::string& nom) {
    const std::string_view nue = rogner(ligne);
    return minuscules(etiquette_definie(nue)) == nom ||
           (nue.ends_with(':') && minuscules(rogner(nue.substr(0, nue.size() - 1))) == nom);
}

} // namespace

std::string MouvementRelu::texte() const {
    std::string texte(rogner(regle->mot.substr(0, regle->mot.find(':'))));
    return regle->affectation.empty() ? texte : texte + " " + std::string(texte_entier(valeur));
}

CodeRelu relire_entree(std::string_view octets, const std::filesystem::path& fichier) {
    CodeRelu code;
    LecteurMouvements lecteur(octets, fichier);
    std::size_t numero = 1;
    try {
        while (const auto m = lecteur.suivant()) {
            numero = m->numero;
            if (m->regle != nullptr)
                code.mouvements.push_back({m->regle, m->valeur, numero});
            else if (!est_une_ligne_d_entete(m->ligne))
                code.incomprises.push_back(
                    {numero, entre_guillemets(m->ligne) + " : devient un commentaire"});
        }
    } catch (const ErreurExecution& erreur) {
        code.incomprises.push_back(
            {numero + 1, std::string("la génération s'arrête ici : ") + erreur.what()});
    }
    return code;
}

CodeRelu relire_fonction(const Programme& programme, std::string_view fonction) {
    const std::string nom = minuscules(rogner(fonction));
    LignesProgramme lignes = programme.lignes();
    auto ligne = lignes.suivante();
    while (ligne && !porte_l_etiquette(ligne->texte, nom))
        ligne = lignes.suivante();
    if (!ligne)
        throw ErreurExecution("aucune étiquette " + entre_guillemets(fonction));
    LecteurDeFonction lecteur;
    // A label that is no name stands alone on its line and is no statement.
    if (etiquette_definie(ligne->texte).empty())
        ligne = lignes.suivante();
    while (ligne && lecteur.lire_ligne(ligne->numero, ligne->texte))
        ligne = lignes.suivante();
    if (!ligne)
        lecteur.noter("la fonction finit sans Return");
    return std::move(lecteur).code();
}
