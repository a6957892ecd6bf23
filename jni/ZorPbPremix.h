#pragma once

#include "ZorEngineStructs.h"
#include "ZorPbBase.h"
#include "ZorcsExport.h"
#include "onyx.pb.h"

class ZorPbFaderInfo;
class ZorPbTechContour2;
class ZorPbTechLeveler;

/// The pre-mix stage, between com.zor.onyx.fxp_std.Premix and _zorOnyxPremixApiCtrlEx: two
/// scalars of its own, and children for the volume leveler, the loudness enhancement and the fader.
class ZORCS_EXPORT ZorPbPremix : public ZorPbBase {
 public:
  /// Loads msg as init does.
  explicit ZorPbPremix(const com::zor::onyx::fxp_std::Premix* msg);
  /// Loads s as init does.
  explicit ZorPbPremix(const _zorOnyxPremixApiCtrlEx& s);
  /// Deletes the held message, nested messages included, and none of the children: they stay
  /// behind.
  ~ZorPbPremix() override;

  /// Loads a copy of msg. \copydetails load_message
  ///
  /// Makes a child for each of leveler, contour2 and fader_info that msg has; for one that it lacks
  /// the child of an earlier load stays. The held message has no nested messages.
  void init(const com::zor::onyx::fxp_std::Premix* msg);
  /// Builds a message from s. \copydetails load_struct
  ///
  /// Makes all three children. The held message's nested messages are the children's own: the very
  /// same objects.
  void init(const _zorOnyxPremixApiCtrlEx& s);

  /// Writes the held message into s. \copydetails write_struct
  ///
  /// A block without a child leaves its nested struct as the caller had it. Without a held Premix
  /// one line goes to the standard error stream.
  void populateStruct(_zorOnyxPremixApiCtrlEx& s);

 protected:
  /// A child; null where none has been made.
  /// @{
  ZorPbTechLeveler* leveler_ = nullptr;
  ZorPbTechContour2* contour2_ = nullptr;
  ZorPbFaderInfo* faderInfo_ = nullptr;
  /// @}
};
