#pragma once

#include "config/document_table.h"
#include "config/reprise_dessin.h"
#include "edition/alignement.h"
#include "ui/commun/boites.h"
#include "ui/commun/historique.h"
#include "ui/commun/veilleur.h"

#include <QLabel>
#include <QMainWindow>
#include <QMenu>
#include <QTimer>

#include <filesystem>
#include <functional>
#include <optional>
#include <string>

class ColonnePalette;
class Fenetres;
class Foutil;
class VueEchelle;
class nouveauProjet;

/// What the editors share: their file (opened, saved, closed without losing work), menus, undo.
class FenetreEditeur : public QMainWindow {
public:
    /// What the editors need of the program.
    struct Programme {
        std::filesystem::path configuration;
        std::function<void(const std::string& projet)> charger; ///< makes a project the current one
        std::function<void(const std::filesystem::path&)> ecrit =
            {}; ///< right after a file was written
        /// Reads a project again when it is the current one. @returns false when it is not, or when
        /// the user has to be asked
        std::function<bool(const std::string& projet)> relire = {};
    };

    /// What tells one editor's window from another's.
    struct Description {
        GenreFichier genre;           ///< of its file
        QString titre;                ///< behind the file's name
        QString filtre;               ///< of the file dialog
        std::string sujet = "dessin"; ///< what messages call it: "le dessin"
    };

    FenetreEditeur(QWidget* parent, Foutil& outils, Programme programme, Description description);

    /// Opens a file in place of the present drawing. @returns false after an error (told)
    bool ouvrir(const std::filesystem::path& chemin);
    /// The same for the file of a project just made: saving needs no more questions, and its name
    /// is proposed.
    void ouvrir_nouveau(const std::filesystem::path& chemin);
    /// Writes the drawing, whatever is needed asked before; then offers to load its project.
    bool genererFic(const std::filesystem::path& chemin);
    /// Opens the loaded project's file in place of a drawing that nobody has opened or begun.
    void proposer(const std::filesystem::path& chemin);
    bool enregistrer();
    bool enregistrer_sous();
    /// What the user wants of the changes that are not saved.
    enum class Depart { rien_a_perdre, enregistrer, ne_pas_enregistrer, annuler };
    /// Asks, and touches nothing yet.
    Depart demander_depart();
    /// Saves if that is the answer. @returns false when the drawing stays
    bool preparer_depart(Depart reponse);
    /// The leaving has happened: what is not saved goes.
    void partir();

    /// The tool in hand changed.
    void outil_change();
    /// The palette, where it is docked, comes into this window.
    void accueillir_palette();
    /// The palette went elsewhere.
    void suivre_palette();

    /// Offers the drawings that an earlier program did not save. @returns true when one was taken
    /// up
    bool proposer_reprise(Fenetres& f);
    /// Brings the recovery file up to date at once.
    void ecrire_reprise();

protected:
    /// What lies in the window, and the document that it edits.
    struct Contenu {
        DocumentOuvert& document;
        VueEchelle& vue;
        QWidget& panneau;    ///< beside the view
        QList<int> largeurs; ///< of the two, logical pixels
    };

    /// Why the simulator would refuse the file.
    virtual std::optional<RefusLecture> relire(const std::string& octets) const = 0;
    /// Why what was typed cannot be taken yet; empty when nothing is left to be typed.
    virtual QString en_suspens() const { return {}; }

    /// A new drawing in place of the present one.
    virtual void commencer() { ouvert().commencer(); }
    virtual void fichier_change() {} ///< another file, or under another name
    virtual void apres_ecriture() {} ///< the file was written at the user's wish

    virtual void retirer() = 0; ///< what is chosen, and likewise:
    virtual void dupliquer() = 0;
    virtual void tout_choisir() = 0;
    virtual void deplacer(double dx, double dy) = 0; ///< cm
    virtual void aligner(Bord) {}
    /// What is chosen as lines of the file, for the clipboard.
    virtual std::string copier() const = 0;
    virtual void coller(const std::string& lignes) = 0;

    /// Lays the window out; then, at the end of the derived constructor, the menus.
    void assembler(Contenu contenu);
    void preparer_menus();
    /// The commands of these names in a toolbar; "" parts them.
    void preparer_barre(std::initializer_list<const char*> noms);
    void preparer_presse_papiers();
    void preparer_alignement();
    /// The commands of these names for the right button; "" parts them.
    void preparer_menu_contextuel(std::initializer_list<const char*> noms);
    void montrer_menu_contextuel(QPoint ecran) { contextuel_.popup(ecran); }
    QAction* action(QMenu& menu, const char* nom, const QString& texte, const QKeySequence& touche,
                    std::function<void()> faire, Qt::ConnectionType quand = Qt::DirectConnection);
    QMenu& menu_edition() { return *menu_edition_; }
    void montrer_titre();
    /// Takes what is being typed. @returns false when it is no number, which is told
    virtual bool prendre_la_saisie();
    void proposer_de_charger();
    const std::filesystem::path& chemin() const { return chemin_; }
    /// The file's bytes as they were read or written last.
    const std::string& sur_le_disque() const { return sur_le_disque_; }
    const Programme& programme() const { return programme_; }
    void closeEvent(QCloseEvent* evenement) override;
    void changeEvent(QEvent* evenement) override;

    // What is typed in a row, and the arrow keys' movements in a row, are one step.
    static constexpr int fusion_des_frappes = 1, fusion_des_pas = 2;

    Foutil& outils_;
    Boites boites_{*this};
    QLabel position_, comptes_; ///< in the status bar

private:
    DocumentOuvert& ouvert() { return contenu_->document; }
    QUndoStack& pile() { return contenu_->document.pile; }
    VueEchelle& vue() { return contenu_->vue; }
    void preparer_fichier();
    void preparer_annulation();
    void preparer_edition();
    void preparer_pas();
    void preparer_affichage();
    void preparer_grille(QMenu& affichage);
    QAction* commande_ou_trait(const QString& nom);
    bool peut_partir() { return preparer_depart(demander_depart()); }
    void nouveau();
    void choisir_un_fichier();
    void autre_fichier();
    void reprendre(const DessinGarde& garde);
    void verifier_disque();
    bool peut_remplacer(const std::filesystem::path& chemin);
    void ecrire(const std::filesystem::path& chemin, const std::string& octets);

    Programme programme_;
    Description description_;
    std::optional<Contenu> contenu_;
    ColonnePalette* colonne_ = nullptr; ///< none where the palette draws nothing
    QMenu* menu_edition_ = nullptr;
    QMenu contextuel_{this};
    std::filesystem::path chemin_;  ///< empty: never saved
    std::filesystem::path propose_; ///< it was opened unasked
    std::string sur_le_disque_;
    std::string refuses_; ///< another program's bytes that the user did not want
    bool remplacement_accepte_ = false;
    std::string nom_propose_; ///< for "Enregistrer sous...", without ".ini"
    RepriseDessin reprise_;
    QTimer attente_reprise_{this}; ///< gathers the changes of half a second
    Veilleur veilleur_{[this] { verifier_disque(); }};
};
