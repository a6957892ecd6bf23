// Counts the live heap objects of given polymorphic classes, and lets an allocation fail on demand.
// A program that links LiveObjects.cpp allocates through it.
#pragma once

#include <cstddef>
#include <cstring>
#include <map>
#include <string>

namespace zortest {

// Class name to the number of live heap objects of that class; classes without one are left out.
using Census = std::map<std::string, int>;

class LiveObjects {
 public:
  // The classes to count, each known by the address of its virtual table, which is an object's
  // first word.
  template <class T>
  void know(const std::string& name, const T& sample) {
    const void* table = nullptr;
    std::memcpy(&table, static_cast<const void*>(&sample), sizeof(table));
    names_[table] = name;
  }

  // Of the blocks that came since the mark, or of all.
  Census census(const void* mark = nullptr) const;

  // A place in the order of allocations. It must still be allocated when it is used.
  static const void* mark() { return new char; }

  // Frees the memory of every block that came since the mark, and the mark; destroys nothing.
  static void freeSince(const void* mark);

  // Live heap blocks of any kind.
  static std::size_t blocks();

  // Makes the allocation after the next count ones throw std::bad_alloc, once; negative: none.
  static void failAfter(int count);

 private:
  std::map<const void*, std::string> names_;
};

}  // namespace zortest
