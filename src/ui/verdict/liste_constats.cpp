#include "ui/verdict/liste_constats.h"

#include "analyse/releve.h"
#include "analyse/verdict.h"
#include "ui/commun/boites.h"
#include "ui/verdict/texte_verdict.h"
#include "ui/verdict/touches_gardees.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace {

enum Colonne { instant, place, fichier, ligne, texte };
// What a row leads to: a finding, or a robot and an instant.
constexpr int role_constat = Qt::UserRole;
constexpr int role_robot = Qt::UserRole + 1;
constexpr int role_temps = Qt::UserRole + 2;

QString en_place(double x, double y) {
    return texte_qt("x = " + longueur(x) + ", y = " + longueur(y));
}

// A contact concerns both robots; what no robot answers for, robot 0.
bool concerne(const Constat& c, int robot) {
    return c.robot.value_or(0) == robot || (c.genre == Genre::contact_robot && c.autre == robot);
}

QStringList colonnes(const Constat& c) {
    QString phrase = texte_qt(c.texte);
    phrase.replace(0, 1, phrase.left(1).toUpper());
    return {c.temps ? texte_qt(secondes(*c.temps)) : "",
            c.lieu ? en_place(c.lieu->x, c.lieu->y) : "", texte_qt(c.fichier),
            c.ligne ? QString::number(*c.ligne) : "", phrase};
}

QTreeWidgetItem& ajouter(QTreeWidgetItem& groupe, const QStringList& textes) {
    auto* rangee = new QTreeWidgetItem(&groupe, textes);
    rangee->setTextAlignment(instant, Qt::AlignRight | Qt::AlignTop);
    rangee->setTextAlignment(ligne, Qt::AlignRight | Qt::AlignTop);
    for (const int colonne : {place, fichier, texte})
        rangee->setTextAlignment(colonne, Qt::AlignLeft | Qt::AlignTop);
    rangee->setToolTip(texte, textes[texte]);
    return *rangee;
}

QString titre_du_robot(const Analyse& a, int robot) {
    if (robot == 0)
        return "Tout le projet";
    const auto bilan = std::ranges::find(a.robots, robot, &Bilan::robot);
    std::string titre = "Robot " + std::to_string(robot);
    if (bilan == a.robots.end())
        titre += " : pas sur la table";
    else if (bilan->actions_du_plan == 0)
        titre += " : aucune action";
    else if (bilan->fin)
        titre += " : fin à " + secondes(*bilan->fin) + ", marge " +
                 secondes(duree_du_match - *bilan->fin);
    else
        titre += " : pas fini à " + secondes(a.match.duree);
    return texte_qt(titre);
}

} // namespace

ListeConstats::ListeConstats(QWidget* parent, std::function<void(Genre, bool)> au_choix)
    : QWidget(parent), au_choix_(std::move(au_choix)) {
    nommer();
    placer();
    connecter();
}

void ListeConstats::nommer() {
    setObjectName("panneau_constats");
    verdict_.setObjectName("verdict_entier");
    liste_.setObjectName("constats");
    liste_.setAccessibleName("Constats par robot");
    titre_texte_.setText("Ce que cela veut dire, et que faire :");
    titre_texte_.setBuddy(&texte_);
    texte_.setObjectName("texte_constat");
    texte_.setAccessibleName("Texte du constat choisi");
    masques_.setObjectName("masques");
    genres_.setObjectName("genres");
    genres_.setText("Genres signalés");
    genres_.setToolTip("Choisit, pour ce projet, les genres de constats à signaler");
    menu_.setObjectName("menu_genres");
}

void ListeConstats::placer() {
    liste_.setHeaderLabels({"Instant", "Place (cm)", "Fichier", "Ligne", "Constat"});
    liste_.setAllColumnsShowFocus(true);
    liste_.setAlternatingRowColors(true);
    liste_.header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    liste_.header()->setSectionResizeMode(texte, QHeaderView::Stretch); // whole below the list
    liste_.header()->moveSection(texte, place);
    liste_.header()->setStretchLastSection(false);
    for (QLabel* libre : {&verdict_, &texte_, &masques_}) {
        libre->setTextFormat(Qt::PlainText); // a project's name may look like markup
        libre->setWordWrap(true);
        libre->setTextInteractionFlags(Qt::TextSelectableByMouse);
    }
    texte_.setMinimumHeight(3 * texte_.fontMetrics().lineSpacing());
    texte_.setAlignment(Qt::AlignLeft | Qt::AlignTop);
    genres_.setMenu(&menu_);
    auto* bas = new QHBoxLayout;
    bas->addWidget(&genres_);
    bas->addWidget(&masques_, 1);
    auto* colonne = new QVBoxLayout(this);
    colonne->setContentsMargins(6, 0, 0, 0);
    colonne->addWidget(&verdict_);
    colonne->addWidget(&liste_, 1);
    colonne->addWidget(&titre_texte_);
    colonne->addWidget(&texte_);
    colonne->addLayout(bas);
}

