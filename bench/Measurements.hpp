#pragma once

#include <map>
#include <string>

/// Something measured. Where it was measured many times, the value is the median and the quartiles stand
/// beside it; otherwise both are 0.
struct Measurement {
    double Value = 0.0;
    std::string Unit;
    double LowerQuartile = 0.0;
    double UpperQuartile = 0.0;
};

/// All that was measured, by its name: "Draw/Hud/Software", "FirstStart/OpenGl/Bare", "StepOnFullRoad". A
/// part of it is the name of a DrawingWay where there is one for each way: what has "/OpenGl" in it is left
/// out of the table where there is no OpenGL.
using Measurements = std::map<std::string, Measurement>;
