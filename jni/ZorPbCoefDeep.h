#pragma once

#include "ZorEngineStructs.h"
#include "ZorPbBase.h"
#include "ZorcsExport.h"
#include "coefDeep.pb.h"

/// Bass enhancement coefficients, 24, with the settings that they were computed for, between
/// com.zor.coef.Deep and _zorDeepApiCoeffEx.
class ZORCS_EXPORT ZorPbCoefDeep : public ZorPbBase {
 public:
  /// Loads msg as init does.
  explicit ZorPbCoefDeep(const com::zor::coef::Deep* msg);
  /// Loads s as init does.
  explicit ZorPbCoefDeep(const _zorDeepApiCoeffEx& s);
  /// Deletes the held message.
  ~ZorPbCoefDeep() override;

  /// Loads a copy of msg. \copydetails load_message
  ///
  /// coeffs is not cut: every value is taken, however many.
  void init(const com::zor::coef::Deep* msg);
  /// Builds a message from s. \copydetails load_struct
  ///
  /// Copies the string that s.uuid points to, which must not be null.
  void init(const _zorDeepApiCoeffEx& s);

  /// Writes the held message into s. \copydetails write_struct
  ///
  /// The first six entries of s.coeffs are cleared first, so that of those none keeps what the
  /// caller left there. s.uuid then points into the held message: it is valid until the wrapper is
  /// loaded again from a struct or destroyed.
  void populateStruct(_zorDeepApiCoeffEx& s);
};
