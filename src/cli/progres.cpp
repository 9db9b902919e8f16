#include "cli/progres.h"

#include "base/systeme.h"

#include <algorithm>
#include <cstdio>
#include <utility>

int pour_cent(std::int64_t fait, std::int64_t total) {
    if (total <= 0)
        return 100;
    return static_cast<int>(std::clamp<std::int64_t>(100 * fait / total, 0, 100));
}

std::string barre_de_progres(const std::string& titre, int pour_cent) {
    constexpr std::size_t places = 25;
    const std::size_t pleines = static_cast<std::size_t>(pour_cent) * places / 100;
    std::string nombre = std::to_string(pour_cent);
    nombre.insert(0, 3 - nombre.size(), ' ');
    return titre + " [" + std::string(pleines, '#') + std::string(places - pleines, '.') + "] " +
           nombre + " %";
}

Progres::Progres(std::string titre, std::int64_t total)
    : titre_(std::move(titre)),
      total_(total),
      actif_(systeme::est_un_terminal(systeme::Flux::erreurs)) {}

Progres::~Progres() {
    if (visible_)
        std::fputs("\r\033[K", stderr);
}

void Progres::montrer(std::int64_t fait) {
    using namespace std::chrono_literals;
    if (std::chrono::steady_clock::now() - debut_ < 500ms)
        return;
    const int maintenant = pour_cent(fait, total_);
    if (maintenant == montre_)
        return;
    montre_ = maintenant;
    visible_ = true;
    std::fputs(("\r" + barre_de_progres(titre_, maintenant)).c_str(), stderr);
}
