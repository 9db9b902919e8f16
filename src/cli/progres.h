#pragma once

#include <chrono>
#include <cstdint>
#include <string>

/// How much is done, 0 to 100; of nothing at all everything is.
int pour_cent(std::int64_t fait, std::int64_t total);
/// "Titre [#####....................]  20 %".
std::string barre_de_progres(const std::string& titre, int pour_cent);

/// A progress bar on standard error, shown only on a terminal and only for what takes longer than
/// half a second.
class Progres {
public:
    Progres(std::string titre, std::int64_t total);
    Progres(const Progres&) = delete;
    Progres& operator=(const Progres&) = delete;
    ~Progres();

    void avancer(std::int64_t fait) {
        if (actif_ && ++appels_ % 256 == 0)
            montrer(fait);
    }

private:
    void montrer(std::int64_t fait);

    std::string titre_;
    std::int64_t total_;
    bool actif_;
    bool visible_ = false;
    unsigned appels_ = 0;
    std::chrono::steady_clock::time_point debut_ = std::chrono::steady_clock::now();
    int montre_ = -1;
};
