#include "ui/dessin_table.h"

#include "ui/formes.h"

#include <QLabel>
#include <QMenu>
#include <QPainter>
#include <QSignalBlocker>
#include <QSplitter>
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

QPixmap pastille(const Fiche& e) {
    QPixmap image(12, 12);
    image.fill(Qt::gray); // a frame: the list may be as white as the zone
    QPainter(&image).fillRect(1, 1, 10, 10, formes::couleur(e.cle));
    return image;
}

} // namespace

dessinTable::dessinTable(QWidget* parent, Foutil& outils, Programme programme)
    : FenetreEditeur(parent, outils, std::move(programme), GenreFichier::table),
      historique_([this] { rafraichir(); }),
      vue_(historique_, outils, this),
      proprietes_(this) {
    setObjectName("dessinTable");
    placer();
    connecter();
    preparer_menus();
    preparer_edition();
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
    liste_.setObjectName("listeObjets");
    liste_.setAccessibleName("Objets de la table");
    liste_.setSelectionMode(QAbstractItemView::ExtendedSelection);
    lignes->addWidget(&proprietes_);
    lignes->addWidget(titre_legende);
    lignes->addWidget(&legende_);
    lignes->addWidget(titre_liste);
    lignes->addWidget(&liste_, 1);
    auto* partage = new QSplitter;
    partage->addWidget(&vue_);
    partage->addWidget(colonne);
    partage->setStretchFactor(0, 1);
    const int liste = fontMetrics().horizontalAdvance("Zone L (blanc) : 000, 000, 000, 000") + 70;
    partage->setSizes({900 - liste, liste});
    setCentralWidget(partage);
    position_.setObjectName("position");
    position_.setText("x, y");
    comptes_.setObjectName("comptes");
    comptes_.setTextFormat(Qt::RichText);
    statusBar()->addPermanentWidget(&comptes_);
    statusBar()->addPermanentWidget(&position_);
    position_.setMinimumWidth(position_.fontMetrics().horizontalAdvance("x = -0000  y = -0000 cm"));
    resize(900, 600);
}

void dessinTable::connecter() {
    vue_.au_deplacement = [this](QPointF cm) {
        position_.setText(
            QString("x = %1  y = %2 cm").arg(std::lround(cm.x())).arg(std::lround(cm.y())));
    };
    vue_.au_refus = [this](const std::string& raison) { refuser(raison); };
    vue_.a_la_legende = [this] { legende_.setFocus(); };
    proprietes_.au_nombre = [this](std::size_t i, double valeur) { changer_nombre(i, valeur); };
    proprietes_.a_la_sorte = [this](const QString& cle) { changer_sorte(cle.toStdString()); };
    connect(&legende_, &QPlainTextEdit::textChanged, this, [this] { changer_legende(); });
    connect(&liste_, &QListWidget::itemSelectionChanged, this, [this] { choisir_dans_la_liste(); });
}

void dessinTable::preparer_edition() {
    QMenu& m = menu_edition();
    action(m, "avancer", "Vers l'a&vant", QKeySequence("Ctrl+Up"), [this] { changer_plan(true); });
    action(m, "reculer", "Vers l'arri&ère", QKeySequence("Ctrl+Down"),
           [this] { changer_plan(false); });
    preparer_alignement();
}

