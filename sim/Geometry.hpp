#pragma once

#include <algorithm>

// Contact tests in logical pixels; a touch counts as a hit. They are by far the most frequent calls of a step
// and stand here so that they can be inlined.

/// Between two points, in square pixels.
inline float SquaredDistance(float X1, float Y1, float X2, float Y2) {
    const float dx = X1 - X2;
    const float dy = Y1 - Y2;
    return dx * dx + dy * dy;
}

/// Whether two circles, given by centre and radius, share a point.
inline bool CirclesTouch(float X1, float Y1, float Radius1, float X2, float Y2, float Radius2) {
    const float reach = Radius1 + Radius2;
    return reach * reach >= SquaredDistance(X1, Y1, X2, Y2);
}

/// Whether a circle and a rectangle share a point. The rectangle is given by its centre and its full size.
inline bool CircleHitsRect(
    float X, float Y, float Radius, float RectX, float RectY, float Width, float Height) {
    // Not std::clamp: a damaged record may have a negative size, for which that is undefined.
    const float nearestX = std::min(std::max(X, RectX - Width / 2.0F), RectX + Width / 2.0F);
    const float nearestY = std::min(std::max(Y, RectY - Height / 2.0F), RectY + Height / 2.0F);
    return SquaredDistance(X, Y, nearestX, nearestY) <= Radius * Radius;
}

/// Whether two things share a point. One with a Radius is a circle, one with a Width and a Height a
/// rectangle; two rectangles are never asked for.
template <typename Thing, typename Other> bool Touches(const Thing &A, const Other &B) {
    if constexpr (requires { A.Radius + B.Radius; }) {
        return CirclesTouch(A.X, A.Y, A.Radius, B.X, B.Y, B.Radius);
    } else if constexpr (requires { A.Radius; }) {
        return CircleHitsRect(A.X, A.Y, A.Radius, B.X, B.Y, B.Width, B.Height);
    } else {
        return CircleHitsRect(B.X, B.Y, B.Radius, A.X, A.Y, A.Width, A.Height);
    }
}
