#include "ZorPbFaderInfo.h"

#include "ZorPbConvert.h"
#include "ZorPbFields.h"

using com::zor::onyx::fxp_std::FaderInfo;
using zorpb::FaderInfoFields;

ZorPbFaderInfo::ZorPbFaderInfo(const FaderInfo* msg) { init(msg); }

ZorPbFaderInfo::ZorPbFaderInfo(const _zorOnyxFaderInfo& s) { init(s); }

ZorPbFaderInfo::~ZorPbFaderInfo() = default;

void ZorPbFaderInfo::init(const FaderInfo* msg) { zorpb::holdCopy<FaderInfoFields>(*msg, msg_); }

void ZorPbFaderInfo::init(const _zorOnyxFaderInfo& s) {
  zorpb::holdBuilt<FaderInfoFields>(s, msg_);
}

void ZorPbFaderInfo::populateStruct(_zorOnyxFaderInfo& s) {
  zorpb::writeOut<FaderInfoFields>(msg_, s);
}
