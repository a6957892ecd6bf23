// Loudness and speaker enhancement controls, between com.zor.tech.Contour2 and
// _zorContour2ApiCtrl. The limiter is not carried, in either direction.
#pragma once

#include "ZorEngineStructs.h"
#include "ZorPbBase.h"
#include "ZorcsExport.h"
#include "techContour2.pb.h"

class ZORCS_EXPORT ZorPbTechContour2 : public ZorPbBase {
 public:
  explicit ZorPbTechContour2(const com::zor::tech::Contour2* msg);
  explicit ZorPbTechContour2(const _zorContour2ApiCtrl& ctrl);
  ~ZorPbTechContour2() override;

  // Takes the first seven values of htest and of ref_htest. A source with fewer is a caller error,
  // because the engine takes seven; those that are there are loaded.
  void init(const com::zor::tech::Contour2* msg);
  // The built message holds exactly seven values in each of the two lists.
  void init(const _zorContour2ApiCtrl& ctrl);

  // Array entries past the held message's lists keep what the caller left there.
  void populateStruct(_zorContour2ApiCtrl& ctrl);
};
