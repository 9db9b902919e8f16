#include "ui/principale/projets_recents.h"

#include "config/projets.h"
#include "ui/commun/boites.h"
#include "ui/commun/cle_de_projet.h"

#include <QSettings>
#include <QStringList>

#include <algorithm>

namespace {

QString cle(const std::filesystem::path& configuration) {
    return cle_de_projet("projets_recents", configuration, "");
}

QStringList retenus(const std::filesystem::path& configuration) {
    return QSettings().value(cle(configuration)).toStringList();
}

} // namespace

std::vector<std::string> projets_recents(const std::filesystem::path& configuration) {
    const std::vector<std::string> presents = lister_projets(configuration);
    std::vector<std::string> noms;
    for (const QString& nom : retenus(configuration))
        if (std::ranges::find(presents, nom.toStdString()) != presents.end())
            noms.push_back(nom.toStdString());
    return noms;
}

void retenir_projet(const std::filesystem::path& configuration, const std::string& projet) {
    constexpr qsizetype au_plus = 8;
    QStringList noms = retenus(configuration);
    const QString nom = texte_qt(projet);
    if (projet.empty() || (!noms.isEmpty() && noms.front() == nom))
        return;
    noms.removeAll(nom);
    noms.prepend(nom);
    QSettings().setValue(cle(configuration), QStringList(noms.mid(0, au_plus)));
}
