#pragma once

#include "ZorEngineStructs.h"
#include "ZorPbBase.h"
#include "ZorcsExport.h"
#include "techOrb.pb.h"

/// Headphone virtualizer controls, six scalars and four coefficients, between com.zor.tech.Orb and
/// _zorOrbApiCtrl. The limiter is not carried, in either direction.
class ZORCS_EXPORT ZorPbTechOrb : public ZorPbBase {
 public:
  /// Loads msg as init does.
  explicit ZorPbTechOrb(const com::zor::tech::Orb* msg);
  /// Loads ctrl as init does.
  explicit ZorPbTechOrb(const _zorOrbApiCtrl& ctrl);
  /// Deletes the held message.
  ~ZorPbTechOrb() override;

  /// Loads a copy of msg. \copydetails load_message
  ///
  /// super_stereo_coef is not cut: every value is taken, however many. A null msg changes nothing,
  /// here alone.
  void init(const com::zor::tech::Orb* msg);
  /// Builds a message from ctrl. \copydetails load_struct
  void init(const _zorOrbApiCtrl& ctrl);

  /// Writes the held message into ctrl. \copydetails write_struct
  void populateStruct(_zorOrbApiCtrl& ctrl);
};
