// What the manual says against what the program has: its messages, its keys.
#include "base/fichiers.h"
#include "ui/aide/manuel.h"
#include "ui/banc.h"

#include <QAction>
#include <QMenu>
#include <QRadioButton>
#include <QRegularExpression>
#include <QShortcut>

#include <map>
#include <set>

namespace {

QString page_du_manuel(const char* nom) {
    for (const PageManuel& page : pages_du_manuel())
        if (QString(page.fichier) == nom)
            return texte_de(page);
    return {};
}

/// The statement that begins at `debut`, without its comments' lines.
QString instruction(const QString& source, qsizetype debut) {
    bool dans_un_texte = false;
    qsizetype fin = debut;
    for (; fin < source.size() && (dans_un_texte || source[fin] != ';'); ++fin) {
        if (source[fin] == '\\')
            ++fin;
        else if (source[fin] == '"')
            dans_un_texte = !dans_un_texte;
    }
    return source.mid(debut, fin - debut);
}

/// The sentences, and parts of sentences between what varies, that a source hands to a box or to an
/// exception.
QStringList phrases_dites(QString source) {
    static const QRegularExpression commentaire("//[^\n]*");
    static const QRegularExpression appel(
        R"(\b(message|question|demander|refuser|dire|showMessage|Erreur[A-Z]\w*)\()");
    static const QRegularExpression texte(R"re("(?:[^"\\\n]|\\.)*"(?:\s*"(?:[^"\\\n]|\\.)*")*)re");
    static const QRegularExpression couture(R"("\s*")");
    static const QRegularExpression variable(R"(\\[nrt"]|%\d)");
    static const QRegularExpression bord("^[ .:;,»«()\"]+|[ .:;,»«()\"]+$");
    QStringList phrases;
    source.remove(commentaire);
    for (const auto& a : appel.globalMatch(source))
        for (const auto& t : texte.globalMatch(instruction(source, a.capturedEnd())))
            for (QString partie : t.captured().remove(couture).split(variable))
                if (partie.remove(bord); partie.size() >= 12 && partie.contains(' '))
                    phrases << partie;
    return phrases;
}

QString touche_en_francais(const QKeySequence& touche) {
    static const std::map<QString, QString> noms{
        {"Shift", "Maj"},      {"Left", "Gauche"},     {"Right", "Droite"},
        {"Up", "Haut"},        {"Down", "Bas"},        {"Home", "Début"},
        {"End", "Fin"},        {"Del", "Suppr"},       {"Ins", "Inser"},
        {"PgUp", "Page haut"}, {"PgDown", "Page bas"}, {"Space", "Espace"},
        {"Return", "Entrée"},  {"Esc", "Échap"},       {"Backspace", "Retour arrière"}};
    QStringList parties = touche.toString(QKeySequence::PortableText).split('+');
    for (QString& partie : parties)
        if (const auto nom = noms.find(partie); nom != noms.end())
            partie = nom->second;
    return parties.join('+');
}

/// The keys that the page's sections of these titles list.
std::set<QString> touches_ecrites(const QStringList& titres) {
    std::set<QString> touches;
    QString titre;
    for (const QString& ligne : page_du_manuel("raccourcis").split('\n')) {
        if (ligne.startsWith("## "))
            titre = ligne.mid(3);
        else if (ligne.startsWith("| ") && titres.contains(titre))
            for (const QString& touche : ligne.section(" | ", 0, 0).mid(2).split(", "))
                touches.insert(touche);
    }
    return touches;
}

class ManuelVrai : public Banc {
protected:
    void ouvrir_les_fenetres() {
        demarrer();
        for (const char* bouton : {"Command5", "generer", "Aide", "dessinAire"})
            cliquer(bouton);
        trouver<QRadioButton>("chx_dessinRobot").setChecked(true);
        trouver<QPushButton>("visu_gene").click();
        sim->findChild<QAction*>("menu_trajet")->trigger();
        trouver<QAbstractButton>("verdict").click();
    }
    /// A menu is a window of its own: what counts is the one that it belongs to.
    static QString fenetre_de(const QObject* objet) {
        while (objet != nullptr && (!objet->isWidgetType() || qobject_cast<const QMenu*>(objet)))
            objet = objet->parent();
        const auto* controle = qobject_cast<const QWidget*>(objet);
        return controle == nullptr ? "" : controle->window()->objectName();
    }
    void verifier(const QObject* objet, const QKeySequence& touche) {
        static const std::map<QString, QString> titres{
            {"Sim1", "Fenêtre principale et Option"},
            {"FOption", "Fenêtre principale et Option"},
            {"Télécommande", "Télécommande"},
            {"dessinTable", "Éditeur de table"},
            {"dessinRobot", "Éditeur de robot"},
            {"dessinTrajet", "Éditeur de trajets"},
            {"Analyse", "Analyse du match"},
            {"Dialog", "Génération et visualisation"},
            {"Visualiser", "Génération et visualisation"},
            {"Aide", "Aide"}};
        if (touche.isEmpty())
            return;
        const QString fenetre = fenetre_de(objet);
        const auto titre = titres.find(fenetre);
        QStringList sections{"Partout", titre == titres.end() ? "" : titre->second};
        if (fenetre.startsWith("dessin"))
            sections << "Les trois éditeurs";
        const QString nom = touche_en_francais(touche);
        EXPECT_TRUE(touches_ecrites(sections).contains(nom))
            << (fenetre + " : " + nom + " (" + objet->objectName() + ")").toStdString();
        ++verifiees;
    }

    int verifiees = 0;
};

TEST_F(ManuelVrai, chaque_message_des_sources_est_explique) {
    const QString page = page_du_manuel("messages").remove("**").remove('*');
    int vues = 0;
    for (const auto& entree : std::filesystem::recursive_directory_iterator(
             std::filesystem::path(RACINE_DU_PROJET) / "src")) {
        if (entree.path().extension() != ".cpp" && entree.path().extension() != ".h")
            continue;
        const QString source = QString::fromStdString(lire_octets(entree.path()));
        for (const QString& phrase : phrases_dites(source)) {
            ++vues;
            EXPECT_TRUE(page.contains(phrase, Qt::CaseInsensitive))
                << entree.path().filename() << " : " << phrase.toStdString();
        }
    }
    EXPECT_GT(vues, 120);
}

TEST_F(ManuelVrai, chaque_raccourci_d_une_fenetre_est_dans_sa_section) {
    ouvrir_les_fenetres();
    for (const auto* action : sim->findChildren<QAction*>())
        verifier(action, action->shortcut());
    for (const auto* raccourci : sim->findChildren<QShortcut*>())
        verifier(raccourci, raccourci->key());
    for (const auto* bouton : sim->findChildren<QAbstractButton*>())
        if (!bouton->text().contains('&')) // else the letter underlined in its caption
            verifier(bouton, bouton->shortcut());
    EXPECT_GT(verifiees, 80);
}

} // namespace
