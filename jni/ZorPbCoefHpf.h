#pragma once

#include "ZorEngineStructs.h"
#include "ZorPbBase.h"
#include "ZorcsExport.h"
#include "coefHpf.pb.h"

/// High-pass coefficients, at most 20, from com.zor.coef.Hpf to _zorOnyxHpfApiCoeff. There is no
/// way back: no load from a struct.
class ZORCS_EXPORT ZorPbCoefHpf : public ZorPbBase {
 public:
  /// Loads msg as init does.
  explicit ZorPbCoefHpf(const com::zor::coef::Hpf* msg);
  /// Deletes hpfMsg_.
  ~ZorPbCoefHpf() override;

  /// Loads a copy of msg. \copydetails load_message
  ///
  /// coeffs is not cut: every value is taken, however many, and nothing else. The uuid, cutoff,
  /// order and sample_rate of the held message stay unset.
  void init(const com::zor::coef::Hpf* msg);

  /// Writes the held message into s; without one, nothing. Throws nothing.
  ///
  /// \warning WRITES EVERY COEFFICIENT THAT THE MESSAGE HELD, WITH NO CAP AT THE 20 ENTRIES OF
  /// s.coeffs. WHATEVER FOLLOWS s IN MEMORY IS OVERWRITTEN BY A LONGER LIST: IN THE POST-MIX STRUCT
  /// FIRST xeq_coef, THEN WHAT COMES AFTER IT. CHECK hpf_coef.coeffs_size() <= 20 BEFORE YOU LOAD A
  /// MESSAGE THAT YOU DO NOT TRUST.
  ///
  /// s.order becomes 0 whatever the order of the message; entries past a shorter list keep what the
  /// caller left there.
  void populateStruct(_zorOnyxHpfApiCoeff& s);

  /// The held message, owned; msg_ stays null, so that a parent finds nothing to share.
  com::zor::coef::Hpf* hpfMsg_ = nullptr;
};
