#pragma once

#include "ZorEngineStructs.h"
#include "ZorPbBase.h"
#include "ZorcsExport.h"
#include "coefXeq.pb.h"

/// Equalizer coefficients, 672, between com.zor.coef.Xeq and _zorXeqApiCoeff.
class ZORCS_EXPORT ZorPbCoefXeq : public ZorPbBase {
 public:
  /// Loads msg as init does.
  explicit ZorPbCoefXeq(const com::zor::coef::Xeq* msg);
  /// Loads s as init does.
  explicit ZorPbCoefXeq(const _zorXeqApiCoeff& s);
  /// Deletes the held message.
  ~ZorPbCoefXeq() override;

  /// Loads a copy of msg. \copydetails load_message
  ///
  /// Takes uuid and sample_rate too. coeffs is not cut: every value is taken, however many. The
  /// channel bands are not carried: they travel only in the caller's message.
  void init(const com::zor::coef::Xeq* msg);
  /// Builds a message from s. \copydetails load_struct
  ///
  /// The held message then has the all-zero uuid and a sample rate of 48000 Hz: the struct carries
  /// neither of the two.
  void init(const _zorXeqApiCoeff& s);

  /// Writes the held message into s. \copydetails write_struct
  ///
  /// The coefficients go to block 0, then to block 1; in each to head, table_a, table_b.
  void populateStruct(_zorXeqApiCoeff& s);
};
