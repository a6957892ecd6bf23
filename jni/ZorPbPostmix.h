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

/// The post-mix stage, between com.zor.onyx.fxp_std.Postmix and _zorOnyxPostmixApiCtrlCoeffsEx: its
/// own controls, the room tables and headphone-EQ coefficients, and up to eight children.
///
/// Never carried, in either direction: deep_coef, vantix_xover_coef, vrm. The fader state travels
/// from struct to message only, the high-pass coefficients from message to struct only.
class ZORCS_EXPORT ZorPbPostmix : public ZorPbBase {
 public:
  /// Loads msg as init does.
  explicit ZorPbPostmix(const com::zor::onyx::fxp_std::Postmix* msg);
  /// Loads s as init does.
  explicit ZorPbPostmix(const _zorOnyxPostmixApiCtrlCoeffsEx& s);
  /// Deletes the children but the fader's, and the held message. After a load from a struct the
  /// fader's message goes with the held one and its wrapper stays behind.
  ~ZorPbPostmix() override;

  /// Loads a copy of msg. \copydetails load_message
  ///
  /// Takes at most 6 values of orb_input_gain, bypass_hpeq and xeq_enable, 8210 of room_multi_ch,
  /// 3085 of room_stereo_front and room_stereo_wide, 135 of hpeq_coeffs. Makes a child for each of
  /// vantix, geq10b, xeq, contour2, orb, xeq_coef and hpf_coef that msg has; for one that it lacks
  /// the child of an earlier load stays. The held message has no nested messages.
  void init(const com::zor::onyx::fxp_std::Postmix* msg);
  /// Builds a message from s. \copydetails load_struct
  ///
  /// Makes the children of vantix, geq10b, xeq, contour2, orb, xeq_coef and fader_info; the
  /// high-pass child stays as it was. The held message's nested messages are the children's own:
  /// the very same objects.
  void init(const _zorOnyxPostmixApiCtrlCoeffsEx& s);

  /// Writes the held message into s. \copydetails write_struct
  ///
  /// A block without a child leaves its nested struct as the caller had it. Without a held Postmix
  /// one line goes to the standard error stream.
  ///
  /// \warning MORE THAN 20 HIGH-PASS COEFFICIENTS OVERWRITE WHAT FOLLOWS s.hpf_coef: SEE
  /// ZorPbCoefHpf.
  void populateStruct(_zorOnyxPostmixApiCtrlCoeffsEx& s);

  /// Prints the scalars and the three per-channel lists, always six lines a list with 0 for an
  /// element that is missing, the address of the nested vantix, and the dump of that: 66 lines.
  /// \copydetails print_message
  static void dumpRef(const com::zor::onyx::fxp_std::Postmix& msg, std::ostream& os);

 protected:
  /// A child, owned but for the fader's; null where none has been made.
  /// @{
  ZorPbTechVantix* vantix_ = nullptr;
  ZorPbTechGeq10b* geq10b_ = nullptr;
  ZorPbTechXeq* xeq_ = nullptr;
  ZorPbTechContour2* contour2_ = nullptr;
  ZorPbTechOrb* orb_ = nullptr;
  ZorPbCoefXeq* xeqCoef_ = nullptr;
  ZorPbCoefHpf* hpfCoef_ = nullptr;
  ZorPbFaderInfo* faderInfo_ = nullptr;
  /// @}

 private:
  // What the other constructors delegate to, so that a load that throws half-way still runs the
  // destructor on what it has made.
  ZorPbPostmix() = default;
};
