#pragma once

#include "bench/Measurements.hpp"

#include <string>

/// What is expected of a table.
struct TableWish {
    /// A row whose measurement is missing has missed its target; otherwise it is left out.
    bool IsWhole = true;
    /// Without it the rows of OpenGL are left out.
    bool HasOpenGl = true;
};

/// A table in Markdown, and whether all its targets were kept.
struct Table {
    std::string Text;
    bool IsKept = true;
};

/// The rows of Targets.hpp, judged by what was measured.
Table TableOf(const Measurements &Results, TableWish Wish);
