// The smallest program with a window and a text: what the start of tavolmex is measured against.
#include <QApplication>
#include <QLabel>
#include <QPaintEvent>
#include <QTimer>

#include <cstdlib>

namespace {

class Fenetre final : public QLabel {
public:
    using QLabel::QLabel;

protected:
    void paintEvent(QPaintEvent* evenement) override {
        QLabel::paintEvent(evenement);
        QTimer::singleShot(0, this, [] { std::_Exit(0); });
    }
};

} // namespace

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    Fenetre fenetre("Bonjour");
    fenetre.resize(400, 680);
    fenetre.show();
    return QApplication::exec();
}
