/// \file
/// What a conversion from message to engine struct would lose or endanger, told before it happens.
///
/// The conversion itself is silent: it cuts, wraps, drops and, in one place, writes past a table. A
/// caller that must not trust a configuration asks here first:
///
///     if (!ZorPbCheck::isSafe(configuration)) return false;
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "ZorcsCheckExport.h"
#include "onyx.pb.h"

/// How bad a finding is, from worst to most harmless.
enum class ZorPbSeverity {
  kUnsafe,   ///< the conversion writes memory that is not its own
  kError,    ///< the message is not one that the conversion may be given
  kLossy,    ///< the engine gets another value, or not all of them
  kDropped,  ///< the engine gets nothing of it
  kPartial,  ///< the struct keeps what the caller had there
};

/// What a finding is about, each with its severity.
enum class ZorPbRule {
  kOverrun,          ///< unsafe: values past the table's end are written over what follows it
  kMissingRequired,  ///< error: a required field is unset
  kShortSource,      ///< error: a list that must be full is not
  kInt16Wrap,        ///< lossy: the value does not fit its 16-bit member
  kListCut,          ///< lossy: values past the capacity are cut
  kNotCarried,       ///< dropped: the field is set and never reaches the struct
  kListShort,        ///< partial: the array's end is not written
  kAbsentBlock,      ///< partial: the nested struct is not written
};

/// One thing that a conversion would lose or endanger. A value: it refers to no message.
struct ZORCS_CHECK_EXPORT ZorPbFinding {
  /// One field on the way down to the one concerned.
  struct Step {
    const char* name = nullptr;  ///< as in the schema; static storage; null past the way's end
    int index = -1;              ///< of the element of a repeated message field, or -1
  };
  static constexpr std::size_t kMaxSteps = 5;  ///< the longest way that the schema has

  /// The steps in one: "postmix.vantix.imm3d.input_gain", "postmix.vrm.rooms[2].uuid".
  std::string path() const;

  ZorPbRule rule = ZorPbRule::kOverrun;  ///< what is wrong
  std::array<Step, kMaxSteps> steps;     ///< the way from the stage
  /// The elements concerned, both inclusive; -1 where the finding is not about elements of a list.
  /// @{
  int firstIndex = -1;
  int lastIndex = -1;
  /// @}
  /// What the message holds and what the engine gets: for kInt16Wrap, and for a kNotCarried whose
  /// member the conversion writes all the same, the two values; for the rules about lists the
  /// number of values and the capacity; 0 otherwise.
  /// @{
  int64_t value = 0;
  int64_t engine = 0;
  /// @}
};

/// Tells what a conversion would lose or endanger. All operations are pure, and throw nothing but
/// std::bad_alloc.
class ZORCS_CHECK_EXPORT ZorPbCheck {
 public:
  /// Every finding, in the order of the schema's fields. Paths begin with "premix" or "postmix".
  /// Takes any message, an incomplete one too. Does not allocate where there is nothing to find.
  /// @{
  static std::vector<ZorPbFinding> findings(const com::zor::onyx::fxp_std::Onyx& msg);
  static std::vector<ZorPbFinding> findings(const com::zor::onyx::fxp_std::Premix& msg);
  static std::vector<ZorPbFinding> findings(const com::zor::onyx::fxp_std::Postmix& msg);
  /// @}

  /// Whether no finding is unsafe or an error. Never allocates.
  /// @{
  static bool isSafe(const com::zor::onyx::fxp_std::Onyx& msg);
  static bool isSafe(const com::zor::onyx::fxp_std::Premix& msg);
  static bool isSafe(const com::zor::onyx::fxp_std::Postmix& msg);
  /// @}

  /// The severity of every finding of a rule.
  static ZorPbSeverity severity(ZorPbRule rule);
  /// "lossy"; static storage.
  static const char* name(ZorPbSeverity severity);
  /// "int16-wrap"; stable, static storage.
  static const char* id(ZorPbRule rule);

  /// The finding for people, in one line: "postmix.vantix.imm3d.input_gain: lossy: 40000 does not
  /// fit 16 bits, the engine gets -25536 [int16-wrap]".
  static std::string text(const ZorPbFinding& finding);
};
