#include "cli/progres.h"

#include <gtest/gtest.h>

namespace {

TEST(Progres, la_barre_reste_entre_vide_et_pleine_meme_sans_rien_a_faire) {
    struct {
        std::int64_t fait, total;
        int attendu;
    } const cas[] = {{0, 0, 100}, {5, 0, 100}, {0, -1, 100},      {0, 9001, 0},
                     {-3, 10, 0}, {3, 10, 30}, {9001, 9001, 100}, {12, 10, 100}};
    for (const auto& c : cas)
        EXPECT_EQ(pour_cent(c.fait, c.total), c.attendu) << c.fait << "/" << c.total;
    EXPECT_EQ(barre_de_progres("Match", 0), "Match [.........................]   0 %");
    EXPECT_EQ(barre_de_progres("Match", 99), "Match [########################.]  99 %");
    EXPECT_EQ(barre_de_progres("Match", 100), "Match [#########################] 100 %");
}

} // namespace
