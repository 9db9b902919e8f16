#pragma once

#include "config/document_robot.h"

#include <string_view>

class QPainter;
class VueEchelle;

/// Shows on the robot's picture what one of its measures means: "A1", "A2", "A3", "V1", "V2", "E1",
/// "E2" or "E3"; nothing for another.
void peindre_cote(QPainter& peintre, const VueEchelle& vue, const DocumentRobot& robot,
                  std::string_view mesure);
