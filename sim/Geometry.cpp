#include "sim/Geometry.hpp"

#include <algorithm>

namespace {

float SquaredDistance(float X1, float Y1, float X2, float Y2) {
    const float dx = X1 - X2;
    const float dy = Y1 - Y2;
    return dx * dx + dy * dy;
}

/// Not std::clamp: a damaged record may have a negative size, for which that is undefined.
float ClampTo(float Value, float Low, float High) {
    return std::min(std::max(Value, Low), High);
}

} // namespace

bool CirclesTouch(float X1, float Y1, float Radius1, float X2, float Y2, float Radius2) {
    const float reach = Radius1 + Radius2;
    return reach * reach >= SquaredDistance(X1, Y1, X2, Y2);
}

bool CircleHitsRect(float X, float Y, float Radius, float RectX, float RectY, float Width, float Height) {
    const float nearestX = ClampTo(X, RectX - Width / 2.0F, RectX + Width / 2.0F);
    const float nearestY = ClampTo(Y, RectY - Height / 2.0F, RectY + Height / 2.0F);
    return SquaredDistance(X, Y, nearestX, nearestY) <= Radius * Radius;
}
