#include "ui/principale/fin_signalee.h"

#include <utility>

void FinSignalee::brancher(std::function<void(int)> au_signal) {
    if (signaux_.descripteur() < 0)
        return;
    annonce_ = std::make_unique<QSocketNotifier>(signaux_.descripteur(), QSocketNotifier::Read);
    QObject::connect(annonce_.get(), &QSocketNotifier::activated, annonce_.get(),
                     [this, faire = std::move(au_signal)] {
                         if (const int signal = signaux_.lire(); signal != 0)
                             faire(signal);
                     });
}
