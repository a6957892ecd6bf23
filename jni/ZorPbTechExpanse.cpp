#include "ZorPbTechExpanse.h"

#include "ZorPbConvert.h"
#include "ZorPbDump.h"
#include "ZorPbFields.h"

using com::zor::tech::Expanse;
using zorpb::TechExpanseFields;

ZorPbTechExpanse::ZorPbTechExpanse(const Expanse* msg) { init(msg); }

ZorPbTechExpanse::ZorPbTechExpanse(const _zorExpanseApiCtrl& ctrl) { init(ctrl); }

ZorPbTechExpanse::~ZorPbTechExpanse() = default;

void ZorPbTechExpanse::init(const Expanse* msg) { zorpb::holdCopy<TechExpanseFields>(*msg, msg_); }

void ZorPbTechExpanse::init(const _zorExpanseApiCtrl& ctrl) {
  zorpb::holdBuilt<TechExpanseFields>(ctrl, msg_);
}

void ZorPbTechExpanse::populateStruct(_zorExpanseApiCtrl& ctrl) {
  zorpb::writeOut<TechExpanseFields>(msg_, ctrl);
}

void ZorPbTechExpanse::dumpRef(const Expanse& msg, std::ostream& os) {
  zorpb::dumpScalars<TechExpanseFields>(msg, "expanseRef", os);
}
