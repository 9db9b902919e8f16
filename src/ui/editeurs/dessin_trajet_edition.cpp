// What the menus of the trajectory editor do.
#include "base/fichiers.h"
#include "config/versions.h"
#include "edition/actions_trajet.h"
#include "edition/miroir.h"
#include "record/trajet.h"
#include "sim/actions.h"
#include "ui/editeurs/dessin_trajet.h"
#include "ui/editeurs/difference_trajet.h"

#include <QMenu>
#include <QMenuBar>
#include <QStatusBar>

#include <numeric>

void dessinTrajet::preparer_edition() {
    QMenu& m = menu_edition();
    preparer_presse_papiers();
    action(m, "monter", "&Monter", QKeySequence("Alt+Up"), [this] { monter(true); });
    action(m, "descendre", "&Descendre", QKeySequence("Alt+Down"), [this] { monter(false); });
    m.addSeparator();
    action(m, "chercher", "C&hercher", QKeySequence::Find, [this] {
        cherche_.setFocus();
        cherche_.selectAll();
    });
    table_.addAction(findChild<QAction*>("supprimer"));
}

void dessinTrajet::preparer_insertion() {
    QMenu& menu = *menuBar()->addMenu("&Insérer");
    action(menu, "inserer", "Une &action, puis son nom", QKeySequence(Qt::Key_Insert), [this] {
        inserer(std::string(actions::AVANCE.sans_blancs()));
        table_.taper_l_action(historique_.selection().front());
    });
    menu.addSeparator();
    for (const actions::Action& a : actions::table) {
        if (a.mot.empty())
            continue;
        const std::string cle(a.nom.sans_blancs());
        const QString texte =
            a.genre == actions::Genre::depart ? QString("Départ (Init)") : texte_qt(a.mot);
        action(menu, qPrintable("inserer_" + texte_qt(cle).replace(' ', '_')), texte, {},
               [this, cle] { inserer(cle); });
    }
}

void dessinTrajet::preparer_trajet() {
    preparer_insertion();
    QMenu& menu = *menuBar()->addMenu("&Trajet");
    struct Sens {
        const char *nom, *texte;
        Retournement r;
    };
    for (const Sens& s : {Sens{"miroir_vertical", "Miroir &gauche-droite", Retournement::vertical},
                          Sens{"miroir_horizontal", "Miroir &haut-bas", Retournement::horizontal},
                          Sens{"demi_tour", "&Demi-tour de la table", Retournement::demi_tour}})
        action(menu, s.nom, s.texte, {},
               [this, s] { retourner(QString(s.texte).remove('&'), s.r); });
    menu.addSeparator();
    action(
        menu, "copier_vers", "&Copier vers un robot...", QKeySequence("Ctrl+R"),
        [this] { copier_vers_un_robot(); }, Qt::QueuedConnection);
    action(
        menu, "generation", "Préparer l'&entrée du générateur", QKeySequence("Ctrl+E"),
        [this] {
            preparer_la_generation(projet().empty() ? seance_.etat().NomProjet : projet(),
                                   historique_.doc(), robot());
        },
        Qt::QueuedConnection);
    menu.addSeparator();
    action(
        menu, "comparer", "C&omparer...", QKeySequence("Ctrl+K"), [this] { comparer(); },
        Qt::QueuedConnection);
    action(
        menu, "console", "Prendre le trajet de la &console", {},
        [this] { prendre_le_trajet_de_la_console(); }, Qt::QueuedConnection);
}

bool dessinTrajet::prendre_la_saisie() {
    table_.finir_la_saisie();
    return FenetreEditeur::prendre_la_saisie();
}

QString dessinTrajet::en_suspens() const {
    return table_.modele().en_suspens();
}

void dessinTrajet::changer(const QString& nom, DocumentTrajet d, const Selection& s, int fusion) {
    historique_.changer(nom, std::move(d), s, fusion);
}

// Behind what is chosen, else at the end: in front of the "FIN" that ends the trajectory.
std::size_t dessinTrajet::place_d_insertion() const {
    const DocumentTrajet& d = historique_.doc();
    const std::size_t n = d.nombre();
    const bool finit = n > 0 && d[n - 1].cle == actions::FIN.sans_blancs();
    const Selection& s = historique_.selection();
    const std::size_t place = s.empty() ? n : s.back() + 1;
    return finit ? std::min(place, n - 1) : place;
}

