#pragma once

// Contact tests in logical pixels. A touch counts as a hit.

bool CirclesTouch(float X1, float Y1, float Radius1, float X2, float Y2, float Radius2);

/// The rectangle is given by its centre and its full size.
bool CircleHitsRect(float X, float Y, float Radius, float RectX, float RectY, float Width, float Height);
