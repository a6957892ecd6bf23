#include "ZorPbTechGeq10b.h"

#include "ZorPbConvert.h"
#include "ZorPbFields.h"

using com::zor::tech::Geq10b;
using zorpb::TechGeq10bFields;

ZorPbTechGeq10b::ZorPbTechGeq10b(const Geq10b* msg) { init(msg); }

ZorPbTechGeq10b::ZorPbTechGeq10b(const _zorGeq10bApiCtrl& ctrl) { init(ctrl); }

ZorPbTechGeq10b::~ZorPbTechGeq10b() = default;

void ZorPbTechGeq10b::init(const Geq10b* msg) { zorpb::holdCopy<TechGeq10bFields>(*msg, msg_); }

void ZorPbTechGeq10b::init(const _zorGeq10bApiCtrl& ctrl) {
  zorpb::holdBuilt<TechGeq10bFields>(ctrl, msg_);
}

void ZorPbTechGeq10b::populateStruct(_zorGeq10bApiCtrl& ctrl) {
  zorpb::writeOut<TechGeq10bFields>(msg_, ctrl);
}
