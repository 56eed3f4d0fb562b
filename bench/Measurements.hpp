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

/// All that was measured, by its name.
using Measurements = std::map<std::string, Measurement>;
