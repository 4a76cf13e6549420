#pragma once

#include "ui/main_window.h"

namespace mevracard {

/// Multiplies the place, size, font size and border width of the table's controls by `factor` and
/// shows most of them. Which: the lists in the source; the tutorial and the size panel keep their
/// size. Positions and font sizes are rounded to single precision, border widths to whole pixels,
/// half to even.
void rescaleTable(MainWindow& w, double factor);

/// The player moved the scroll bar to a new table size: rescales the table relative to the size
/// before.
void scrollTableSize(MainWindow& w, int tableSize);

/// A table size from the settings file: into the scroll bar and, once the table has
/// been scaled by a first deal, onto the table.
void takeTableSize(MainWindow& w, int tableSize);

}  // namespace mevracard
