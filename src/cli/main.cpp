#include "cli/ligne_de_commande.h"

int main(int argc, char** argv) {
    return executer_ligne_de_commande(argc, argv);
}
