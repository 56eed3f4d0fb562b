#pragma once

#include <string>

/// The page that tells the figures: the machine, the date and how it was measured, around a table in
/// Markdown. Load is how many programs wanted a processor before the measurement began.
std::string PageOf(const std::string &TableText, double Load, int Starts, int PlaySeconds);

/// How many programs wanted a processor in the last minute, on average; 0 if the system does not tell.
double LoadOfMachine();
