// What the start of tavolmex is measured against: two windows with as many plain controls, and no
// more.
#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTimer>
#include <QVBoxLayout>

#include <cstdlib>

namespace {

// Ends the program once both windows have been painted.
class Fenetre final : public QWidget {
public:
    Fenetre(int& peintes, QSize taille) : peintes_(peintes) { resize(taille); }

protected:
    void paintEvent(QPaintEvent*) override {
        if (++peintes_ == 2)
            QTimer::singleShot(0, this, [] { std::_Exit(0); });
    }

private:
    int& peintes_;
};

template <typename Controle>
void ajouter(QVBoxLayout& colonne, int nombre) {
    for (int i = 0; i < nombre; ++i)
        colonne.addWidget(new Controle("Bonjour"));
}

} // namespace

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    int peintes = 0;
    Fenetre principale(peintes, {400, 680});
    QVBoxLayout lignes(&principale);
    ajouter<QLabel>(lignes, 5);
    Fenetre options(peintes, {200, 480});
    QVBoxLayout colonne(&options);
    ajouter<QCheckBox>(colonne, 5);
    ajouter<QPushButton>(colonne, 7);
    ajouter<QLabel>(colonne, 3);
    ajouter<QLineEdit>(colonne, 1);
    colonne.addWidget(new QScrollBar);
    principale.show();
    options.show();
    return QApplication::exec();
}
