#include "base/systeme.h"
#include "cli/ligne_de_commande.h"

int main(int argc, char** argv) {
    systeme::preparer_le_processus();
    return executer_ligne_de_commande(argc, argv);
}
