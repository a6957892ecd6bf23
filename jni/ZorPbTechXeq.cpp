#include "ZorPbTechXeq.h"

#include "ZorPbConvert.h"
#include "ZorPbFields.h"

using com::zor::tech::Xeq;
using zorpb::TechXeqFields;

ZorPbTechXeq::ZorPbTechXeq(const Xeq* msg) { init(msg); }

ZorPbTechXeq::ZorPbTechXeq(const _zorXeqApiCtrl& ctrl) { init(ctrl); }

ZorPbTechXeq::~ZorPbTechXeq() = default;

void ZorPbTechXeq::init(const Xeq* msg) { zorpb::holdCopy<TechXeqFields>(*msg, msg_); }

void ZorPbTechXeq::init(const _zorXeqApiCtrl& ctrl) { zorpb::holdBuilt<TechXeqFields>(ctrl, msg_); }

void ZorPbTechXeq::populateStruct(_zorXeqApiCtrl& ctrl) {
  zorpb::writeOut<TechXeqFields>(msg_, ctrl);
}
