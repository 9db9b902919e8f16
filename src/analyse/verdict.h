#pragma once

#include "analyse/analyse.h"
#include "analyse/phrases.h"

/// One line: end of the last action and margin, arrival of a robot, number of findings.
std::string verdict(const Analyse& a, int robot = 1);
/// When the last plan ends, of the robots that have one; nothing when one of them does not end.
std::optional<std::int32_t> fin_des_plans(const Analyse& a);
/// Why there is no such end: "robot 2 pas fini à 90 s", "aucune action".
std::string sans_fin(const Analyse& a);
/// "dernière action finie à 42,18 s, marge 47,82 s", or why there is no such end.
std::string fin_des_trajets(const Analyse& a);
/// One finding in one line: instant, robot, place, file and line, what it means and what to do.
std::string en_ligne(const Constat& constat);
/// "Robots 1 et 2 : au plus près 12,3 cm à 45,60 s."
std::string en_ligne(const EcartDeRobots& ecart);
/// The whole analysis as one JSON object.
std::string en_json(const Analyse& a);
