// What the generation window works out before anything is written: the input it proposes, the
// preview and the warnings.
#include "codegen/apercu.h"
#include "record/origine.h"
#include "seance/seance.h"
#include "ui/commun/boites.h"
#include "ui/generation/dialog.h"

#include <QStyle>

// Inputs of the present project come first to mind; the newest holds the latest recording.
void Dialog::preselectionner() {
    namespace fs = std::filesystem;
    projet_preselectionne_ = seance_.etat().NomProjet;
    std::error_code erreur;
    fs::file_time_type date = fs::file_time_type::min();
    std::string choix;
    for (const fs::path& fichier : entree_.fichiers.tous()) {
        const fs::file_time_type sienne = fs::last_write_time(fichier, erreur);
        if (!erreur && sienne >= date && projet_du_fichier(fichier) == projet_preselectionne_) {
            date = sienne;
            choix = fichier.filename().string();
        }
    }
    if (!choix.empty())
        entree_.fichiers.choisir(choix);
}

// At once: what it will give is what one looks at next.
void Dialog::entree_renouvelee(const QString& texte) {
    compte_rendu_.setText(texte);
    compte_rendu_.show();
    if (entree_.fichier().empty()) {
        entree_.dossiers.aller(seance_.projet().dossier_configuration());
        preselectionner();
    }
    rafraichir_apercu();
}

void Dialog::avertir(const std::vector<std::string>& phrases) {
    for (const std::string& phrase : phrases)
        new QListWidgetItem(style()->standardIcon(QStyle::SP_MessageBoxWarning), texte_qt(phrase),
                            &avertissements_);
}

void Dialog::avertir_de_l_entree(const std::filesystem::path& entree) {
    const std::string& charge = seance_.etat().NomProjet;
    if (const auto projet = projet_du_fichier(entree); projet && *projet != charge)
        avertir({entree.filename().string() + " est du projet " + *projet +
                 " ; le projet chargé est " + charge});
    avertir(avertissements_d_origine(entree));
}

void Dialog::montrer_apercu(const Demande& d) {
    const Apercu apercu = preparer_apercu(d, true);
    apercu_.setPlainText(texte_qt(texte_apercu(apercu)));
    avertir(apercu.avertissements);
    titre_apercu_.setText(
        QString("Aperçu de ce qui sera retiré (-) et ajouté (+)%1 :")
            .arg(apercu.ecrase ? ", si vous acceptez d'écraser la fonction" : ""));
}

void Dialog::rafraichir_apercu() {
    avertissements_.clear();
    apercu_.setPlainText({});
    const Demande d = demande();
    rejeu_.montrer(d.entree);
    try {
        fraicheur_.montrer(d.entree);
        if (!d.entree.empty())
            avertir_de_l_entree(d.entree);
        if (d.depart.empty() || d.entree.empty())
            titre_apercu_.setText("Aperçu : choisissez un programme de départ et une trajectoire.");
        else
            montrer_apercu(d);
    } catch (const ErreurExecution& erreur) {
        titre_apercu_.setText("Aperçu impossible :");
        avertir({erreur.what()});
    }
    avertissements_.setVisible(avertissements_.count() > 0);
}
