#pragma once

/// From now on assistive tools read every timeline, and move its cursor, as a slider in seconds.
void rendre_la_frise_accessible();
