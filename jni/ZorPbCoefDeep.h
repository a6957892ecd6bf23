// Bass enhancement coefficients, between com.zor.coef.Deep and _zorDeepApiCoeffEx.
#pragma once

#include "ZorEngineStructs.h"
#include "ZorPbBase.h"
#include "ZorcsExport.h"
#include "coefDeep.pb.h"

class ZORCS_EXPORT ZorPbCoefDeep : public ZorPbBase {
 public:
  explicit ZorPbCoefDeep(const com::zor::coef::Deep* msg);
  explicit ZorPbCoefDeep(const _zorDeepApiCoeffEx& s);
  ~ZorPbCoefDeep() override;

  // Takes every value of coeffs, however many.
  void init(const com::zor::coef::Deep* msg);
  // Copies the string that s.uuid points to, which must not be null. The built message holds
  // exactly 24 coefficients.
  void init(const _zorDeepApiCoeffEx& s);

  // Clears the first six entries of s.coeffs, then writes at most 24 coefficients; entries past the
  // list, and past the sixth, keep what the caller left there. s.uuid then points into the held
  // message: it is valid until the wrapper is loaded again from a struct or destroyed.
  void populateStruct(_zorDeepApiCoeffEx& s);
};
