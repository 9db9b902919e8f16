#include "ui/feuille/exports.h"

#include "base/fichiers.h"
#include "feuille/page_svg.h"
#include "feuille/trace_csv.h"
#include "seance/seance.h"
#include "ui/commun/boites.h"
#include "ui/feuille/peinture.h"

#include <QFileInfo>
#include <QPrintDialog>
#include <QPrinter>

#include <utility>

namespace {

QString extension(const QString& chemin) {
    return QFileInfo(chemin).suffix().toLower();
}

Page page_du_match(const Seance& seance, const Analyse& a) {
    return composer(feuille_du_match(seance.etat(), a,
                                     fichiers_du_projet(seance.projet(), a.match.NbRobot),
                                     date_lisible(std::time(nullptr))));
}

std::string image_du_match(const QString& chemin, const Etat& e, const Analyse& a, int largeur) {
    const TailleImage taille = taille_image(e, largeur);
    if (extension(chemin) == "svg")
        return vue_en_svg(e, a, {}, taille);
    return extension(chemin) == "pdf" ? vue_en_pdf(e, a, {}, taille) : vue_en_png(e, a, {}, taille);
}

} // namespace

Exports::Exports(QWidget& fenetre, Seance& seance, std::function<Analyse()> analyse)
    : fenetre_(fenetre), seance_(seance), analyse_(std::move(analyse)) {}

// Where to write, with one of the extensions that the filters know: the first one when none is
// typed.
QString Exports::destination(const QString& titre, const QString& fin, const QString& filtres) {
    const std::filesystem::path propose =
        seance_.projet().dossier_application() / (seance_.etat().NomProjet + fin.toStdString());
    QString chemin =
        Boites(fenetre_).choisir_destination(titre, texte_qt(propose.string()), filtres);
    if (chemin.isEmpty())
        return chemin;
    if (!filtres.contains("*." + extension(chemin) + ")") || extension(chemin).isEmpty())
        chemin += "." + QFileInfo(fin).suffix();
    const QString nom = QFileInfo(chemin).fileName();
    if (QFileInfo::exists(chemin) &&
        !Boites(fenetre_).question(
            ("« " + nom + " » existe déjà. Faut-il le remplacer ?").toStdString()))
        return {};
    return chemin;
}

void Exports::ecrire(const QString& chemin, const std::string& octets) {
    remplacer_fichier(chemin.toStdString(), octets);
}

void Exports::feuille() {
    const QString chemin = destination("Feuille de match", " feuille.pdf",
                                       "Document PDF (*.pdf);;Image vectorielle (*.svg)");
    if (chemin.isEmpty())
        return;
    const Analyse a = analyse_();
    const Page page = page_du_match(seance_, a);
    const Etat& e = seance_.etat();
    ecrire(chemin, extension(chemin) == "svg" ? page_en_svg(page, e, a) : page_en_pdf(page, e, a));
}

void Exports::imprimer() {
    QPrinter imprimante(QPrinter::HighResolution);
    imprimante.setPageSize(QPageSize(QPageSize::A4));
    imprimante.setDocName("Feuille de match " + texte_qt(seance_.etat().NomProjet));
    QPrintDialog choix(&imprimante, &fenetre_);
    choix.setObjectName("imprimer");
    if (choix.exec() != QDialog::Accepted)
        return;
    const Analyse a = analyse_();
    imprimer_page(imprimante, page_du_match(seance_, a), seance_.etat(), a);
}

void Exports::image() {
    const QString chemin =
        destination("Image du match", " match.png",
                    "Image (*.png);;Image vectorielle (*.svg);;Document PDF (*.pdf)");
    if (chemin.isEmpty())
        return;
    constexpr int largeur_proposee = 1000;
    const auto largeur = Boites(fenetre_).demander_entier(
        "Image du match", "Largeur en pixels :", largeur_proposee, 1, cote_maximal_image);
    if (largeur)
        ecrire(chemin, image_du_match(chemin, seance_.etat(), analyse_(), *largeur));
}

void Exports::trace() {
    const QString chemin = destination("Trace du match", " trace.csv", "Tableau CSV (*.csv)");
    if (chemin.isEmpty())
        return;
    const auto copie = std::make_unique<Etat>(seance_.etat());
    ecrire(chemin, trace_csv(*copie));
}
