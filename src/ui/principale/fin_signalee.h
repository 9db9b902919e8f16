#pragma once

#include <QSocketNotifier>

#include <csignal>
#include <functional>
#include <memory>

/// SIGTERM, SIGHUP and SIGINT as an event of the loop: the session ends, a terminal closes, Ctrl+C.
/// To be made before the application object: its threads inherit what they do not take.
class FinSignalee {
public:
    FinSignalee();
    FinSignalee(const FinSignalee&) = delete;
    FinSignalee& operator=(const FinSignalee&) = delete;
    ~FinSignalee();

    /// From the event loop's start on. @param au_signal  what to do when one has come
    void brancher(std::function<void(int signal)> au_signal);

    /// Ends the program at once as that signal does: nothing else of it runs.
    [[noreturn]] static void finir(int signal);

private:
    sigset_t avant_{};
    int numero_; ///< file descriptor
    std::unique_ptr<QSocketNotifier> annonce_;
};
