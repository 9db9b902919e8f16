// The project as files: opened from outside, its folder, a picture of the window beside it.
#include "base/fichiers.h"
#include "base/texte.h"
#include "base/version.h"
#include "config/nom_projet.h"
#include "ui/generation/dialog.h"
#include "ui/principale/erreurs_lecture.h"
#include "ui/principale/projets_recents.h"
#include "ui/principale/sim1.h"

#include <QBuffer>
#include <QDesktopServices>
#include <QToolTip>
#include <QUrl>

namespace {

/// The first that does not exist: "Essai image 1.png", "Essai image 2.png"...
std::filesystem::path image_libre(const std::filesystem::path& dossier, const std::string& projet) {
    for (int n = 1;; ++n) {
        std::filesystem::path image =
            dossier / nom_de_fichier(projet, " image " + std::to_string(n) + ".png");
        if (!std::filesystem::exists(std::filesystem::symlink_status(image)))
            return image;
    }
}

std::string en_png(const QPixmap& image) {
    QBuffer octets;
    octets.open(QIODevice::WriteOnly);
    image.save(&octets, "PNG");
    return octets.data().toStdString();
}

} // namespace

void Sim1::ouvrir_fichier(const std::filesystem::path& fichier) {
    if (majuscules(fichier.extension().string()) == ".BAS") {
        montrer_generateur();
        return generateur_->partir_de(fichier);
    }
    const std::string nom = fichier.filename().string();
    const std::string projet = projet_nomme_par(nom);
    const std::filesystem::path ici = seance_.projet().dossier_configuration();
    std::error_code ailleurs;
    if (projet.empty())
        message("« " + nom + " » n'est ni un fichier de projet ni un programme .bas.",
                "Un fichier de projet s'appelle par exemple « Essai Table.ini ».");
    else if (!std::filesystem::equivalent(fichier.parent_path(), ici, ailleurs))
        message("Le projet « " + projet + " » n'est pas dans le dossier de ce programme.",
                "Ce programme travaille dans " + ici.string() +
                    "\nPour l'ouvrir, copiez-y ses fichiers ou démarrez avec --dossier.");
    else
        options_.charger(projet);
}

void Sim1::demarrer_match() {
    if (!terminee_ && !en_marche())
        options_.Command1_Click();
}

void Sim1::ouvrir_le_dossier() {
    const std::string dossier = seance_.projet().dossier_configuration().string();
    if (!QDesktopServices::openUrl(QUrl::fromLocalFile(texte_qt(dossier))))
        message("Aucun programme n'ouvre les dossiers ici.", dossier);
}

void Sim1::enregistrer_image() {
    const std::filesystem::path image =
        image_libre(seance_.projet().dossier_application(), e->NomProjet);
    remplacer_fichier(image, en_png(grab()));
    const std::string texte = "Image enregistrée : " + image.string();
    if (en_marche()) // the status line is the match's
        QToolTip::showText(Table.mapToGlobal(QPoint(12, 12)), texte_qt(texte), this);
    else
        ecrire_texte_Mess(texte);
}

void Sim1::montrer_a_propos() {
    information("Tavolmex " + version_du_programme() + "\nSimulateur de robot de concours\n\nQt " +
                qVersion() + "\nLicence MIT, © les auteurs de Tavolmex");
}

void Sim1::projet_change(Lecture) {
    montrer_erreurs();
}

void Sim1::montrer_erreurs() {
    const std::vector<ErreurDeLecture>& erreurs = seance_.projet().erreurs();
    if (!erreurs_ && erreurs.empty())
        return;
    if (!erreurs_)
        erreurs_ = std::make_unique<ErreursLecture>(this, [this] { ouvrir_le_dossier(); });
    erreurs_->montrer(erreurs);
}
