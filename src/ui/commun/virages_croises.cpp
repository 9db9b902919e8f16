#include "ui/commun/virages_croises.h"

#include "ui/commun/cle_de_projet.h"

#include <QSettings>

namespace {

constexpr auto groupe_des_virages = "virages_croises";

} // namespace

bool virages_croises(const std::filesystem::path& dossier, const std::string& projet) {
    return QSettings().value(cle_de_projet(groupe_des_virages, dossier, projet), true).toBool();
}

void retenir_virages_croises(const std::filesystem::path& dossier, const std::string& projet,
                             bool croises) {
    QSettings().setValue(cle_de_projet(groupe_des_virages, dossier, projet), croises);
}
