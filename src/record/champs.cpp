#include "record/champs.h"

#include "base/texte.h"
#include "sim/actions.h"

namespace {

// More than a byte is played too, but no action needs it: whoever left the field empty is told what
// makes sense.
std::string_view attendu_du_vide(const Champ& champ, std::string_view attendu) {
    const bool d_une_action = champ.nom == nom_Text1 || champ.nom == nom_Text4;
    return d_une_action ? "un nombre entier de 0 à 255" : attendu;
}

[[noreturn]] void refuser(const Champ& champ, std::string_view attendu) {
    const std::string debut = "champ « " + std::string(champ.nom) + " » : ";
    if (rogner(champ.texte).empty())
        throw ErreurExecution(debut + "il est vide, il faut " +
                              std::string(attendu_du_vide(champ, attendu)));
    throw ErreurExecution(debut + ErreurConversion(champ.texte, attendu).what());
}

Entier16 lire(const Champ& champ, std::string_view attendu) {
    try {
        return lire_entier16(champ.texte);
    } catch (const ErreurConversion&) {
        refuser(champ, attendu);
    }
}

} // namespace

Entier16 lire_champ(const Champ& champ) {
    return lire(champ, "un nombre entier de -32768 à 32767");
}

std::uint8_t lire_champ_octet(const Champ& champ) {
    constexpr std::string_view attendu =
        "un nombre entier de 0 à 255, le seul que la génération PICBASIC sache garder";
    const Entier16 valeur = lire(champ, attendu);
    if (!actions::tient_dans_un_octet(valeur))
        refuser(champ, attendu);
    return static_cast<std::uint8_t>(valeur);
}
