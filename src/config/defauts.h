#pragma once

#include "config/reglages.h"

#include <string>
#include <string_view>

// The content of the files that a first start creates and of the settings, ready to be written.

std::string general_par_defaut();
/// The general settings as the options window writes them back.
std::string general_en_texte(std::string_view projet, const ReglagesGeneraux& reglages);
/// A table of 200 x 320 cm, ruled every 40 cm.
std::string table_par_defaut();
/// @param n  robot, 1..9: only the title differs
std::string robot_par_defaut(std::string_view projet, int n);
/// Robots start 30 cm apart, 5 s after one another, and end in the same serpentine. @param n  1..9
std::string trajet_par_defaut(std::string_view projet, int n);

/// Readme.txt: what the files of the application directory are and how they are written.
std::string texte_de_la_notice();
