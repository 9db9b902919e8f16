#pragma once

/// Cosine and sine of a heading (degrees), reused as long as the heading's bits do not change: most
/// ticks of a straight move compute none.
struct Direction {
    float cap = 0;
    double c = 1;
    double s = 0;
    void viser(float nouveau_cap);
};
