#pragma once

#include "seance/seance.h"
#include "ui/generation/vue_rejeu.h"

#include <QCheckBox>
#include <QPlainTextEdit>
#include <QWidget>

#include <filesystem>
#include <functional>

/// What the robot's code would really do, beside what the screen shows: both ways on a small table,
/// where they end, and the first action that differs.
class PanneauRejeu final : public QWidget, private Ecouteur {
public:
    /// @param a_refaire  what was shown may no longer be so
    PanneauRejeu(Seance& seance, std::function<void()> a_refaire);

    /// @param entree  a generation input; empty: none selected
    void montrer(const std::filesystem::path& entree);

private:
    void projet_change(Lecture) override { a_refaire_(); }
    void trajet_change() override { a_refaire_(); }
    void reglages_changes() override { a_refaire_(); }

    void nommer();
    void placer();
    void comparer(const std::filesystem::path& entree);
    void ecrire(const std::vector<std::string>& phrases);
    std::filesystem::path configuration() const { return seance_.projet().dossier_configuration(); }

    Seance& seance_;
    std::function<void()> a_refaire_;
    VueRejeu vue_;
    QCheckBox croises_;
    QPlainTextEdit texte_;
};
