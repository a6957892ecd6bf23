#include "ZorPbTechDeep.h"

#include "ZorPbConvert.h"
#include "ZorPbDump.h"
#include "ZorPbFields.h"

using com::zor::tech::Deep;
using zorpb::TechDeepFields;

ZorPbTechDeep::ZorPbTechDeep(const Deep* msg) { init(msg); }

ZorPbTechDeep::ZorPbTechDeep(const _zorDeepApiCtrl& ctrl) { init(ctrl); }

ZorPbTechDeep::~ZorPbTechDeep() = default;

void ZorPbTechDeep::init(const Deep* msg) { zorpb::holdCopy<TechDeepFields>(*msg, msg_); }

void ZorPbTechDeep::init(const _zorDeepApiCtrl& ctrl) {
  zorpb::holdBuilt<TechDeepFields>(ctrl, msg_);
}

void ZorPbTechDeep::populateStruct(_zorDeepApiCtrl& ctrl) {
  zorpb::writeOut<TechDeepFields>(msg_, ctrl);
}

void ZorPbTechDeep::dumpRef(const Deep& msg, std::ostream& os) {
  zorpb::dumpScalars<TechDeepFields>(msg, "deepRef", os);
}
