#pragma once

#include <string>
#include <vector>

// A panel of a plot: its lines, each with a value for each of the plot's times.
struct PlotPanel {
    std::string Title;
    std::vector<std::vector<double>> Lines;
};

// An SVG picture of panels one below the other, from 0 to the last of the times, which are seconds and
// ascend. A panel goes from 0 to its largest value, which stands behind its title.
std::string DrawPlot(const std::vector<double> &Times, const std::vector<PlotPanel> &Panels);
