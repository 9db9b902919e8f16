#include "cli/flux.h"
#include "cli/ligne_de_commande.h"

int main(int argc, char** argv) {
    occuper_les_descripteurs();
    return executer_ligne_de_commande(argc, argv);
}
