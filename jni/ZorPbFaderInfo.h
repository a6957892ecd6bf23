// Fader settings, between com.zor.onyx.fxp_std.FaderInfo and _zorOnyxFaderInfo.
#pragma once

#include "ZorEngineStructs.h"
#include "ZorPbBase.h"
#include "ZorcsExport.h"
#include "onyx.pb.h"

class ZORCS_EXPORT ZorPbFaderInfo : public ZorPbBase {
 public:
  explicit ZorPbFaderInfo(const com::zor::onyx::fxp_std::FaderInfo* msg);
  explicit ZorPbFaderInfo(const _zorOnyxFaderInfo& s);
  ~ZorPbFaderInfo() override;

  void init(const com::zor::onyx::fxp_std::FaderInfo* msg);
  void init(const _zorOnyxFaderInfo& s);

  void populateStruct(_zorOnyxFaderInfo& s);
};
