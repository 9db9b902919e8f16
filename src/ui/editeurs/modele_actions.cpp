#include "ui/editeurs/modele_actions.h"

#include "analyse/verdict.h"
#include "edition/actions_trajet.h"
#include "sim/actions.h"
#include "ui/commun/boites.h"
#include "ui/commun/lisible.h"
#include "ui/commun/nombre.h"

#include <QApplication>
#include <QIcon>
#include <QPalette>
#include <QStyle>

#include <algorithm>

namespace {

constexpr int premiere_valeur = ModeleActions::valeur1;

const actions::Action* sorte(const Fiche& fiche) {
    return actions::trouver(Nom10(fiche.cle));
}

/// What the number at place i of an action means: "rayon".
QString nom_de_valeur(const actions::Action& a, std::size_t i) {
    constexpr const char* depart[] = {"x", "y", "cap"};
    if (a.genre == actions::Genre::depart)
        return depart[i];
    switch (a.parametres.at(i)) {
    case actions::Unite::cm:
        return a.genre == actions::Genre::arc ? "rayon" : "distance";
    case actions::Unite::degres:
        return "angle";
    default:
        return "durée";
    }
}

QString avec_unite(const actions::Action& a, std::size_t i, int valeur) {
    const bool nommee = a.genre == actions::Genre::depart || a.genre == actions::Genre::arc;
    const QString nom = nommee ? nom_de_valeur(a, i) + " " : QString();
    switch (a.parametres.at(i)) {
    case actions::Unite::cm:
        return nom + QString("%1 cm").arg(valeur);
    case actions::Unite::degres:
        return nom + QString("%1°").arg(valeur);
    default:
        return QString("%1 (%2)").arg(valeur).arg(texte_qt(secondes(valeur)));
    }
}

/// What the file takes, and what of it the robot's code does.
constexpr const char* limites_du_fichier = "de -32768 à 32767";
constexpr const char* limites_du_code = "de 0 à 255 pour entrer dans le code";

QString limites(const actions::Action& a, std::size_t i) {
    constexpr const char* unites[] = {"", "centimètres", "degrés", "centièmes de seconde"};
    const QString texte = QString("%1 en %2 : %3")
                              .arg(nom_de_valeur(a, i))
                              .arg(unites[static_cast<std::size_t>(a.parametres.at(i))])
                              .arg(limites_du_fichier);
    return a.genre == actions::Genre::depart ? texte : texte + ", " + limites_du_code;
}

int alignement(int colonne) {
    const bool a_droite = colonne == ModeleActions::numero || colonne == ModeleActions::debut ||
                          colonne == ModeleActions::fin;
    return int(Qt::AlignVCenter | (a_droite ? Qt::AlignRight : Qt::AlignLeft));
}

ModeleActions::Lecture lire_action(const Fiche& avant, const QString& texte) {
    const std::string mot = majuscules(texte.trimmed().toStdString());
    const actions::Action* const en = mot.empty() ? nullptr : actions::trouver(Nom10(mot));
    if (en == nullptr)
        return {std::nullopt, QString("« %1 » n'est pas une action").arg(texte.trimmed())};
    return {en == sorte(avant) ? avant : action_changee(avant, *en), {}};
}

} // namespace

ModeleActions::ModeleActions(Historique<DocumentTrajet>& historique, QObject* parent)
    : QAbstractTableModel(parent), h_(historique) {}

// Rows come and go at the end, so that the current cell and what is chosen stay where they are.
void ModeleActions::montrer(const DocumentTrajet& montre, const EssaiTrajet* essai) {
    const int avant = rowCount();
    const int apres = static_cast<int>(montre.nombre());
    if (apres != avant)
        suspens_.clear();
    if (apres > avant)
        beginInsertRows({}, avant, apres - 1);
    else if (apres < avant)
        beginRemoveRows({}, apres, avant - 1);
    montre_ = montre;
    essai_ = essai;
    refus_.clear();
    for (const RefusLecture& r : montre_.refus())
        refus_.emplace(r.ligne, texte_qt(r.raison));
    if (apres > avant)
        endInsertRows();
    else if (apres < avant)
        endRemoveRows();
    if (apres > 0)
        emit dataChanged(index(0, 0), index(apres - 1, remarque));
}

