#pragma once

#include <cstddef>
#include <span>
#include <vector>

// Plane geometry of outlines: loose segments, in cm.

struct Point {
    double x = 0;
    double y = 0;
};

struct Segment {
    Point a, b;
};

/// Outlines nearer than this (cm) touch. Placing an outline shifts its points by less than a tenth
/// of it.
inline constexpr double tolerance_contact = 0.001;

/// Segments of an outline at most.
inline constexpr std::size_t segments_max = 51;

double distance(Point p, const Segment& s);
/// 0 when they cross or touch.
double distance(const Segment& s, const Segment& t);

/// A block, filled: a box, or a disc when `rayon` is not negative (its centre is both corners).
struct Obstacle {
    Point bas, haut; ///< bas.x <= haut.x, bas.y <= haut.y
    double rayon = -1;
};
double distance(const Segment& s, const Obstacle& o);

/// The smallest distance between two outlines; a result known to be `plafond` or more is not worked
/// out. Both are seen as curves: 0 only where they meet.
double ecart(std::span<const Segment> a, std::span<const Segment> b, double plafond);
double ecart(std::span<const Segment> a, const Obstacle& o);

/// What an outline cuts off from the outside, as a region that moves with it: loose ends enclose
/// nothing, ends that miss each other by less than `jonction` (cm) are joined.
class Enceinte {
public:
    explicit Enceinte(std::span<const Segment> contour, double jonction = tolerance_contact);

    /// Whether no way leads from the point to the outside without meeting the outline.
    bool enferme(Point p) const;

    /// The outer boundary of each connected piece, walked around once anticlockwise; ways walked
    /// twice (loose ends, bridges) cancel out.
    const std::vector<std::vector<Point>>& bords() const { return bords_; }

private:
    std::vector<std::vector<Point>> bords_;
};
