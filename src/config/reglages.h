#pragma once

#include <string>

/// The options window's values, as the general settings file keeps them.
struct ReglagesGeneraux {
    bool rapide = true;       ///< Check1
    bool allege = false;      ///< Check2
    std::string nb_robot;     ///< caption of NbRO
    bool horizontale = false; ///< Check3
};
