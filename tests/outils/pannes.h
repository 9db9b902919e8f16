#pragma once

#include <fcntl.h>
#include <sys/ptrace.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdint>

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

/// In a child: its system calls are counted from here on.
inline void compter_d_ici() {
    if (::ptrace(PTRACE_TRACEME, 0, nullptr, nullptr) != 0)
        ::_exit(1);
    ::raise(SIGSTOP);
}

/// Runs `action`, which calls compter_d_ici(), in a child that is killed at its `arret`-th stop
/// that counts: before and after each system call it is asked about. @returns how many there were
template <typename Compte, typename Action>
int appels_avant_la_mort(int arret, Compte compte, Action action) {
    const pid_t enfant = ::fork();
    if (enfant == 0) {
        action();
        ::_exit(0);
    }
    int etat = 0;
    ::waitpid(enfant, &etat, 0);
    ::ptrace(PTRACE_SETOPTIONS, enfant, nullptr, PTRACE_O_TRACESYSGOOD);
    int appels = 0;
    while (WIFSTOPPED(etat) && appels < arret) {
        ::ptrace(PTRACE_SYSCALL, enfant, nullptr, nullptr);
        ::waitpid(enfant, &etat, 0);
        appels += WIFSTOPPED(etat) && compte(enfant) ? 1 : 0;
    }
    if (WIFSTOPPED(etat)) {
        ::kill(enfant, SIGKILL);
        ::waitpid(enfant, &etat, 0);
    }
    return appels;
}

/// Is the child about to change a file, or to have one changed on the disk?
inline bool change_un_fichier(pid_t enfant) {
    __ptrace_syscall_info appel{};
    ::ptrace(PTRACE_GET_SYSCALL_INFO, enfant, sizeof appel, &appel);
    if (appel.op != PTRACE_SYSCALL_INFO_ENTRY)
        return false;
    switch (appel.entry.nr) {
    case SYS_openat:
        return (appel.entry.args[2] & O_CREAT) != 0;
    case SYS_write:
        return appel.entry.args[2] > sizeof(std::uint64_t); // not only a thread that is woken
    case SYS_fsync:
    case SYS_fchmod:
    case SYS_rename:
    case SYS_unlink:
    case SYS_mkdir:
        return true;
    default:
        return false;
    }
}

/// Runs `action` in a child that is killed at its `arret`-th system call. @returns how many it made
template <typename Action>
int pas_avant_la_mort(int arret, Action action) {
    const auto tous = [](pid_t) { return true; };
    return appels_avant_la_mort(arret, tous, [&] {
        compter_d_ici();
        action();
    });
}

/// The same. @returns true when it ended by itself before
template <typename Action>
bool tuer_au_pas(int arret, Action action) {
    return pas_avant_la_mort(arret, action) < arret;
}
