#include "ZorPbTechImm3d.h"

#include "ZorPbConvert.h"
#include "ZorPbDump.h"
#include "ZorPbFields.h"

using com::zor::tech::Imm3d;
using zorpb::TechImm3dFields;

ZorPbTechImm3d::ZorPbTechImm3d(const Imm3d* msg) { init(msg); }

ZorPbTechImm3d::ZorPbTechImm3d(const _zorImm3dApiCtrl& ctrl) { init(ctrl); }

ZorPbTechImm3d::~ZorPbTechImm3d() = default;

void ZorPbTechImm3d::init(const Imm3d* msg) { zorpb::holdCopy<TechImm3dFields>(*msg, msg_); }

void ZorPbTechImm3d::init(const _zorImm3dApiCtrl& ctrl) {
  zorpb::holdBuilt<TechImm3dFields>(ctrl, msg_);
}

void ZorPbTechImm3d::populateStruct(_zorImm3dApiCtrl& ctrl) {
  zorpb::writeOut<TechImm3dFields>(msg_, ctrl);
}

void ZorPbTechImm3d::dumpRef(const Imm3d& msg, std::ostream& os) {
  zorpb::dumpScalars<TechImm3dFields>(msg, "imm3dRef", os);
}
