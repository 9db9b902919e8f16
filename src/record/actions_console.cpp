#include "record/actions_console.h"

#include <algorithm>

const ActionConsole* action_de_nom(std::string_view nom) {
    const auto* const trouvee =
        std::find_if(actions_console.begin(), actions_console.end(),
                     [nom](const ActionConsole& action) { return action.nom == nom; });
    return trouvee == actions_console.end() ? nullptr : trouvee;
}

const ActionConsole* action_du_trajet(const Nom10& nom) {
    const auto* const trouvee =
        std::find_if(actions_console.begin(), actions_console.end(),
                     [&nom](const ActionConsole& action) { return Nom10(action.nom) == nom; });
    return trouvee == actions_console.end() ? nullptr : trouvee;
}
