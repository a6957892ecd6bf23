#pragma once

#include "ZorEngineStructs.h"
#include "ZorPbBase.h"
#include "ZorcsExport.h"
#include "onyx.pb.h"

/// Fader settings, five scalars, between com.zor.onyx.fxp_std.FaderInfo and _zorOnyxFaderInfo.
class ZORCS_EXPORT ZorPbFaderInfo : public ZorPbBase {
 public:
  /// Loads msg as init does.
  explicit ZorPbFaderInfo(const com::zor::onyx::fxp_std::FaderInfo* msg);
  /// Loads s as init does.
  explicit ZorPbFaderInfo(const _zorOnyxFaderInfo& s);
  /// Deletes the held message.
  ~ZorPbFaderInfo() override;

  /// Loads a copy of msg. \copydetails load_message
  void init(const com::zor::onyx::fxp_std::FaderInfo* msg);
  /// Builds a message from s. \copydetails load_struct
  void init(const _zorOnyxFaderInfo& s);

  /// Writes the held message into s. \copydetails write_struct
  void populateStruct(_zorOnyxFaderInfo& s);
};
