#pragma once

#include <sys/ptrace.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>

/// A full disk, as long as it lives: no file may grow beyond some bytes.
class DisquePlein {
public:
    explicit DisquePlein(rlim_t octets) {
        ::getrlimit(RLIMIT_FSIZE, &avant_);
        ancien_ = std::signal(SIGXFSZ, SIG_IGN);
        const rlimit limite{octets, avant_.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limite);
    }
    DisquePlein(const DisquePlein&) = delete;
    DisquePlein& operator=(const DisquePlein&) = delete;
    ~DisquePlein() {
        ::setrlimit(RLIMIT_FSIZE, &avant_);
        std::signal(SIGXFSZ, ancien_);
    }

private:
    rlimit avant_{};
    void (*ancien_)(int) = nullptr;
};

/// Runs `action` in a child that is killed at its `arret`-th system call. @returns how many it made
template <typename Action>
int pas_avant_la_mort(int arret, Action action) {
    const pid_t enfant = ::fork();
    if (enfant == 0) {
        if (::ptrace(PTRACE_TRACEME, 0, nullptr, nullptr) != 0)
            ::_exit(1);
        ::raise(SIGSTOP);
        action();
        ::_exit(0);
    }
    int etat = 0;
    ::waitpid(enfant, &etat, 0);
    int pas = 0;
    for (; WIFSTOPPED(etat) && pas < arret; ++pas) {
        ::ptrace(PTRACE_SYSCALL, enfant, nullptr, nullptr);
        ::waitpid(enfant, &etat, 0);
    }
    if (WIFSTOPPED(etat)) {
        ::kill(enfant, SIGKILL);
        ::waitpid(enfant, &etat, 0);
    }
    return pas;
}

/// The same. @returns true when it ended by itself before
template <typename Action>
bool tuer_au_pas(int arret, Action action) {
    return pas_avant_la_mort(arret, action) < arret;
}
