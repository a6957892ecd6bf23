#include "ZorPbTechLeveler.h"

#include "ZorPbConvert.h"
#include "ZorPbFields.h"

using com::zor::tech::Leveler;
using zorpb::TechLevelerFields;

ZorPbTechLeveler::ZorPbTechLeveler(const Leveler* msg) { init(msg); }

ZorPbTechLeveler::ZorPbTechLeveler(const _zorLevelerApiCtrl& ctrl) { init(ctrl); }

ZorPbTechLeveler::~ZorPbTechLeveler() = default;

void ZorPbTechLeveler::init(const Leveler* msg) { zorpb::holdCopy<TechLevelerFields>(*msg, msg_); }

void ZorPbTechLeveler::init(const _zorLevelerApiCtrl& ctrl) {
  zorpb::holdBuilt<TechLevelerFields>(ctrl, msg_);
}

void ZorPbTechLeveler::populateStruct(_zorLevelerApiCtrl& ctrl) {
  zorpb::writeOut<TechLevelerFields>(msg_, ctrl);
}
