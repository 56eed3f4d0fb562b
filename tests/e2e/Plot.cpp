#include "tests/e2e/Plot.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <sstream>

namespace {

constexpr int Width = 800;
constexpr int Height = 100;
constexpr int Margin = 40; // around all panels, and above each for its title

constexpr std::array Colors{"#1f5fa8", "#c8442b"};

double Largest(const PlotPanel &Panel) {
    double largest = 0.0;
    for (const std::vector<double> &line : Panel.Lines) {
        for (const double value : line) {
            largest = std::max(largest, value);
        }
    }
    return largest;
}

// The place of a share, 0 to 1, on a length of pixels; 0 of nothing stays 0.
long PlaceOf(double Value, double Most, int Length) {
    return Most > 0.0 ? std::lround(Value / Most * Length) : 0;
}

double InTenths(double Value) {
    return std::round(Value * 10.0) / 10.0;
}

void DrawPanel(std::ostream &Out, const std::vector<double> &Times, const PlotPanel &Panel, int Top) {
    const double most = Largest(Panel);
    Out << "<text x=\"" << Margin << "\" y=\"" << Top - 6 << "\">" << Panel.Title << ", up to "
        << InTenths(most) << "</text>\n<rect x=\"" << Margin << "\" y=\"" << Top << "\" width=\"" << Width
        << "\" height=\"" << Height << "\" fill=\"none\" stroke=\"#999\"/>\n";
    for (std::size_t line = 0; line < Panel.Lines.size(); ++line) {
        Out << "<polyline fill=\"none\" stroke-width=\"2\" stroke=\"" << Colors.at(line % Colors.size())
            << "\" points=\"";
        for (std::size_t i = 0; i < Times.size(); ++i) {
            Out << Margin + PlaceOf(Times[i], Times.back(), Width) << ','
                << Top + Height - PlaceOf(Panel.Lines[line].at(i), most, Height) << ' ';
        }
        Out << "\"/>\n";
    }
}

} // namespace

std::string DrawPlot(const std::vector<double> &Times, const std::vector<PlotPanel> &Panels) {
    std::ostringstream out;
    const int bottom = static_cast<int>(Panels.size()) * (Margin + Height);
    out << "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" << Width + 2 * Margin << "\" height=\""
        << bottom + Margin << "\" font-family=\"sans-serif\" font-size=\"14\">\n"
        << "<rect width=\"100%\" height=\"100%\" fill=\"white\"/>\n";
    for (std::size_t i = 0; i < Panels.size(); ++i) {
        DrawPanel(out, Times, Panels[i], static_cast<int>(i) * (Margin + Height) + Margin);
    }
    out << "<text x=\"" << Margin << "\" y=\"" << bottom + 20 << "\">0 to "
        << InTenths(Times.empty() ? 0.0 : Times.back()) << " seconds</text>\n</svg>\n";
    return out.str();
}
