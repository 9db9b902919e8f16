#include "cli/progres.h"

#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <utility>

Progres::Progres(std::string titre, std::int64_t total)
    : titre_(std::move(titre)),
      total_(std::max<std::int64_t>(total, 1)),
      actif_(::isatty(STDERR_FILENO) == 1) {}

Progres::~Progres() {
    if (visible_)
        std::fputs("\r\033[K", stderr);
}

void Progres::montrer(std::int64_t fait) {
    using namespace std::chrono_literals;
    if (std::chrono::steady_clock::now() - debut_ < 500ms)
        return;
    const std::int64_t centieme = std::clamp<std::int64_t>(100 * fait / total_, 0, 100);
    if (centieme == montre_)
        return;
    montre_ = centieme;
    visible_ = true;
    const auto pleines = static_cast<std::size_t>(centieme / 4);
    const std::string barre = std::string(pleines, '#') + std::string(25 - pleines, '.');
    std::fprintf(stderr, "\r%s [%s] %3d %%", titre_.c_str(), barre.c_str(),
                 static_cast<int>(centieme));
}
