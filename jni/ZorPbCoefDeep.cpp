#include "ZorPbCoefDeep.h"

#include <algorithm>
#include <cstddef>
#include <memory>

#include "ZorPbConvert.h"
#include "ZorPbFields.h"

using com::zor::coef::Deep;
using zorpb::CoefDeepFields;

namespace {

// 24 bytes are cleared, not the table's 24 entries: callers rely on the rest being left alone.
constexpr std::size_t kClearedBytes = 24;

}  // namespace

ZorPbCoefDeep::ZorPbCoefDeep(const Deep* msg) { init(msg); }

ZorPbCoefDeep::ZorPbCoefDeep(const _zorDeepApiCoeffEx& s) { init(s); }

ZorPbCoefDeep::~ZorPbCoefDeep() = default;

void ZorPbCoefDeep::init(const Deep* msg) { zorpb::holdCopy<CoefDeepFields>(*msg, msg_); }

void ZorPbCoefDeep::init(const _zorDeepApiCoeffEx& s) {
  auto fresh = std::make_unique<Deep>();
  CoefDeepFields::each(zorpb::reading(s, *fresh));
  // Only now: s.uuid may point into the message that goes, when this wrapper filled s.
  zorpb::discard(msg_);
  msg_ = fresh.release();
}

void ZorPbCoefDeep::populateStruct(_zorDeepApiCoeffEx& s) {
  const auto* msg = zorpb::heldAs<Deep>(msg_);
  if (msg == nullptr) return;
  std::fill_n(s.coeffs, kClearedBytes / sizeof(s.coeffs[0]), 0);
  CoefDeepFields::each(zorpb::writing(*msg, s));
}
