#pragma once

#include "sim/actions.h"

#include <QIcon>

/// The motion of an action as seen from above the robot: ahead is up, left is left.
QIcon icone_action(const actions::Action& action);
