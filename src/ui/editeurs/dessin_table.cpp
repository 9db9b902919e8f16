#include "ui/editeurs/dessin_table.h"

#include "ui/editeurs/formes.h"
#include "ui/editeurs/icones_dessin.h"

#include <QLabel>
#include <QMenu>
#include <QSettings>
#include <QSignalBlocker>
#include <QStatusBar>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

namespace {

QString description(const Fiche& e) {
    QString texte = formes::nom(e.cle) + " :";
    for (std::size_t i = 0; i < nombre_de_champs(e.cle); ++i)
        texte += (i == 0 ? " " : ", ") + QString::number(e.entier(i));
    return texte;
}

/// The kinds that all of these can become: those of one family whose numbers mean the same.
std::vector<PanneauProprietes::Sorte> sortes_possibles(const DocumentTable& d, const Selection& s) {
    const SorteTable* famille = sorte_table(d[s.front()].cle);
    for (const std::size_t i : s)
        if (sorte_table(d[i].cle) != famille ||
            forme_table(d[i].cle) != forme_table(d[s.front()].cle))
            return {};
    std::vector<PanneauProprietes::Sorte> sortes;
    if (famille == nullptr)
        return sortes;
    for (const std::string_view cle : famille->cles)
        if (forme_table(cle) == forme_table(d[s.front()].cle))
            sortes.push_back({QString::fromUtf8(cle.data(), qsizetype(cle.size())),
                              formes::nom(cle), icone_objet(cle)});
    return sortes;
}

QString sorte_commune(const DocumentTable& d, const Selection& s) {
    const std::string& cle = d[s.front()].cle;
    const bool autre =
        std::any_of(s.begin(), s.end(), [&](std::size_t i) { return d[i].cle != cle; });
    return autre ? QString() : QString::fromStdString(cle);
}

} // namespace

dessinTable::dessinTable(QWidget* parent, Foutil& outils, Programme programme)
    : FenetreEditeur(parent, outils, std::move(programme),
                     // The dialog splits its patterns at blanks: the one before "Table" is any
                     // character to it.
                     {GenreFichier::table, "Dessin de la table",
                      "Fichiers de table (*?Table.ini);;Tous les fichiers (*)"}),
      historique_([this] { rafraichir(); }),
      vue_(historique_, outils, this),
      proprietes_(this) {
    setObjectName("dessinTable");
    placer();
    connecter();
    preparer_menus();
    preparer_edition();
    preparer_menu_contextuel({"couper", "copier", "coller", "dupliquer", "supprimer", "", "avancer",
                              "reculer", "aligner", "", "tout", "verrouiller"});
    preparer_barre({"annuler", "retablir", "", "zoom_plus", "zoom_moins", "ajuster", "", "grille",
                    "accrocher", "", "aligner"});
}

void dessinTable::placer() {
    auto* colonne = new QWidget;
    auto* lignes = new QVBoxLayout(colonne);
    auto* titre_legende = new QLabel("&Légende");
    auto* titre_liste = new QLabel("&Objets");
    titre_legende->setBuddy(&legende_);
    titre_liste->setBuddy(&liste_);
    legende_.setObjectName("legende");
    legende_.setAccessibleName("Légende");
    legende_.setToolTip("Texte affiché sur la table. Une virgule passe à la ligne.");
    legende_.setMaximumHeight(70);
    legende_.setTabChangesFocus(true);
    legende_.setUndoRedoEnabled(false); // the drawing's own steps
    liste_.setObjectName("listeObjets");
    liste_.setAccessibleName("Objets de la table");
    coins_.setObjectName("coins");
    coins_.setText("Mesurer par les &coins");
    coins_.setChecked(QSettings().value("mesures_par_coins", false).toBool());
    lignes->addWidget(&proprietes_);
    lignes->addWidget(&coins_);
    lignes->addWidget(titre_legende);
    lignes->addWidget(&legende_);
    lignes->addWidget(titre_liste);
    lignes->addWidget(&liste_, 1);
    const int liste = fontMetrics().horizontalAdvance("Zone L (blanc) : 000, 000, 000, 000") + 70;
    comptes_.setTextFormat(Qt::RichText);
    position_.setMinimumWidth(position_.fontMetrics().horizontalAdvance("x = -0000  y = -0000 cm"));
    assembler({historique_, vue_, *colonne, {900 - liste, liste}});
}

void dessinTable::connecter() {
    vue_.au_deplacement = [this](QPointF cm) {
        position_.setText(
            QString("x = %1  y = %2 cm").arg(std::lround(cm.x())).arg(std::lround(cm.y())));
    };
    vue_.au_refus = [this](const std::string& raison) { refuser(raison); };
    vue_.au_menu = [this](QPoint ecran) { montrer_menu_contextuel(ecran); };
    vue_.a_la_legende = [this] { legende_.setFocus(); };
    proprietes_.au_nombre = [this](std::size_t i, double valeur) { changer_nombre(i, valeur); };
    proprietes_.a_la_sorte = [this](const QString& cle) { changer_sorte(cle.toStdString()); };
    connect(&coins_, &QCheckBox::toggled, this, [this](bool oui) {
        QSettings().setValue("mesures_par_coins", oui);
        mesures_.reset();
        montrer_proprietes();
    });
    connect(&legende_, &QPlainTextEdit::textChanged, this, [this] { changer_legende(); });
    liste_.au_choix = [this](const Selection& s) { historique_.choisir(s); };
}

