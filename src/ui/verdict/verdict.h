#pragma once

#include "analyse/analyse.h"
#include "seance/seance.h"
#include "ui/verdict/genres_masques.h"
#include "ui/verdict/ligne_verdict.h"

#include <QTimer>

#include <bitset>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

class Bureau;
class FenetreAnalyse;

/// Plays the whole match anew after whatever changes it, once for several changes, when nothing
/// runs and no box is open; shows the verdict in a line, the match and its findings in a window.
class Verdict final : private Ecouteur {
public:
    Verdict(QWidget& principale, Seance& seance, Bureau& bureau);
    ~Verdict() override;

    /// To be placed, shown and hidden by the main window.
    LigneVerdict& ligne() { return ligne_; }
    void montrer_fenetre();
    const Analyse& analyse() const { return analyse_; }
    /// Those of the kinds that this project wants to hear of.
    std::vector<Constat> constats_signales() const;
    /// The match as it would be played now, without the kinds of findings that are switched off.
    Analyse analyse_a_jour() const;
    /// To be called with every new computation, and when other kinds are wanted.
    void quand_calcule(std::function<void(const Analyse&)> suite) {
        suites_.push_back(std::move(suite));
    }
    /// Something changed: plays the match again once the events that brought it are dealt with.
    void recalculer();
    /// A match or an action begins, or nothing runs any more.
    void course_change();

private:
    void projet_change(Lecture lecture) override;
    void trajet_change() override;
    void reglages_changes() override { recalculer(); }
    void fichier_ecrit(const std::filesystem::path&) override { recalculer(); }

    void calculer();
    Provenance provenance() const;
    Analyse analyser_le_projet() const;
    void noter_changement();
    TexteVerdict texte() const;
    void montrer();
    void prevenir();
    void mesurer();

    QWidget& principale_;
    Seance& seance_;
    Bureau& bureau_;
    LigneVerdict& ligne_;
    QTimer attente_, mesure_;
    bool attendu_ = false; ///< something changed since the match was played
    /// Their paths were recorded since the files were read: they have no lines there.
    std::bitset<robots_max + 1> enregistres_;
    std::unique_ptr<Etat> etat_; ///< that it was played from; draws the whole table
    Analyse analyse_;
    std::vector<std::function<void(const Analyse&)>> suites_;
    GenresMasques masques_;
    std::string dernier_; ///< the verdict before, and its margin
    std::optional<std::int32_t> marge_, changement_;
    std::unique_ptr<FenetreAnalyse> fenetre_; ///< made when it is first shown
};