void ListeConstats::connecter() {
    connect(&liste_, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* rangee) {
        texte_.setText(rangee == nullptr ? QString() : rangee->text(texte));
    });
    const auto aller_a = [this](const QTreeWidgetItem* rangee) { aller(*rangee); };
    connect(&liste_, &QTreeWidget::itemClicked, this, aller_a);
    connect(&liste_, &QTreeWidget::itemActivated, this, aller_a);
    new TouchesGardees(liste_, [](const QKeyEvent& e) {
        const QKeySequence touche(e.keyCombination());
        return touche == Qt::Key_Left || touche == Qt::Key_Right || touche == Qt::Key_Home ||
               touche == Qt::Key_End;
    });
    for (const GenreNomme& g : genres_nommes()) {
        QAction* genre = menu_.addAction(g.legende);
        genre->setObjectName(texte_qt(nom(g.genre)));
        genre->setCheckable(true);
        connect(genre, &QAction::triggered, this,
                [this, g](bool signale) { au_choix_(g.genre, !signale); });
    }
}

void ListeConstats::aller(const QTreeWidgetItem& rangee) const {
    if (const QVariant rang = rangee.data(0, role_constat); rang.isValid())
        au_constat(static_cast<std::size_t>(rang.toULongLong()));
    else if (const QVariant robot = rangee.data(0, role_robot); robot.isValid())
        au_rapprochement(robot.toInt(), rangee.data(0, role_temps).toInt());
}

void ListeConstats::remplir(const QString& verdict, const Analyse& a,
                            const GenresMasques& masques) {
    verdict_.setText(verdict);
    remplir_genres(a, masques);
    liste_.clear();
    for (int robot = 0; robot <= robots_des_fichiers; ++robot)
        remplir_robot(a, masques, robot);
    liste_.expandAll();
    for (int i = 0; i < liste_.topLevelItemCount(); ++i)
        liste_.setFirstColumnSpanned(i, {}, true);
    if (QTreeWidgetItem* premier = liste_.topLevelItem(0))
        liste_.setCurrentItem(premier->childCount() > 0 ? premier->child(0) : premier);
}

void ListeConstats::remplir_genres(const Analyse& a, const GenresMasques& masques) {
    QStringList noms;
    const auto genres = genres_nommes();
    for (std::size_t i = 0; i < genres.size(); ++i) {
        const bool masque = masques.contient(genres[i].genre);
        menu_.actions()[static_cast<qsizetype>(i)]->setChecked(!masque);
        if (masque)
            noms << QString(genres[i].legende).toLower();
    }
    const auto caches = std::ranges::count_if(
        a.constats, [&](const Constat& c) { return masques.contient(c.genre); });
    masques_.setText(noms.isEmpty()
                         ? "Tous les genres de constats sont signalés."
                         : texte_qt(compte(masques.nombre(), "genre")) +
                               (noms.size() > 1 ? " masqués (" : " masqué (") + noms.join(", ") +
                               "), " + texte_qt(compte(static_cast<int>(caches), "constat")) +
                               (caches > 1 ? " cachés" : " caché"));
}

void ListeConstats::remplir_robot(const Analyse& a, const GenresMasques& masques, int robot) {
    auto* groupe = new QTreeWidgetItem({titre_du_robot(a, robot)});
    QFont gras = font();
    gras.setBold(true);
    groupe->setFont(0, gras);
    for (std::size_t i = 0; i < a.constats.size(); ++i) {
        const Constat& c = a.constats[i];
        if (concerne(c, robot) && !masques.contient(c.genre))
            ajouter(*groupe, colonnes(c)).setData(0, role_constat, static_cast<qulonglong>(i));
    }
    ajouter_ecart(*groupe, a, robot);
    const bool present = std::ranges::find(a.robots, robot, &Bilan::robot) != a.robots.end();
    if (groupe->childCount() > 0 || present)
        liste_.addTopLevelItem(groupe);
    else
        delete groupe;
}

// The nearest of the others.
void ListeConstats::ajouter_ecart(QTreeWidgetItem& groupe, const Analyse& a, int robot) {
    const EcartDeRobots* moindre = nullptr;
    for (const EcartDeRobots& e : a.ecarts)
        if ((e.robot == robot || e.autre == robot) &&
            (moindre == nullptr || e.ecart < moindre->ecart))
            moindre = &e;
    if (moindre == nullptr)
        return;
    const int autre = moindre->robot == robot ? moindre->autre : moindre->robot;
    const std::string quoi = moindre->ecart == 0
                                 ? "Touche le robot " + std::to_string(autre)
                                 : "Au plus près du robot " + std::to_string(autre) + " : " +
                                       dixiemes(moindre->ecart) + " cm";
    const PoseTick& p = a.match.pose(robot, moindre->temps);
    QTreeWidgetItem& rangee = ajouter(
        groupe, {texte_qt(secondes(moindre->temps)), en_place(p.x, p.y), "", "",
                 texte_qt(quoi + " (pas " + std::to_string(a.match.tick(moindre->temps)) + ")")});
    rangee.setData(0, role_robot, robot);
    rangee.setData(0, role_temps, moindre->temps);
}
