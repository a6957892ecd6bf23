// Parametric equalizer controls, between com.zor.tech.Xeq and _zorXeqApiCtrl.
#pragma once

#include "ZorEngineStructs.h"
#include "ZorPbBase.h"
#include "ZorcsExport.h"
#include "techXeq.pb.h"

class ZORCS_EXPORT ZorPbTechXeq : public ZorPbBase {
 public:
  explicit ZorPbTechXeq(const com::zor::tech::Xeq* msg);
  explicit ZorPbTechXeq(const _zorXeqApiCtrl& ctrl);
  ~ZorPbTechXeq() override;

  void init(const com::zor::tech::Xeq* msg);
  void init(const _zorXeqApiCtrl& ctrl);

  void populateStruct(_zorXeqApiCtrl& ctrl);
};
