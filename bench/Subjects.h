// What the program measures, one function a subject. Inputs, and what they refer to, must live
// until the table has run.
#pragma once

#include <vector>

#include "Inputs.h"
#include "Table.h"

namespace zorbench {

// The roads beside the floors, the parse and the peers.
void addRoads(const Input& input, Table& table);
// Each wrapper without children beside the same assignments by hand.
void addLeaves(Table& table);
// The cost of the tables by their fill.
void addGrowth(const std::vector<Input>& tables, Table& table);
// What each road allocates, counted by the program's own operator new.
void addHeap(const Input& input, Table& table);

}  // namespace zorbench
