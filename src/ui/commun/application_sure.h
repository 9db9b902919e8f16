#pragma once

#include <QApplication>
#include <QPointer>
#include <QWidget>

#include <deque>
#include <map>
#include <string>
#include <utility>

/// The application object of the windows. No exception leaves the handler of an event, whatever
/// window or control it belongs to: the handler stops there, the event counts as dealt with, and a
/// message box says what happened once the event is over. A window that asks to be closed stays.
class ApplicationSure final : public QApplication {
public:
    using QApplication::QApplication;

    bool notify(QObject* objet, QEvent* evenement) override;

private:
    using Origine = std::pair<const QObject*, QEvent::Type>;
    struct Panne {
        std::string texte;
        QPointer<QWidget> fenetre; ///< where it happened
    };
    struct Dite {
        QPointer<QObject> objet; ///< none: another one may have taken its address
        std::string texte;
    };

    void retenir(QObject& objet, QEvent& evenement, const char* raison);
    bool est_nouvelle(QObject& objet, QEvent::Type sorte, const std::string& texte);
    void montrer();

    std::deque<Panne> a_montrer_; ///< the first one's box may be open
    bool ouverte_ = false;
    /// What comes by itself (a painting, a repeating timer) and failed last time.
    std::map<Origine, Dite> dites_;
};
