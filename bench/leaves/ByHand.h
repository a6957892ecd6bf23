// The leaves by hand as a class, compiled into a shared library of its own: what a wrapper would be
// without a base class, and without the test of what it holds.
#pragma once

#include <memory>

namespace zorbench {

template <class Message, class Struct>
class ByHand {
 public:
  explicit ByHand(const Message* msg);
  explicit ByHand(const Struct& s);
  ~ByHand();
  ByHand(const ByHand&) = delete;
  ByHand& operator=(const ByHand&) = delete;

  void populateStruct(Struct& s);

  std::unique_ptr<Message> msg_;
};

}  // namespace zorbench
