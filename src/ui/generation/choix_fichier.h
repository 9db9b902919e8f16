#pragma once

#include "ui/commun/veilleur.h"

#include <QComboBox>
#include <QListWidget>
#include <QPushButton>
#include <QString>

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

class QLayout;

/// The mounted volumes, as a drop-down list.
class ListeLecteurs final : public QComboBox {
public:
    ListeLecteurs();
    /// Called with the root of the volume that the user chose.
    std::function<void(const std::filesystem::path&)> au_choix;
    /// Shows the volume that holds `dossier`.
    void suivre(const std::filesystem::path& dossier);
    /// A stick may have been plugged in since.
    void showPopup() override;

private:
    void lister();
    std::filesystem::path dossier_;
};

/// A directory with those above it and those in it; hidden ones are left out. A double click or
/// Enter opens one.
class ListeDossiers final : public QListWidget {
public:
    ListeDossiers();
    const std::filesystem::path& chemin() const { return chemin_; }
    /// Moves there; a directory that is gone gives way to the nearest one above it.
    void aller(const std::filesystem::path& chemin);
    /// Called after every move.
    std::function<void()> au_changement;

private:
    void ajouter(const std::filesystem::path& dossier, int profondeur);
    std::filesystem::path chemin_;
};

/// The files of a directory that match a pattern ("*.bas"), case ignored.
class ListeFichiers final : public QListWidget {
public:
    void lister(const std::filesystem::path& dossier, const QString& motif);
    /// Lists the same again, the selection kept, when something came or went.
    void actualiser();
    /// Says what is special about a file, empty when nothing is: such files stand out in bold, with
    /// these words as tool tip and for assistive tools.
    std::function<QString(const std::filesystem::path&)> marque;
    std::vector<std::filesystem::path> tous() const;
    /// The selected file, empty when none is.
    std::filesystem::path choisi() const;
    void choisir(const std::string& nom);

private:
    QStringList presents() const;
    void marquer();
    std::filesystem::path dossier_;
    QString motif_;
};

/// Drive, directory and file lists that follow each other, with a pattern and the platform's own
/// dialog for those who prefer it.
class ChoixFichier {
public:
    struct Controles {
        const char *lecteur, *dossier, *fichier, *motif; ///< object names
        const char *bulle_lecteur, *bulle_dossier, *bulle_fichier, *bulle_motif;
        const char* quoi; ///< what is chosen, for the accessible names
        QStringList motifs;
    };
    explicit ChoixFichier(const Controles& c);

    /// @param legende  said beneath the directories
    QLayout* disposer(const QString& legende = {});
    std::filesystem::path fichier() const { return fichiers.choisi(); }

    ListeLecteurs lecteurs;
    ListeDossiers dossiers;
    ListeFichiers fichiers;
    QComboBox motif;
    QPushButton parcourir;
    /// Called when another directory or file is chosen, true for a directory; with false also when
    /// the chosen file was written to.
    std::function<void(bool)> au_changement;

private:
    void nommer(const Controles& c);
    void relister();
    void veiller();
    void actualiser();
    void parcourir_Click();

    Veilleur veilleur_{[this] { actualiser(); }};
};
