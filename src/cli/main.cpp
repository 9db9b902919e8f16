#include "cli/flux.h"
#include "cli/ligne_de_commande.h"

#include <csignal>

int main(int argc, char** argv) {
    occuper_les_descripteurs();
    std::signal(SIGXFSZ, SIG_IGN); // a file that grows past its limit is an error, not the end
    return executer_ligne_de_commande(argc, argv);
}
