// The pre-mix stage, between com.zor.onyx.fxp_std.Premix and _zorOnyxPremixApiCtrlEx: its own
// controls and children for the volume leveler, the loudness enhancement and the fader.
#pragma once

#include "ZorEngineStructs.h"
#include "ZorPbBase.h"
#include "ZorcsExport.h"
#include "onyx.pb.h"

class ZorPbFaderInfo;
class ZorPbTechContour2;
class ZorPbTechLeveler;

class ZORCS_EXPORT ZorPbPremix : public ZorPbBase {
 public:
  explicit ZorPbPremix(const com::zor::onyx::fxp_std::Premix* msg);
  explicit ZorPbPremix(const _zorOnyxPremixApiCtrlEx& s);
  // Deletes the held message, nested messages included, and none of the children: they stay behind.
  ~ZorPbPremix() override;

  // Makes a child for each of leveler, contour2 and fader_info that msg has; for one that it lacks
  // the child of an earlier load stays. The held message has no nested messages. Children of an
  // earlier load are not released.
  void init(const com::zor::onyx::fxp_std::Premix* msg);
  // Makes all three children, releasing those of an earlier load. The held message's nested
  // messages are the children's own: the very same objects.
  void init(const _zorOnyxPremixApiCtrlEx& s);

  // A block without a child leaves its nested struct as the caller had it. Without a held Premix it
  // writes nothing to s and one line to the standard error stream.
  void populateStruct(_zorOnyxPremixApiCtrlEx& s);

 protected:
  // The children; null where none has been made.
  ZorPbTechLeveler* leveler_ = nullptr;
  ZorPbTechContour2* contour2_ = nullptr;
  ZorPbFaderInfo* faderInfo_ = nullptr;
};
