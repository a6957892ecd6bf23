#include "ZorPbCoefHpf.h"

#include <memory>

#include "ZorPbConvert.h"
#include "ZorPbFields.h"

using com::zor::coef::Hpf;
using zorpb::CoefHpfFields;

ZorPbCoefHpf::ZorPbCoefHpf(const Hpf* msg) { init(msg); }

ZorPbCoefHpf::~ZorPbCoefHpf() { delete hpfMsg_; }

void ZorPbCoefHpf::init(const Hpf* msg) {
  auto fresh = std::make_unique<Hpf>();
  CoefHpfFields::each(zorpb::loading(*msg, *fresh));
  // The message held before stays behind, as after any load from a message.
  hpfMsg_ = fresh.release();
}

void ZorPbCoefHpf::populateStruct(_zorOnyxHpfApiCoeff& s) {
  if (hpfMsg_ != nullptr) CoefHpfFields::each(zorpb::writing(*hpfMsg_, s));
}