void dessinTrajet::inserer(const std::string& cle) {
    DocumentTrajet d = historique_.doc();
    const std::size_t i = place_d_insertion();
    d.inserer(i, action_usuelle(*actions::trouver(Nom10(cle))));
    changer(QString("Insérer : ") + texte_qt(cle), std::move(d), {i});
}

void dessinTrajet::retirer() {
    DocumentTrajet d = historique_.doc();
    const Selection s = historique_.selection();
    ::retirer(d, s);
    if (!s.empty())
        changer("Supprimer", std::move(d), {});
}

void dessinTrajet::dupliquer() {
    DocumentTrajet d = historique_.doc();
    const Selection s = ::dupliquer(d, historique_.selection());
    if (!s.empty())
        changer("Dupliquer", std::move(d), s);
}

void dessinTrajet::tout_choisir() {
    table_.selectAll();
}

void dessinTrajet::deplacer(double dx, double dy) {
    DocumentTrajet d = historique_.doc();
    decaler_depart(d, static_cast<int>(dx), static_cast<int>(dy));
    changer("Décaler le départ", std::move(d), historique_.selection(), fusion_des_pas);
}

std::string dessinTrajet::copier() const {
    return ::copier(historique_.doc(), historique_.selection());
}

void dessinTrajet::coller(const std::string& lignes) {
    DocumentTrajet d = historique_.doc();
    const Selection s = ::coller(d, place_d_insertion(), lignes);
    if (!s.empty())
        changer("Coller", std::move(d), s);
}

void dessinTrajet::monter(bool vers_le_haut) {
    const Selection& s = historique_.selection();
    DocumentTrajet d = historique_.doc();
    if (s.empty() || (vers_le_haut ? s.front() == 0 : s.back() + 1 == d.nombre()))
        return;
    const std::size_t devant = vers_le_haut ? s.front() - 1 : s.back() + 2;
    const Selection la = ::deplacer(d, s, devant);
    changer(vers_le_haut ? "Monter" : "Descendre", std::move(d), la);
}

// From behind what is chosen on, around the end.
void dessinTrajet::chercher() {
    const QString texte = cherche_.text().trimmed();
    if (texte.isEmpty())
        return;
    const int n = table_.modele().rowCount();
    const Selection& s = historique_.selection();
    const int depuis = s.empty() ? 0 : static_cast<int>(s.back()) + 1;
    for (int k = 0; k < n; ++k) {
        const int rang = (depuis + k) % n;
        if (table_.modele().contient(rang, texte))
            return historique_.choisir({static_cast<std::size_t>(rang)});
    }
    statusBar()->showMessage("« " + texte + " » ne se trouve pas dans ce trajet");
}

// One record chosen is where one works, several are what one means.
void dessinTrajet::retourner(const QString& nom, Retournement r) {
    DocumentTrajet d = historique_.doc();
    Selection s = historique_.selection();
    if (s.size() < 2) {
        s.resize(d.nombre());
        std::iota(s.begin(), s.end(), std::size_t{0});
    }
    ::retourner(d, s, r, {etat_->XMax, etat_->YMax});
    changer(nom, std::move(d), historique_.selection());
}

void dessinTrajet::prendre_le_trajet_de_la_console() {
    const auto droit = etat_des_fichiers(seance_.etat());
    const std::string nom = chemin().empty() ? "Trajet.ini" : chemin().filename().string();
    changer("Prendre le trajet de la console",
            DocumentTrajet::depuis(texte_trajet(*droit, robot(), nom)), {});
}

// The file as it was saved, its kept versions, the other robots' trajectories.
void dessinTrajet::comparer() {
    std::vector<DifferenceTrajet::Source> sources;
    if (!chemin().empty())
        sources.push_back({"Le fichier enregistré", [this] { return sur_le_disque(); }});
    for (const Version& v : lister_versions(programme().configuration, projet(), {}))
        if (v.fichier == chemin().filename().string())
            sources.push_back({"Version gardée le " + texte_qt(v.date),
                               [copie = v.copie] { return lire_octets(copie); }});
    for (int n = 1; n <= robots_des_fichiers; ++n)
        if (const auto autre = seance_.projet().chemin_trajet(n); autre != chemin())
            sources.push_back({QString("Robot %1").arg(n), [autre] { return lire_octets(autre); }});
    DifferenceTrajet dialogue(this, {*etat_, provenance_, robot(), historique_.doc()},
                              std::move(sources));
    if (dialogue.exec() == QDialog::Accepted)
        changer("Reprendre : " + dialogue.nom_de_l_autre(), dialogue.autre(), {});
}
