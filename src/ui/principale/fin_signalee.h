#pragma once

#include "base/systeme.h"

#include <QSocketNotifier>

#include <functional>
#include <memory>

/// SIGTERM, SIGHUP and SIGINT as an event of the loop: the session ends, a terminal closes, Ctrl+C.
/// To be made before the application object: its threads inherit what they do not take.
class FinSignalee {
public:
    /// From the event loop's start on. @param au_signal  what to do when one has come
    void brancher(std::function<void(int signal)> au_signal);

private:
    systeme::SignauxDeFin signaux_;
    std::unique_ptr<QSocketNotifier> annonce_;
};