void dessinTable::preparer_alignement() {
    QMenu& m = *menu_edition().addMenu("A&ligner");
    struct Choix {
        const char *nom, *texte;
        Bord bord;
    };
    for (const Choix& c :
         {Choix{"aligner_gauche", "À &gauche", Bord::gauche},
          Choix{"aligner_droite", "À &droite", Bord::droite},
          Choix{"aligner_haut", "En &haut", Bord::haut}, Choix{"aligner_bas", "En &bas", Bord::bas},
          Choix{"aligner_milieu_x", "Sur la même &verticale", Bord::milieu_x},
          Choix{"aligner_milieu_y", "Sur la même h&orizontale", Bord::milieu_y}})
        action(m, c.nom, c.texte, {}, [this, bord = c.bord] { aligner(bord); });
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

std::vector<int> dessinTable::lire(const std::string& octets) {
    historique_.repartir(DocumentTable::depuis(octets));
    return historique_.doc().incomprises();
}

void dessinTable::rafraichir() {
    vue_.rafraichir();
    montrer_proprietes();
    montrer_legende();
    montrer_liste();
    montrer_comptes();
}

void dessinTable::outil_change() {
    const Outil& outil = outils_.en_main();
    if (outil.forme == Outil::Forme::selection)
        statusBar()->clearMessage();
    else
        statusBar()->showMessage(QString(outil.texte) +
                                 " : cliquer, ou tracer avec la souris (Alt : sans la grille, "
                                 "Maj : garder l'outil)");
}

void dessinTable::montrer_proprietes() {
    const Selection& s = historique_.selection();
    if (s.empty())
        return proprietes_.conseiller("Rien n'est choisi",
                                      "Cliquer un objet montre ses mesures ; tirer sur le fond en "
                                      "choisit plusieurs. Un outil de la palette en ajoute.");
    if (s.size() > 1)
        return proprietes_.conseiller(QString("%1 objets choisis").arg(s.size()),
                                      "Ils se déplacent et s'alignent ensemble.");
    const Fiche& e = historique_.doc()[s.front()];
    if (e.cle == "M")
        return proprietes_.conseiller("Légende", "Son texte se change ci-dessous.");
    using Champ = PanneauProprietes::Champ;
    std::vector<Champ> champs;
    const bool quatre = nombre_de_champs(e.cle) == 4;
    const bool pion = !quatre && e.cle != "DR";
    const double mini = pion ? -32768 : 0;
    const double maxi = pion ? 32767 : DocumentTable::coordonnee_max;
    if (quatre)
        for (std::size_t i = 0; i < 4; ++i)
            champs.push_back({QStringList{"X1", "Y1", "X2", "Y2"}[int(i)],
                              QStringList{"X1", "Y1", "X2", "Y2"}[int(i)], " cm", mini, maxi,
                              e.v[i]});
    else
        champs = {{"X", "X", " cm", mini, maxi, e.v[0]},
                  {"Y", "Y", " cm", mini, maxi, e.v[1]},
                  {"Rayon", "Rayon", " cm", -32768, 32767, e.v[2]}};
    if (e.cle == "LN")
        champs.push_back({"Incidence", "Incidence", "°", -180, 180,
                          std::atan2(e.v[3] - e.v[1], e.v[2] - e.v[0]) * 180 / Pi, 1});
    std::vector<PanneauProprietes::Sorte> sortes;
    for (const std::string_view cle : sorte_table(e.cle)->cles)
        // A block's two kinds do not have the same numbers.
        if (cle == e.cle || sorte_table(cle)->nom != "blocs")
            sortes.push_back({QString::fromUtf8(cle.data(), qsizetype(cle.size())),
                              formes::nom(cle), formes::couleur(cle)});
    proprietes_.montrer(formes::nom(e.cle), champs, sortes, QString::fromStdString(e.cle));
}

void dessinTable::montrer_legende() {
    QString texte;
    const DocumentTable& d = historique_.doc();
    for (std::size_t i = 0; i < d.nombre(); ++i)
        if (d[i].cle == "M")
            texte = texte_qt(d[i].texte);
    if (texte == legende_.toPlainText())
        return;
    const QSignalBlocker muet(&legende_);
    legende_.setPlainText(texte);
}

void dessinTable::montrer_liste() {
    en_cours_ = true;
    const DocumentTable& d = historique_.doc();
    int rang = 0;
    const Selection& s = historique_.selection();
    for (std::size_t i = 0; i < d.nombre(); ++i) {
        if (d[i].cle == "M")
            continue;
        if (rang == liste_.count())
            liste_.addItem(QString());
        QListWidgetItem& item = *liste_.item(rang++);
        const QString texte = description(d[i]);
        if (item.text() != texte) {
            item.setText(texte);
            item.setIcon(pastille(d[i]));
        }
        item.setData(Qt::UserRole, static_cast<qulonglong>(i));
        item.setSelected(std::binary_search(s.begin(), s.end(), i));
        if (s.size() == 1 && s.front() == i)
            liste_.scrollToItem(&item);
    }
    while (liste_.count() > rang)
        delete liste_.takeItem(rang);
    en_cours_ = false;
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

void dessinTable::refuser(const std::string& raison) {
    boites_.message(raison);
}

void dessinTable::retirer() {
    if (historique_.selection().empty())
        return;
    DocumentTable d = historique_.doc();
    Selection s = historique_.selection();
    for (std::size_t k = s.size(); k-- > 0;)
        d.retirer(s[k]);
    historique_.changer("Supprimer", std::move(d), {});
}

// Placed beside the originals, by one step of the grid, and chosen in their place.
void dessinTable::dupliquer() {
    DocumentTable d = historique_.doc();
    std::vector<Fiche> copies;
    for (const std::size_t i : historique_.selection())
        if (d[i].cle != "M")
            copies.push_back(formes::deplacee(d[i], vue_.grille(), vue_.grille()));
    if (copies.empty())
        return;
    Selection s;
    for (const Fiche& e : copies) {
        const std::size_t i = d.ajouter(e);
        for (std::size_t& j : s)
            j += j >= i ? 1 : 0;
        s.push_back(i);
    }
    std::sort(s.begin(), s.end());
    historique_.changer("Dupliquer", std::move(d), s);
}

void dessinTable::tout_choisir() {
    Selection s;
    for (std::size_t i = 0; i < historique_.doc().nombre(); ++i)
        if (historique_.doc()[i].cle != "M")
            s.push_back(i);
    historique_.choisir(s);
}

void dessinTable::deplacer(double dx, double dy) {
    DocumentTable d = historique_.doc();
    std::vector<Fiche> objets;
    for (const std::size_t i : historique_.selection())
        objets.push_back(d[i]);
    const QPointF ecart = formes::deplacement_permis(objets, {dx, dy});
    if (objets.empty() || ecart.isNull())
        return;
    for (const std::size_t i : historique_.selection())
        d.remplacer(i, formes::deplacee(d[i], ecart.x(), ecart.y()));
    historique_.changer("Déplacer", std::move(d), historique_.selection(), fusion_des_pas);
}

void dessinTable::changer_plan(bool vers_l_avant) {
    const Selection& s = historique_.selection();
    if (s.size() != 1)
        return refuser("Choisissez un seul objet pour changer son plan");
    DocumentTable d = historique_.doc();
    const std::size_t i = d.deplacer(s.front(), vers_l_avant);
    if (i != s.front())
        historique_.changer(vers_l_avant ? "Vers l'avant" : "Vers l'arrière", std::move(d), {i});
}

// On the edge (or the middle) of the box around everything that is chosen.
void dessinTable::aligner(Bord bord) {
    DocumentTable d = historique_.doc();
    QRectF tout;
    for (const std::size_t i : historique_.selection())
        if (d[i].cle != "M")
            tout = tout.isNull() ? formes::cadre(d[i]) : tout.united(formes::cadre(d[i]));
    if (historique_.selection().size() < 2)
        return refuser("Choisissez au moins deux objets à aligner");
    for (const std::size_t i : historique_.selection()) {
        const QRectF r = formes::cadre(d[i]);
        QPointF ecart;
        switch (bord) {
        case Bord::gauche:
            ecart.setX(tout.left() - r.left());
            break;
        case Bord::droite:
            ecart.setX(tout.right() - r.right());
            break;
        case Bord::haut: // y upwards
            ecart.setY(tout.bottom() - r.bottom());
            break;
        case Bord::bas:
            ecart.setY(tout.top() - r.top());
            break;
        case Bord::milieu_x:
            ecart.setX(tout.center().x() - r.center().x());
            break;
        case Bord::milieu_y:
            ecart.setY(tout.center().y() - r.center().y());
            break;
        }
        ecart = formes::deplacement_permis({d[i]}, ecart);
        if (d[i].cle != "M")
            d.remplacer(i, formes::deplacee(d[i], ecart.x(), ecart.y()));
    }
    historique_.changer("Aligner", std::move(d), historique_.selection());
}

void dessinTable::changer_nombre(std::size_t champ, double valeur) {
    const Selection& s = historique_.selection();
    if (s.size() != 1)
        return;
    DocumentTable d = historique_.doc();
    Fiche e = d[s.front()];
    if (champ < 4 && champ < nombre_de_champs(e.cle)) {
        e.v[champ] = static_cast<float>(valeur);
    } else { // the line turns about its first end
        const double l = std::hypot(e.v[2] - e.v[0], e.v[3] - e.v[1]);
        e.v[2] = static_cast<float>(std::round(e.v[0] + l * std::cos(radians(valeur))));
        e.v[3] = static_cast<float>(std::round(e.v[1] + l * std::sin(radians(valeur))));
    }
    d.remplacer(s.front(), e);
    historique_.changer("Changer une mesure", std::move(d), s);
}

void dessinTable::changer_sorte(const std::string& cle) {
    const Selection& s = historique_.selection();
    if (s.size() != 1 || historique_.doc()[s.front()].cle == cle)
        return;
    DocumentTable d = historique_.doc();
    Fiche e = d[s.front()];
    e.cle = cle;
    d.remplacer(s.front(), e);
    historique_.changer("Changer de sorte", std::move(d), s);
}

void dessinTable::changer_legende() {
    DocumentTable d = historique_.doc();
    Selection s = historique_.selection();
    const Fiche e{"M", {}, legende_.toPlainText().toStdString()};
    std::size_t i = d.nombre();
    while (i-- > 0 && d[i].cle != "M") {
    }
    if (i < d.nombre()) {
        d.remplacer(i, e);
    } else {
        const std::size_t place = d.ajouter(e);
        for (std::size_t& j : s)
            j += j >= place ? 1 : 0;
    }
    historique_.changer("Changer la légende", std::move(d), s, fusion_des_frappes);
}

void dessinTable::choisir_dans_la_liste() {
    if (en_cours_)
        return;
    Selection s;
    for (const QListWidgetItem* item : liste_.selectedItems())
        s.push_back(static_cast<std::size_t>(item->data(Qt::UserRole).toULongLong()));
    std::sort(s.begin(), s.end());
    historique_.choisir(s);
}
