#include "ui/verdict/genres_masques.h"

#include "ui/commun/boites.h"
#include "ui/commun/cle_de_projet.h"

#include <QSettings>
#include <QStringList>

namespace {

constexpr GenreNomme genres[] = {
    {Genre::arret, "Erreurs qui arrêtent le match"},
    {Genre::duree, "Trajets plus longs que 90 s"},
    {Genre::inatteinte, "Actions jamais commencées"},
    {Genre::apres_fin, "Actions après FIN"},
    {Genre::valeur, "Valeurs hors de 0 à 255"},
    {Genre::sortie, "Sorties de la table"},
    {Genre::contact_robot, "Contacts entre robots"},
    {Genre::contact_bloc, "Contacts avec un bloc"},
    {Genre::balise, "Recherches de balise sans fin"},
    {Genre::prediction, "Comptes de carreaux sans résultat"},
    {Genre::pas, "Différences entre les deux pas de temps"},
    {Genre::code, "Code qui finit ailleurs que l'écran"},
    {Genre::damier, "Damier sur une table tournée"},
    {Genre::lecture, "Fichiers mal lus"},
};
static_assert(std::size(genres) == nombre_de_genres);

} // namespace

std::span<const GenreNomme> genres_nommes() {
    return genres;
}

GenresMasques::GenresMasques(const std::filesystem::path& dossier, const std::string& projet)
    : cle_(cle_de_projet("constats_masques", dossier, projet)) {
    const QStringList noms = QSettings().value(cle_).toStringList();
    for (const GenreNomme& g : genres)
        if (noms.contains(texte_qt(nom(g.genre))))
            genres_.insert(g.genre);
}

void GenresMasques::masquer(Genre genre, bool masque) {
    if (masque)
        genres_.insert(genre);
    else
        genres_.erase(genre);
    QStringList noms;
    for (const Genre g : genres_)
        noms << texte_qt(nom(g));
    if (noms.isEmpty())
        QSettings().remove(cle_);
    else
        QSettings().setValue(cle_, noms);
}
