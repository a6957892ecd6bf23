#include "ZorPbTechOrb.h"

#include "ZorPbConvert.h"
#include "ZorPbFields.h"

using com::zor::tech::Orb;
using zorpb::TechOrbFields;

ZorPbTechOrb::ZorPbTechOrb(const Orb* msg) { init(msg); }

ZorPbTechOrb::ZorPbTechOrb(const _zorOrbApiCtrl& ctrl) { init(ctrl); }

ZorPbTechOrb::~ZorPbTechOrb() = default;

void ZorPbTechOrb::init(const Orb* msg) {
  if (msg != nullptr) zorpb::holdCopy<TechOrbFields>(*msg, msg_);
}

void ZorPbTechOrb::init(const _zorOrbApiCtrl& ctrl) { zorpb::holdBuilt<TechOrbFields>(ctrl, msg_); }

void ZorPbTechOrb::populateStruct(_zorOrbApiCtrl& ctrl) {
  zorpb::writeOut<TechOrbFields>(msg_, ctrl);
}
