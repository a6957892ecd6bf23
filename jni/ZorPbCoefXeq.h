// Equalizer coefficients, between com.zor.coef.Xeq and _zorXeqApiCoeff.
#pragma once

#include "ZorEngineStructs.h"
#include "ZorPbBase.h"
#include "ZorcsExport.h"
#include "coefXeq.pb.h"

class ZORCS_EXPORT ZorPbCoefXeq : public ZorPbBase {
 public:
  explicit ZorPbCoefXeq(const com::zor::coef::Xeq* msg);
  explicit ZorPbCoefXeq(const _zorXeqApiCoeff& s);
  ~ZorPbCoefXeq() override;

  // Takes uuid, sample_rate and every value of coeffs, however many. The channel bands are not
  // carried: they travel only in the caller's message.
  void init(const com::zor::coef::Xeq* msg);
  // The built message holds exactly 672 coefficients, the all-zero uuid and a sample rate of 48000
  // Hz: the struct carries neither of the two.
  void init(const _zorXeqApiCoeff& s);

  // Writes at most 672 coefficients, in struct order: block 0, then block 1, in each head, table_a,
  // table_b. Words past the list keep what the caller left there.
  void populateStruct(_zorXeqApiCoeff& s);
};
