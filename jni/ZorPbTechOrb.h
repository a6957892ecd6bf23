// Headphone virtualizer controls, between com.zor.tech.Orb and _zorOrbApiCtrl. The limiter is not
// carried, in either direction.
#pragma once

#include "ZorEngineStructs.h"
#include "ZorPbBase.h"
#include "ZorcsExport.h"
#include "techOrb.pb.h"

class ZORCS_EXPORT ZorPbTechOrb : public ZorPbBase {
 public:
  explicit ZorPbTechOrb(const com::zor::tech::Orb* msg);
  explicit ZorPbTechOrb(const _zorOrbApiCtrl& ctrl);
  ~ZorPbTechOrb() override;

  // Takes every value of super_stereo_coef, however many. Null changes nothing, here alone.
  void init(const com::zor::tech::Orb* msg);
  // The built message holds exactly four values in super_stereo_coef.
  void init(const _zorOrbApiCtrl& ctrl);

  // Writes at most four values of super_stereo_coef; entries past the list keep what the caller
  // left there.
  void populateStruct(_zorOrbApiCtrl& ctrl);
};
