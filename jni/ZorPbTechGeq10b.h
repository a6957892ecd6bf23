// Ten-band graphic equalizer controls, between com.zor.tech.Geq10b and _zorGeq10bApiCtrl.
#pragma once

#include "ZorEngineStructs.h"
#include "ZorPbBase.h"
#include "ZorcsExport.h"
#include "techGeq10b.pb.h"

class ZORCS_EXPORT ZorPbTechGeq10b : public ZorPbBase {
 public:
  explicit ZorPbTechGeq10b(const com::zor::tech::Geq10b* msg);
  explicit ZorPbTechGeq10b(const _zorGeq10bApiCtrl& ctrl);
  ~ZorPbTechGeq10b() override;

  void init(const com::zor::tech::Geq10b* msg);
  void init(const _zorGeq10bApiCtrl& ctrl);

  void populateStruct(_zorGeq10bApiCtrl& ctrl);
};