int ModeleActions::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(montre_.nombre());
}

int ModeleActions::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : nombre_de_colonnes;
}

QVariant ModeleActions::headerData(int section, Qt::Orientation orientation, int role) const {
    constexpr const char* titres[] = {"N°",        "Action", "1re valeur", "2e valeur",
                                      "3e valeur", "Début",  "Fin",        "Arrivée : x ; y ; cap",
                                      "Remarque"};
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::TextAlignmentRole)
        return alignement(section);
    if (role == Qt::ToolTipRole && section >= valeur1 && section <= valeur3)
        return QString("Nombre entier %1, %2").arg(limites_du_fichier).arg(limites_du_code);
    return role == Qt::DisplayRole ? titres[section] : QVariant();
}

// The place of the number that such a cell holds; nothing for another one.
std::optional<std::size_t> ModeleActions::valeur(const QModelIndex& index) const {
    const auto& cle = montre_[static_cast<std::size_t>(index.row())].cle;
    const int rang = index.column() - premiere_valeur;
    if (rang < 0 || rang >= static_cast<int>(DocumentTrajet::champs(cle)))
        return std::nullopt;
    return static_cast<std::size_t>(rang);
}

QString ModeleActions::limites_de(const QModelIndex& index) const {
    const actions::Action* const a = sorte(montre_[static_cast<std::size_t>(index.row())]);
    const auto rang = valeur(index);
    return a != nullptr && rang ? limites(*a, *rang) : QString();
}

QString ModeleActions::texte(std::size_t i, int colonne) const {
    const Fiche& f = montre_[i];
    const actions::Action* const a = sorte(f);
    if (colonne == action)
        return texte_qt(a == nullptr || a->mot.empty() ? f.cle : std::string(a->mot));
    if (colonne >= valeur1 && colonne <= valeur3) {
        const auto rang = static_cast<std::size_t>(colonne - premiere_valeur);
        return a != nullptr && rang < DocumentTrajet::champs(f.cle)
                   ? avec_unite(*a, rang, f.entier(rang))
                   : QString();
    }
    return texte_calcule(i, colonne);
}

QString ModeleActions::texte_calcule(std::size_t i, int colonne) const {
    if (essai_ == nullptr)
        return {};
    if (colonne == numero)
        return essai_->numeros[i] == 0 ? QString("–") : QString::number(essai_->numeros[i]);
    if (colonne == remarque)
        return remarque_de(i);
    const ActionJouee* const jouee = essai_->jouee(i);
    if (jouee == nullptr)
        return {};
    if (colonne == debut)
        return texte_qt(secondes(jouee->debut));
    if (!jouee->finie())
        return colonne == fin ? "pas finie" : QString();
    if (colonne == fin)
        return texte_qt(secondes(jouee->fin));
    return texte_qt(dixiemes(jouee->apres.x) + " ; " + dixiemes(jouee->apres.y) + " ; " +
                    dixiemes(cap_ramene(jouee->apres.cap)) + "°");
}

QString ModeleActions::remarque_de(std::size_t i) const {
    if (essai_ == nullptr)
        return {};
    if (const auto refus = refus_.find(montre_.ligne(i)); refus != refus_.end())
        return "refusé à la lecture : " + refus->second;
    QStringList textes;
    for (const Constat* c : essai_->constats(montre_, i))
        textes << (c->temps ? texte_qt(secondes(*c->temps)) + " : " : QString()) +
                      texte_qt(c->texte);
    return textes.join("\n");
}

const ModeleActions::Suspens* ModeleActions::suspens(const QModelIndex& index) const {
    const auto trouve = suspens_.find({index.row(), index.column()});
    return trouve == suspens_.end() ? nullptr : &trouve->second;
}

QColor ModeleActions::alerte() const {
    return couleur_d_alerte(QApplication::palette());
}

