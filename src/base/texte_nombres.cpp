// Numbers from and to text, whatever the locale that the windows' library sets.
#include "base/nombre_lu.h"
#include "base/texte.h"

#include <algorithm>
#include <cassert>
#include <charconv>
#include <cmath>

namespace {

bool est_chiffre(char c) {
    return c >= '0' && c <= '9';
}

// sign? digits ("." digits)? ([eE] sign? digits)?
bool a_la_forme_d_un_nombre(std::string_view s) {
    std::size_t i = 0;
    const auto signe = [&] {
        if (i < s.size() && (s[i] == '+' || s[i] == '-'))
            ++i;
    };
    const auto chiffres = [&] {
        const std::size_t debut = i;
        while (i < s.size() && est_chiffre(s[i]))
            ++i;
        return i > debut;
    };
    signe();
    if (!chiffres())
        return false;
    if (i < s.size() && s[i] == '.') {
        ++i;
        if (!chiffres())
            return false;
    }
    if (i < s.size() && (s[i] == 'e' || s[i] == 'E')) {
        ++i;
        signe();
        if (!chiffres())
            return false;
    }
    return i == s.size();
}

// True when |s| < 1, for a text of that form: no number is too large and below 1.
bool inferieur_a_un(std::string_view s) {
    const std::size_t e = std::min(s.find_first_of("eE"), s.size());
    const std::string_view mantisse = s.substr(0, e);
    const std::size_t point = std::min(mantisse.find('.'), e);
    const std::size_t premier = mantisse.find_first_of("123456789");
    if (premier == std::string_view::npos)
        return true;
    // The number is 0.ddd x 10^ordre, its first d not 0.
    auto ordre = static_cast<long>(point) - static_cast<long>(premier) + (premier > point ? 1 : 0);
    long exposant = 0;
    std::string_view chiffres = s.substr(std::min(e + 1, s.size()));
    if (chiffres.starts_with('+'))
        chiffres.remove_prefix(1);
    const auto lu = std::from_chars(chiffres.data(), chiffres.data() + chiffres.size(), exposant);
    if (lu.ec == std::errc::result_out_of_range)
        return chiffres.starts_with('-');
    return exposant <= -ordre;
}

constexpr std::string_view attendu_nombre = "un nombre (séparateur décimal : le point)";
constexpr std::string_view attendu_entier = "un nombre entier de -32768 à 32767";

template <typename T>
bool convertir(std::string_view texte, T& valeur) {
    std::string_view s = rogner(texte);
    if (!a_la_forme_d_un_nombre(s))
        return false;
    if (s.front() == '+')
        s.remove_prefix(1);
    const auto [fin, erreur] = std::from_chars(s.data(), s.data() + s.size(), valeur);
    if (erreur == std::errc::result_out_of_range) {
        // Too small for the type is zero; too large is refused.
        valeur = 0;
        return inferieur_a_un(s);
    }
    return erreur == std::errc{} && fin == s.data() + s.size();
}

template <typename T>
TexteCourt en_decimal(T valeur) {
    std::array<char, 380> tampon{};
    const auto [fin, erreur] = std::to_chars(tampon.data(), tampon.data() + tampon.size(),
                                             valeur == 0 ? T{0} : valeur, std::chars_format::fixed);
    assert(erreur == std::errc{});
    TexteCourt texte;
    texte.ajouter({tampon.data(), static_cast<std::size_t>(fin - tampon.data())});
    return texte;
}

TexteCourt entier_arrondi(double valeur, std::size_t chiffres) {
    const double arrondi = std::round(valeur); // halves away from zero
    const TexteCourt nu = en_decimal(std::fabs(arrondi));
    TexteCourt texte;
    if (arrondi < 0)
        texte.ajouter('-');
    for (std::size_t n = nu.vue().size(); n < chiffres; ++n)
        texte.ajouter('0');
    texte.ajouter(nu);
    return texte;
}

} // namespace

std::optional<Entier16> entier16_ou_rien(std::string_view texte) {
    int petit = 0;
    const char* const fin = texte.data() + texte.size();
    if (petit_entier(texte.data(), fin, petit) == fin)
        return petit;
    double valeur = 0;
    if (!convertir(texte, valeur))
        return std::nullopt;
    const double arrondi = std::nearbyint(valeur);
    if (arrondi < -32768 || arrondi > 32767)
        return std::nullopt;
    return static_cast<int>(arrondi);
}

std::optional<float> simple_ou_rien(std::string_view texte) {
    float valeur = 0;
    return convertir(texte, valeur) ? std::optional(valeur) : std::nullopt;
}

ErreurConversion pas_un_entier16(std::string_view texte) {
    return {texte, attendu_entier};
}
ErreurConversion pas_un_simple(std::string_view texte) {
    return {texte, attendu_nombre};
}

Entier16 lire_entier16(std::string_view texte) {
    if (const auto valeur = entier16_ou_rien(texte))
        return *valeur;
    throw pas_un_entier16(texte);
}

float lire_simple(std::string_view texte) {
    if (const auto valeur = simple_ou_rien(texte))
        return *valeur;
    throw pas_un_simple(texte);
}

void TexteCourt::ajouter(std::string_view texte) {
    const std::size_t n = std::min(texte.size(), octets_.size() - longueur_);
    std::copy_n(texte.begin(), n, octets_.begin() + static_cast<std::ptrdiff_t>(longueur_));
    longueur_ += n;
}

TexteCourt texte_entier(std::int64_t valeur) {
    std::array<char, 24> tampon{};
    const auto fin = std::to_chars(tampon.data(), tampon.data() + tampon.size(), valeur).ptr;
    TexteCourt texte;
    texte.ajouter({tampon.data(), static_cast<std::size_t>(fin - tampon.data())});
    return texte;
}

TexteCourt texte_simple(float valeur) {
    return en_decimal(valeur);
}

TexteCourt texte_double15(double valeur) {
    // Fifteen digits first (as scientific text), then the shortest plain decimal of that number.
    std::array<char, 32> tampon{};
    const auto fin = std::to_chars(tampon.data(), tampon.data() + tampon.size(), valeur,
                                   std::chars_format::scientific, 14)
                         .ptr;
    double quinze = 0;
    std::from_chars(tampon.data(), fin, quinze);
    return en_decimal(quinze);
}

TexteCourt format_0(double valeur) {
    return entier_arrondi(valeur, 1);
}
TexteCourt format_00(double valeur) {
    return entier_arrondi(valeur, 2);
}
