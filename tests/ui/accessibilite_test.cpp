#include "ui/banc.h"

#include <QAccessible>
#include <QAction>
#include <QComboBox>
#include <QMenu>
#include <QRadioButton>
#include <QToolButton>

#include <algorithm>
#include <set>

namespace {

// What somebody acts on, or steps to: it must say what it is.
bool doit_avoir_un_nom(QAccessibleInterface& a) {
    switch (a.role()) {
    case QAccessible::PushButton:
    case QAccessible::CheckBox:
    case QAccessible::RadioButton:
    case QAccessible::ComboBox:
    case QAccessible::EditableText:
    case QAccessible::SpinBox:
    case QAccessible::Slider:
    case QAccessible::MenuItem:
    case QAccessible::PageTab:
    case QAccessible::Dialog:
    case QAccessible::Window:
        return true;
    default:
        return a.state().focusable;
    }
}

bool porte_ses_cases(QAccessibleInterface& a) {
    return a.tableInterface() != nullptr || a.role() == QAccessible::ComboBox ||
           a.role() == QAccessible::SpinBox || a.role() == QAccessible::List;
}

// Every window as the accessibility bus shows it; each of its controls is asked once.
class Accessibilite : public Banc {
protected:
    Accessibilite() {
        avant_de_repondre = [this](QDialog& dialogue) { parcourir(dialogue); };
    }

    void parcourir(QWidget& fenetre) {
        fenetres_vues.insert(fenetre.objectName().toStdString());
        visiter(*QAccessible::queryAccessibleInterface(&fenetre), fenetre.objectName());
        for (auto* bouton : fenetre.findChildren<QAbstractButton*>())
            if (bouton->window() == &fenetre && bouton->isVisible() && bouton->isEnabled() &&
                !au_clavier(*bouton))
                noter("sans clavier", fenetre.objectName(), bouton->objectName() + bouton->text());
    }
    void parcourir_les_fenetres() {
        for (QWidget* fenetre : QApplication::topLevelWidgets())
            if (fenetre->isVisible())
                parcourir(*fenetre);
    }
    // By convention "…" is what opens a window; the boxes that come are given up.
    void ouvrir_tout_ce_qui_s_ouvre() {
        std::set<QObject*> faits;
        for (bool encore = true; encore;) {
            encore = false;
            for (QAction* action : sim->findChildren<QAction*>())
                if (ouvre(action->text()) && action->isEnabled() && faits.insert(action).second) {
                    action->trigger();
                    encore = true;
                }
            for (auto* bouton : sim->findChildren<QAbstractButton*>())
                if (ouvre(bouton->text()) && bouton->isEnabled() && bouton->isVisible() &&
                    faits.insert(bouton).second) {
                    bouton->click();
                    encore = true;
                }
        }
    }

    std::set<std::string> fautes, fenetres_vues;

private:
    static bool ouvre(const QString& texte) {
        return texte.section('\t', 0, 0).endsWith("…") || texte.endsWith("...");
    }
    // Its key, or a menu besides the one that the button itself opens.
    static bool au_clavier(const QAction& action, const QMenu* du_bouton) {
        const auto lieux = action.associatedObjects();
        return action.isSeparator() || !action.shortcut().isEmpty() ||
               std::any_of(lieux.begin(), lieux.end(), [du_bouton](const QObject* lieu) {
                   return lieu != du_bouton && qobject_cast<const QMenu*>(lieu) != nullptr;
               });
    }
    // By Tab, by a letter of its caption, as one of a group, or as what a tool bar repeats.
    static bool au_clavier(const QAbstractButton& bouton) {
        if ((bouton.focusPolicy() & Qt::TabFocus) != 0 || bouton.autoExclusive() ||
            !bouton.shortcut().isEmpty() || bouton.objectName().startsWith("qt_"))
            return true;
        const auto* outil = qobject_cast<const QToolButton*>(&bouton);
        if (outil == nullptr)
            return false;
        QList<QAction*> actions = outil->menu() != nullptr
                                      ? outil->menu()->actions()
                                      : QList<QAction*>{outil->defaultAction()};
        return std::all_of(actions.begin(), actions.end(), [outil](const QAction* action) {
            return action != nullptr && au_clavier(*action, outil->menu());
        });
    }
    void noter(const QString& faute, const QString& fenetre, const QString& quoi) {
        fautes.insert((fenetre + " : " + faute + " : " + quoi).toStdString());
    }
    void visiter(QAccessibleInterface& a, const QString& fenetre) {
        const QString objet = a.object() != nullptr ? a.object()->objectName() : "";
        const bool de_qt = objet.startsWith("qt_");
        // A list that unfolds gives its present choice for a name.
        const bool nommee = a.role() == QAccessible::ComboBox
                                ? !a.relations(QAccessible::Label).isEmpty() ||
                                      !a.text(QAccessible::Description).isEmpty()
                                : !a.text(QAccessible::Name).isEmpty();
        if (doit_avoir_un_nom(a) && !nommee && !de_qt)
            noter("sans nom", fenetre,
                  objet + (a.object() != nullptr ? a.object()->metaObject()->className() : "?"));
        if (porte_ses_cases(a) || qobject_cast<QFileDialog*>(a.object()) != nullptr) // Qt's own
            return;
        for (int i = 0; i < a.childCount(); ++i)
            if (QAccessibleInterface* enfant = a.child(i); enfant && !enfant->state().invisible)
                visiter(*enfant, fenetre);
    }
};

TEST_F(Accessibilite, chaque_controle_de_chaque_fenetre_a_un_nom_et_se_joint_au_clavier) {
    demarrer();
    cocher("utiliDamier", true);
    for (const char* bouton : {"Command5", "generer", "Aide", "dessinAire"})
        cliquer(bouton);
    trouver<QRadioButton>("chx_dessinRobot").setChecked(true);
    trouver<QPushButton>("Choisir").click();
    trouver<QPushButton>("visu_gene").click();
    options().montrer(); // the console hides it
    cliquer("Command2");
    ouvrir_tout_ce_qui_s_ouvre();
    parcourir_les_fenetres();
    EXPECT_EQ(fautes, std::set<std::string>());
    for (const char* fenetre :
         {"Sim1", "FOption", "Télécommande", "Ouvrir", "dessinTable", "dessinRobot", "dessinTrajet",
          "Dialog", "OuvGeneration", "Visualiser", "Restauration", "Analyse"})
        EXPECT_TRUE(fenetres_vues.contains(fenetre)) << fenetre;
}

TEST_F(Accessibilite, la_table_se_decrit_au_repos_et_en_pause) {
    demarrer();
    const auto description = [this] {
        return trouver("Table").accessibleDescription().toStdString();
    };
    EXPECT_EQ(description().find("Projet Defaut, 0,00 s, 1 robot. Robot 1 : x "), 0U)
        << description();
    cliquer("Command1");
    EXPECT_FALSE(contient(description(), "Robot 1")) << description();
    sim->findChild<QAction*>("menu_pas")->trigger();
    EXPECT_TRUE(contient(description(), "0,01 s") && contient(description(), "Robot 1"))
        << description();
}

} // namespace
