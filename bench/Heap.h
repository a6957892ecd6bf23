// Counts what a program allocates. Brings an operator new of its own.
#pragma once

#include <functional>

#include "Table.h"

namespace zorbench {

// What body allocates when it runs a second time. Not for several threads.
Table::Heap heapOf(const std::function<void()>& body);

}  // namespace zorbench
