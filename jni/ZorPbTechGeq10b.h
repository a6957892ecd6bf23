#pragma once

#include "ZorEngineStructs.h"
#include "ZorPbBase.h"
#include "ZorcsExport.h"
#include "techGeq10b.pb.h"

/// Ten-band graphic equalizer controls, twelve scalars, between com.zor.tech.Geq10b and
/// _zorGeq10bApiCtrl.
class ZORCS_EXPORT ZorPbTechGeq10b : public ZorPbBase {
 public:
  /// Loads msg as init does.
  explicit ZorPbTechGeq10b(const com::zor::tech::Geq10b* msg);
  /// Loads ctrl as init does.
  explicit ZorPbTechGeq10b(const _zorGeq10bApiCtrl& ctrl);
  /// Deletes the held message.
  ~ZorPbTechGeq10b() override;

  /// Loads a copy of msg. \copydetails load_message
  void init(const com::zor::tech::Geq10b* msg);
  /// Builds a message from ctrl. \copydetails load_struct
  void init(const _zorGeq10bApiCtrl& ctrl);

  /// Writes the held message into ctrl. \copydetails write_struct
  void populateStruct(_zorGeq10bApiCtrl& ctrl);
};
