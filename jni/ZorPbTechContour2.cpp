#include "ZorPbTechContour2.h"

#include "ZorPbConvert.h"
#include "ZorPbFields.h"

using com::zor::tech::Contour2;
using zorpb::TechContour2Fields;

ZorPbTechContour2::ZorPbTechContour2(const Contour2* msg) { init(msg); }

ZorPbTechContour2::ZorPbTechContour2(const _zorContour2ApiCtrl& ctrl) { init(ctrl); }

ZorPbTechContour2::~ZorPbTechContour2() = default;

void ZorPbTechContour2::init(const Contour2* msg) {
  zorpb::holdCopy<TechContour2Fields>(*msg, msg_);
}

void ZorPbTechContour2::init(const _zorContour2ApiCtrl& ctrl) {
  zorpb::holdBuilt<TechContour2Fields>(ctrl, msg_);
}

void ZorPbTechContour2::populateStruct(_zorContour2ApiCtrl& ctrl) {
  zorpb::writeOut<TechContour2Fields>(msg_, ctrl);
}
