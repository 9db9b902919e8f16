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

private:
    static constexpr int attente_ms = 250;

    void abonner();

    std::function<void()> au_changement_;
    std::vector<std::filesystem::path> chemins_;
    QFileSystemWatcher veilleur_;
    QTimer attente_;
};
