#pragma once

#include "bench/Measurements.hpp"

#include <string>

/// What is expected of a table.
struct TableWish {
    bool IsWhole =
        true; ///< a row whose measurement is missing has missed its target; otherwise it is left out
    bool HasOpenGl = true; ///< without it the rows of OpenGL are left out
};

/// A table in Markdown, and whether all its targets were kept.
struct Table {
    std::string Text;
    bool IsKept = true;
};

Table TableOf(const Measurements &Results, TableWish Wish);
