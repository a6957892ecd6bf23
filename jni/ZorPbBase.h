#pragma once

#include <google/protobuf/message_lite.h>

#include "ZorcsExport.h"

/// \defgroup load_message Loading from a message
/// What the constructors and init do that take a message.
///
/// msg stays the caller's, is read during the call only, and must not be null. Every scalar that
/// the wrapper converts is present in the held message afterwards, one that msg lacks with its
/// default. A list longer than its array is cut, silently, unless the class says otherwise. What an
/// earlier load made is not released: a parent, or a caller who took msg_, may still refer to it.
/// Throws nothing but std::bad_alloc; the wrapper may then be loaded again or destroyed.

/// \defgroup load_struct Loading from a struct
/// What the constructors and init do that take a struct.
///
/// The struct stays the caller's and is read during the call only; any values are good ones. Every
/// field that the wrapper converts is present in the held message afterwards, a list with as many
/// elements as its array has. What an earlier load made is released. Throws nothing but
/// std::bad_alloc; the wrapper may then be loaded again or destroyed.

/// \defgroup write_struct Writing a struct
/// What populateStruct does.
///
/// The struct stays the caller's. A 16-bit member takes the low 16 bits of a wider value, an array
/// as many elements as it has, both silently. Array entries past the end of a list, the structs of
/// blocks that the message lacks, and padding keep what the caller left there. Without a held
/// message nothing is written. Throws nothing.

/// \defgroup print_message Printing a message
/// What dumpRef does.
///
/// One line a field, absent fields with their defaults. Any message will do: what a wrapper holds
/// plays no part. Throws what os throws.

/// The common base of the wrappers: owner of one message.
///
/// A wrapper holds one message of its own type. It is loaded from a message or from an engine
/// struct, and writes what it holds into a caller's struct:
///
///     W(const M* msg), init(const M* msg)    load a private copy of msg
///     W(const S& s), init(const S& s)        build a message from s
///     populateStruct(S& s)                   write the held message into s
///     dumpRef(const M& msg, std::ostream&)   print msg; some wrappers only
///
/// What all of them have in common stands once, in the four groups \ref load_message,
/// \ref load_struct, \ref write_struct and \ref print_message; each class adds what it does
/// otherwise. Values are reduced and lists are cut in silence: ZorPbCheck tells beforehand.
///
/// A wrapper is used by one thread at a time.
class ZORCS_EXPORT ZorPbBase {
 public:
  ZorPbBase(const ZorPbBase&) = delete;
  ZorPbBase& operator=(const ZorPbBase&) = delete;

  /// Deletes the held message.
  virtual ~ZorPbBase();

  /// The held message, owned; null until a load has run. Callers may read and serialise it, and
  /// must not delete or replace it.
  google::protobuf::MessageLite* msg_ = nullptr;

 protected:
  ZorPbBase() = default;
};
