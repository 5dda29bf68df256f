#pragma once

#include "core/loaded_parts.h"

namespace ruvenmark {

struct MainWindow;

// Loads a part from the store or the program folder; from then on it is saved at stop. Raises Failure.
void LoadPart(MainWindow& main, Part part);

// Saves a part, if it was ever loaded. False where it could not be saved, which the operator is told; nothing else
// suffers from that.
bool SavePart(MainWindow& main, Part part);

} // namespace ruvenmark
