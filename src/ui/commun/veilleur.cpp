#include "ui/commun/veilleur.h"

#include "ui/commun/boites.h"

Veilleur::Veilleur(std::function<void()> au_changement) : au_changement_(std::move(au_changement)) {
    attente_.setSingleShot(true);
    attente_.setInterval(attente_ms);
    const auto attendre = [this] { attente_.start(); };
    QObject::connect(&veilleur_, &QFileSystemWatcher::fileChanged, &attente_, attendre);
    QObject::connect(&veilleur_, &QFileSystemWatcher::directoryChanged, &attente_, attendre);
    QObject::connect(&attente_, &QTimer::timeout, &attente_, [this] {
        abonner(); // a file that was replaced by renaming is no longer watched
        au_changement_();
    });
}

void Veilleur::suivre(std::vector<std::filesystem::path> chemins) {
    if (chemins == chemins_)
        return;
    if (const QStringList anciens = veilleur_.files() + veilleur_.directories(); !anciens.isEmpty())
        veilleur_.removePaths(anciens);
    chemins_ = std::move(chemins);
    abonner();
}

void Veilleur::abonner() {
    for (const std::filesystem::path& chemin : chemins_) {
        std::error_code erreur;
        if (std::filesystem::exists(chemin, erreur))
            veilleur_.addPath(texte_qt(chemin.string()));
    }
}
