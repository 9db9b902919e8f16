#include "ui/commun/cle_de_projet.h"

#include "ui/commun/boites.h"

#include <QUrl>

QString cle_de_projet(const QString& groupe, const std::filesystem::path& dossier,
                      const std::string& projet) {
    return groupe + "/" +
           QUrl::toPercentEncoding(texte_qt((dossier / projet).string())).replace('%', '_');
}