QVariant ModeleActions::data(const QModelIndex& index, int role) const {
    const auto i = static_cast<std::size_t>(index.row());
    const Suspens* const refuse = suspens(index);
    const int rang = index.column() - premiere_valeur;
    switch (role) {
    case Qt::DisplayRole:
        return refuse != nullptr ? refuse->texte : texte(i, index.column()).section('\n', 0, 0);
    case Qt::EditRole:
        if (refuse != nullptr)
            return refuse->texte;
        return rang >= 0 && index.column() <= valeur3
                   ? QString::number(montre_[i].entier(static_cast<std::size_t>(rang)))
                   : texte(i, index.column());
    case Qt::ToolTipRole:
        return refuse != nullptr ? refuse->raison
                                 : (texte(i, index.column()) + "\n" + limites_de(index)).trimmed();
    case Qt::DecorationRole:
        if (refuse != nullptr)
            return QApplication::style()->standardIcon(QStyle::SP_MessageBoxCritical);
        return index.column() == numero && !remarque_de(i).isEmpty()
                   ? QApplication::style()->standardIcon(QStyle::SP_MessageBoxWarning)
                   : QVariant();
    case Qt::ForegroundRole:
        return refuse != nullptr || index.column() == remarque ? QVariant(alerte()) : QVariant();
    case Qt::TextAlignmentRole:
        return alignement(index.column());
    default:
        return {};
    }
}

// A number is an action's own or one of its values, whole: "6" is not found in "16".
bool ModeleActions::contient(int rang, const QString& cherche) const {
    bool nombre = false;
    const int voulu = cherche.toInt(&nombre);
    if (nombre)
        return a_le_nombre(static_cast<std::size_t>(rang), voulu);
    for (int colonne = 0; colonne < nombre_de_colonnes; ++colonne)
        if (texte(static_cast<std::size_t>(rang), colonne).contains(cherche, Qt::CaseInsensitive))
            return true;
    return false;
}

bool ModeleActions::a_le_nombre(std::size_t i, int nombre) const {
    if (essai_ != nullptr && essai_->numeros[i] == nombre && nombre != 0)
        return true;
    const Fiche& f = montre_[i];
    for (std::size_t k = 0; k < DocumentTrajet::champs(f.cle); ++k)
        if (f.entier(k) == nombre)
            return true;
    return false;
}

Qt::ItemFlags ModeleActions::flags(const QModelIndex& index) const {
    const bool a_taper = index.column() == action || valeur(index);
    return QAbstractTableModel::flags(index) | (a_taper ? Qt::ItemIsEditable : Qt::ItemFlags());
}

ModeleActions::Lecture ModeleActions::lire(const QModelIndex& index, const QString& texte) const {
    const Fiche& avant = h_.doc()[static_cast<std::size_t>(index.row())];
    if (index.column() == action)
        return lire_action(avant, texte);
    const Saisie nombre = lire_saisie(texte, 0, -32768, 32767);
    if (!nombre.valeur)
        return {std::nullopt, nombre.raison};
    Fiche f = avant;
    f.v.at(static_cast<std::size_t>(index.column() - premiere_valeur)) =
        static_cast<float>(*nombre.valeur);
    return {f, {}};
}

bool ModeleActions::setData(const QModelIndex& index, const QVariant& valeur, int role) {
    if (role != Qt::EditRole)
        return false;
    const auto i = static_cast<std::size_t>(index.row());
    const Lecture lue = lire(index, valeur.toString());
    suspens_.erase({index.row(), index.column()});
    if (!lue.fiche)
        suspens_[{index.row(), index.column()}] = {valeur.toString(), lue.refus};
    if (!lue.fiche || *lue.fiche == h_.doc()[i]) {
        emit dataChanged(index, index);
        return lue.fiche.has_value();
    }
    DocumentTrajet d = h_.doc();
    d.remplacer(i, *lue.fiche);
    h_.changer(index.column() == action ? "Changer l'action" : "Changer une valeur", std::move(d),
               h_.selection());
    return true;
}

QString ModeleActions::en_suspens() const {
    if (suspens_.empty())
        return {};
    const auto& [place, refuse] = *suspens_.begin();
    return QString("Ligne %1 : %2")
        .arg(h_.doc().ligne(static_cast<std::size_t>(place.first)))
        .arg(refuse.raison);
}