void dessinTable::preparer_edition() {
    QMenu& m = menu_edition();
    preparer_presse_papiers();
    action(m, "avancer", "Vers l'a&vant", QKeySequence("Ctrl+Up"), [this] { changer_plan(true); });
    action(m, "reculer", "Vers l'arri&ère", QKeySequence("Ctrl+Down"),
           [this] { changer_plan(false); });
    preparer_alignement();
    QAction* verrou =
        action(m, "verrouiller", "&Verrouiller les zones", QKeySequence("Ctrl+L"), [] {});
    verrou->setCheckable(true);
    verrou->setToolTip("La souris passe au travers des zones du sol");
    connect(verrou, &QAction::toggled, this, [this](bool oui) { verrouiller_les_zones(oui); });
}

// Some of what the reader accepts stops the drawing: an ellipse without width, a border beyond 16
// bits.
std::optional<RefusLecture> dessinTable::relire(const std::string& octets) const {
    if (auto refus = DocumentTable::relire(octets))
        return refus;
    const DocumentTable d = DocumentTable::depuis(octets);
    for (std::size_t i = 0; i < d.nombre(); ++i)
        if (d[i].cle != "M" && DocumentTable::normaliser(d[i]) != d[i])
            return RefusLecture{d.ligne(i), "une mesure qu'il ne peut pas dessiner"};
    return std::nullopt;
}

void dessinTable::rafraichir() {
    vue_.rafraichir();
    montrer_proprietes();
    montrer_coins();
    montrer_legende();
    montrer_liste();
    montrer_comptes();
}

void dessinTable::montrer_proprietes() {
    const Selection& s = historique_.selection();
    if (s.empty())
        return proprietes_.conseiller("Rien n'est choisi",
                                      "Cliquer un objet montre ses mesures ; tirer sur le fond en "
                                      "choisit plusieurs. Un outil de la palette en ajoute.");
    const bool seul = s.size() == 1;
    grandeurs_ = grandeurs(historique_.doc(), s, coins_.isChecked());
    const std::vector<PanneauProprietes::Sorte> sortes = sortes_possibles(historique_.doc(), s);
    const QString titre = seul ? formes::nom(historique_.doc()[s.front()].cle)
                               : QString("%1 objets choisis").arg(s.size());
    if (grandeurs_.empty() && sortes.empty())
        return proprietes_.conseiller(titre, seul ? "Son texte se change ci-dessous."
                                                  : "Ils se déplacent et s'alignent ensemble.");
    std::vector<PanneauProprietes::Champ> champs;
    for (const Grandeur g : grandeurs_) {
        champs.push_back(formes::champ(historique_.doc(), s, g));
        if (seul)
            champs.back().valeur = valeur(mesures().typees, g); // as they were typed
    }
    proprietes_.montrer(titre, champs, sortes, sorte_commune(historique_.doc(), s));
}

void dessinTable::montrer_coins() {
    const DocumentTable& d = historique_.doc();
    const Selection& s = historique_.selection();
    coins_.setVisible(std::any_of(s.begin(), s.end(), [&](std::size_t i) {
        return forme_table(d[i].cle) == FormeTable::boite;
    }));
}

void dessinTable::montrer_legende() {
    QString texte;
    const DocumentTable& d = historique_.doc();
    for (std::size_t i = 0; i < d.nombre(); ++i)
        if (d[i].cle == "M")
            texte = texte_qt(d[i].texte);
    const QString avant = legende_.toPlainText();
    if (texte == avant)
        return;
    // The cursor stays behind what was typed, which a caption may not keep as it is.
    QTextCursor curseur = legende_.textCursor();
    const QString tape = avant.left(curseur.position());
    const Fiche garde = DocumentTable::normaliser({"M", {}, tape.toStdString()});
    const QSignalBlocker muet(&legende_);
    legende_.setPlainText(texte);
    curseur = legende_.textCursor();
    curseur.setPosition(int(std::min(texte_qt(garde.texte).size(), texte.size())));
    legende_.setTextCursor(curseur);
}

void dessinTable::montrer_liste() {
    std::vector<ListeChoix::Rangee> rangees;
    const DocumentTable& d = historique_.doc();
    for (std::size_t i = 0; i < d.nombre(); ++i)
        if (d[i].cle != "M")
            rangees.push_back({i, description(d[i]), [&d, i] { return icone_objet(d[i].cle); }});
    liste_.montrer(rangees, historique_.selection());
}

void dessinTable::montrer_comptes() {
    QStringList comptes;
    for (const SorteTable& sorte : sortes_table()) {
        const int n = historique_.doc().compter(sorte.cles);
        const QString texte =
            QString("%1 %2/%3").arg(texte_qt(sorte.nom)).arg(n).arg(sorte.capacite);
        comptes += n >= sorte.capacite ? "<b>" + texte + "</b>" : texte;
    }
    comptes_.setText(comptes.join(" · "));
}
