#pragma once

#include <QWidget>

#include <cstdint>
#include <vector>

/// The match's 90 seconds as a thin bar under the table, a mark every 10 s: how far the run is; at
/// rest where the robots' plans end.
class BarreMatch final : public QWidget {
public:
    static constexpr int hauteur = 6; ///< logical pixels

    explicit BarreMatch(QWidget* parent);

    /// @param temps  hundredths of a second since the run began
    void avancer(std::int32_t temps);
    /// Held: the bar is hatched.
    void suspendre(bool oui);
    /// @param fins  of the plans that end, hundredths of a second
    void montrer_fins(std::vector<std::int32_t> fins);

protected:
    bool event(QEvent* evenement) override;
    void paintEvent(QPaintEvent*) override;

private:
    int pixel(std::int32_t temps) const;
    QString texte() const;

    std::int32_t temps_ = 0;
    bool suspendue_ = false;
    std::vector<std::int32_t> fins_;
};
