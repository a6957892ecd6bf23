#pragma once

#include "ZorEngineStructs.h"
#include "ZorPbBase.h"
#include "ZorcsExport.h"
#include "techLeveler.pb.h"

/// Volume leveler controls, six scalars, between com.zor.tech.Leveler and _zorLevelerApiCtrl.
class ZORCS_EXPORT ZorPbTechLeveler : public ZorPbBase {
 public:
  /// Loads msg as init does.
  explicit ZorPbTechLeveler(const com::zor::tech::Leveler* msg);
  /// Loads ctrl as init does.
  explicit ZorPbTechLeveler(const _zorLevelerApiCtrl& ctrl);
  /// Deletes the held message.
  ~ZorPbTechLeveler() override;

  /// Loads a copy of msg. \copydetails load_message
  void init(const com::zor::tech::Leveler* msg);
  /// Builds a message from ctrl. \copydetails load_struct
  void init(const _zorLevelerApiCtrl& ctrl);

  /// Writes the held message into ctrl. \copydetails write_struct
  void populateStruct(_zorLevelerApiCtrl& ctrl);
};
