#pragma once

#include <QFileSystemWatcher>
#include <QTimer>

#include <filesystem>
#include <functional>
#include <vector>

/// Tells that another program, or another window, has written into files or directories: once they
/// have been quiet for a moment, and also when a file was replaced by renaming.
class Veilleur final {
public:
    explicit Veilleur(std::function<void()> au_changement);

    /// Watches these in place of what was watched; those that do not exist are left out.
    void suivre(std::vector<std::filesystem::path> chemins);
    /// Tells it again a moment later, for whoever cannot attend to it now.
    void remettre() { attente_.start(); }

    /// From the last sign of a change to the telling: an editor may write a file in several goes.
    static constexpr int attente_ms = 300;

private:
    void abonner();

    std::function<void()> au_changement_;
    std::vector<std::filesystem::path> chemins_;
    QFileSystemWatcher veilleur_;
    QTimer attente_;
};
