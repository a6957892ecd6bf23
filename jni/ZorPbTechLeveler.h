// Volume leveler controls, between com.zor.tech.Leveler and _zorLevelerApiCtrl.
#pragma once

#include "ZorEngineStructs.h"
#include "ZorPbBase.h"
#include "ZorcsExport.h"
#include "techLeveler.pb.h"

class ZORCS_EXPORT ZorPbTechLeveler : public ZorPbBase {
 public:
  explicit ZorPbTechLeveler(const com::zor::tech::Leveler* msg);
  explicit ZorPbTechLeveler(const _zorLevelerApiCtrl& ctrl);
  ~ZorPbTechLeveler() override;

  void init(const com::zor::tech::Leveler* msg);
  void init(const _zorLevelerApiCtrl& ctrl);

  void populateStruct(_zorLevelerApiCtrl& ctrl);
};
