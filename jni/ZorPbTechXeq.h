#pragma once

#include "ZorEngineStructs.h"
#include "ZorPbBase.h"
#include "ZorcsExport.h"
#include "techXeq.pb.h"

/// Parametric equalizer controls, four scalars, between com.zor.tech.Xeq and _zorXeqApiCtrl.
class ZORCS_EXPORT ZorPbTechXeq : public ZorPbBase {
 public:
  /// Loads msg as init does.
  explicit ZorPbTechXeq(const com::zor::tech::Xeq* msg);
  /// Loads ctrl as init does.
  explicit ZorPbTechXeq(const _zorXeqApiCtrl& ctrl);
  /// Deletes the held message.
  ~ZorPbTechXeq() override;

  /// Loads a copy of msg. \copydetails load_message
  void init(const com::zor::tech::Xeq* msg);
  /// Builds a message from ctrl. \copydetails load_struct
  void init(const _zorXeqApiCtrl& ctrl);

  /// Writes the held message into ctrl. \copydetails write_struct
  void populateStruct(_zorXeqApiCtrl& ctrl);
};
