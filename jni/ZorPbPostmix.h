// The post-mix stage, between com.zor.onyx.fxp_std.Postmix and _zorOnyxPostmixApiCtrlCoeffsEx: its
// own controls, the room tables and headphone-EQ coefficients, and up to eight children.
#pragma once

#include <iosfwd>

#include "ZorEngineStructs.h"
#include "ZorPbBase.h"
#include "ZorcsExport.h"
#include "onyx.pb.h"

class ZorPbCoefHpf;
class ZorPbCoefXeq;
class ZorPbFaderInfo;
class ZorPbTechContour2;
class ZorPbTechGeq10b;
class ZorPbTechOrb;
class ZorPbTechVantix;
class ZorPbTechXeq;

// Never carried, in either direction: deep_coef, vantix_xover_coef, vrm. The fader state travels
// from struct to message only, the high-pass coefficients from message to struct only.
class ZORCS_EXPORT ZorPbPostmix : public ZorPbBase {
 public:
  explicit ZorPbPostmix(const com::zor::onyx::fxp_std::Postmix* msg);
  explicit ZorPbPostmix(const _zorOnyxPostmixApiCtrlCoeffsEx& s);
  // Deletes the children but the fader's, and the held message. After a load from a struct the
  // fader's message goes with the held one and its wrapper stays behind.
  ~ZorPbPostmix() override;

  // Takes at most 6 values of orb_input_gain, bypass_hpeq and xeq_enable, 8210 of room_multi_ch,
  // 3085 of room_stereo_front and room_stereo_wide, 135 of hpeq_coeffs. Makes a child for each of
  // vantix, geq10b, xeq, contour2, orb, xeq_coef and hpf_coef that msg has; for one that it lacks
  // the child of an earlier load stays. The held message has no nested messages. What an earlier
  // load made is not released.
  void init(const com::zor::onyx::fxp_std::Postmix* msg);
  // Builds lists of full length. Makes the children of vantix, geq10b, xeq, contour2, orb, xeq_coef
  // and fader_info, releasing those of an earlier load; the high-pass child stays as it was. The
  // held message's nested messages are the children's own: the very same objects.
  void init(const _zorOnyxPostmixApiCtrlCoeffsEx& s);

  // Array entries past a list, and nested structs without a child, keep what the caller left there.
  // Without a held Postmix it writes nothing to s and one line to the standard error stream.
  // MORE THAN 20 HIGH-PASS COEFFICIENTS OVERWRITE WHAT FOLLOWS s.hpf_coef: SEE ZorPbCoefHpf.
  void populateStruct(_zorOnyxPostmixApiCtrlCoeffsEx& s);

  // Prints the scalars and the three per-channel lists, always six lines a list with 0 for an
  // element that is missing, the address of the nested vantix, and the dump of that: 66 lines.
  static void dumpRef(const com::zor::onyx::fxp_std::Postmix& msg, std::ostream& os);

 protected:
  // The children, owned but for the fader's; null where none has been made.
  ZorPbTechVantix* vantix_ = nullptr;
  ZorPbTechGeq10b* geq10b_ = nullptr;
  ZorPbTechXeq* xeq_ = nullptr;
  ZorPbTechContour2* contour2_ = nullptr;
  ZorPbTechOrb* orb_ = nullptr;
  ZorPbCoefXeq* xeqCoef_ = nullptr;
  ZorPbCoefHpf* hpfCoef_ = nullptr;
  ZorPbFaderInfo* faderInfo_ = nullptr;

 private:
  // What the other constructors delegate to, so that a load that throws half-way still runs the
  // destructor on what it has made.
  ZorPbPostmix() = default;
};
