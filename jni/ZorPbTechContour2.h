#pragma once

#include "ZorEngineStructs.h"
#include "ZorPbBase.h"
#include "ZorcsExport.h"
#include "techContour2.pb.h"

/// Loudness and speaker enhancement controls, ten scalars and two lists of seven, between
/// com.zor.tech.Contour2 and _zorContour2ApiCtrl. The limiter is not carried, in either direction.
class ZORCS_EXPORT ZorPbTechContour2 : public ZorPbBase {
 public:
  /// Loads msg as init does.
  explicit ZorPbTechContour2(const com::zor::tech::Contour2* msg);
  /// Loads ctrl as init does.
  explicit ZorPbTechContour2(const _zorContour2ApiCtrl& ctrl);
  /// Deletes the held message.
  ~ZorPbTechContour2() override;

  /// Loads a copy of msg. \copydetails load_message
  ///
  /// A msg with fewer than seven values of htest or of ref_htest is a caller error, because the
  /// engine takes seven; those that are there are loaded.
  void init(const com::zor::tech::Contour2* msg);
  /// Builds a message from ctrl. \copydetails load_struct
  void init(const _zorContour2ApiCtrl& ctrl);

  /// Writes the held message into ctrl. \copydetails write_struct
  void populateStruct(_zorContour2ApiCtrl& ctrl);
};
