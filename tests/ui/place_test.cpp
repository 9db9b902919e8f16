#include "ui/place.h"

#include "ui/banc.h"

namespace {

struct Fenetre : QWidget {
    Fenetre() {
        setObjectName("Essai");
        resize(300, 200);
        retenir_place(*this);
    }
};

TEST(Place, la_place_choisie_revient_celle_du_programme_non) {
    {
        Fenetre f;
        proposer_place(f, {100, 80});
        f.show();
        EXPECT_EQ(f.pos(), QPoint(100, 80));
    }
    {
        Fenetre f; // left where the program had put it: the program puts it anew
        proposer_place(f, {200, 90});
        f.show();
        EXPECT_EQ(f.pos(), QPoint(200, 90));
        f.move(310, 150);
        proposer_place(f, {10, 10}); // the user has moved it
        EXPECT_EQ(f.pos(), QPoint(310, 150));
        f.resize(350, 250);
        f.hide();
        proposer_place(f, {10, 10}); // nor when it is shown again
        EXPECT_EQ(f.pos(), QPoint(310, 150));
    }
    Fenetre f;
    proposer_place(f, {100, 80});
    f.show();
    EXPECT_EQ(f.pos(), QPoint(310, 150));
    EXPECT_EQ(f.size(), QSize(350, 250));
}

TEST(Place, revient_sur_un_ecran_qui_existe) {
    {
        Fenetre f;
        f.show();
        f.move(90000, 90000);
    }
    Fenetre f;
    f.show();
    EXPECT_TRUE(f.screen()->geometry().intersects(f.frameGeometry()));
}

} // namespace
