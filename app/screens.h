#pragma once
// Every screen of the program by name, with the function that makes it: the one place that knows
// them all.

#include "shell/navigator.h"

#include <vector>

namespace contarello {

std::vector<FormEntry> FormTable();

} // namespace contarello
