// The common base of the wrappers: owner of one message.
#pragma once

#include <google/protobuf/message_lite.h>

#include "ZorcsExport.h"

// A wrapper holds one message of its own type. It is loaded from a message or from an engine struct
// and writes what it holds into a caller's struct:
//
//   W(const M* msg), init(const M* msg)    load a private copy of msg, which stays the caller's
//   W(const S& s), init(const S& s)        build a message from s, which stays the caller's
//   populateStruct(S& s)                   write the held message into s
//   dumpRef(const M& msg, std::ostream&)   print msg; some wrappers only
//
// Loading from a message does not test msg (ZorPbTechOrb alone does) and does not release what an
// earlier load made; loading from a struct does release it. Every scalar that a wrapper converts
// reads as present afterwards. Lists longer than their array are cut, values wider than their
// member are reduced to its low bits, both silently: nothing reports an error and nothing throws
// but a failed allocation. Array entries past the end of a list, and blocks that the message lacks,
// keep what the caller left in the struct.
//
// A wrapper is used by one thread at a time.
class ZORCS_EXPORT ZorPbBase {
 public:
  ZorPbBase(const ZorPbBase&) = delete;
  ZorPbBase& operator=(const ZorPbBase&) = delete;

  // Deletes the held message.
  virtual ~ZorPbBase();

  // The held message, owned; null until a load has run. Callers may read and serialise it, and must
  // not delete or replace it.
  google::protobuf::MessageLite* msg_ = nullptr;

 protected:
  ZorPbBase() = default;
};
