#pragma once

#include "tests/e2e/OpenedGame.hpp"

#include <string>

// The pages behind the rows of the options: what they show, and the ways over them.

enum class Page { Controls, Graphics, Audio };

// The page, in English, with that row selected, counted from 0.
Sight PageIs(Page Shown, int Row);

// The only bright row of a page, in any language.
Sight SelectedRowIs(int Row);

// A label or a value that stands in that row of a page, whether the row is selected or not.
Sight RowShows(int Row, const std::string &Text);

// From the options' main page, whichever row is selected there, to the page, on the row it was left on.
void OpenPage(OpenedGame &Game, Page Wanted);

// From the main menu without a run to the page.
void OpenPageFromMainMenu(OpenedGame &Game, Page Wanted);

// Goes up or down to that row of the page.
void GoToRow(OpenedGame &Game, Page Shown, int Row);

// Goes to that row and activates it.
void ActivateRow(OpenedGame &Game, Page Shown, int Row, const Sight &Shows);
