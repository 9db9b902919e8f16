#include "ui/principale/fin_signalee.h"

#include <sys/signalfd.h>
#include <unistd.h>

#include <cstdlib>
#include <utility>

namespace {

sigset_t signaux_de_fin() {
    sigset_t signaux;
    sigemptyset(&signaux);
    for (const int s : {SIGTERM, SIGHUP, SIGINT})
        sigaddset(&signaux, s);
    return signaux;
}

} // namespace

FinSignalee::FinSignalee() {
    const sigset_t signaux = signaux_de_fin();
    pthread_sigmask(SIG_BLOCK, &signaux, &avant_);
    numero_ = ::signalfd(-1, &signaux, SFD_CLOEXEC | SFD_NONBLOCK);
}

FinSignalee::~FinSignalee() {
    annonce_.reset();
    ::close(numero_);
    pthread_sigmask(SIG_SETMASK, &avant_, nullptr);
}

void FinSignalee::brancher(std::function<void(int)> au_signal) {
    annonce_ = std::make_unique<QSocketNotifier>(numero_, QSocketNotifier::Read);
    QObject::connect(annonce_.get(), &QSocketNotifier::activated, annonce_.get(),
                     [this, faire = std::move(au_signal)] {
                         signalfd_siginfo recu{};
                         if (::read(numero_, &recu, sizeof recu) == ssize_t(sizeof recu))
                             faire(static_cast<int>(recu.ssi_signo));
                     });
}

void FinSignalee::finir(int signal) {
    const sigset_t signaux = signaux_de_fin();
    std::signal(signal, SIG_DFL);
    std::raise(signal); // pending until it is let through
    pthread_sigmask(SIG_UNBLOCK, &signaux, nullptr);
    std::_Exit(EXIT_FAILURE);
}
