#pragma once

#include <iosfwd>

#include "ZorEngineStructs.h"
#include "ZorPbBase.h"
#include "ZorcsExport.h"
#include "techVantix.pb.h"

/// Bass enhancement controls, fourteen scalars, between com.zor.tech.Deep and _zorDeepApiCtrl.
class ZORCS_EXPORT ZorPbTechDeep : public ZorPbBase {
 public:
  /// Loads msg as init does.
  explicit ZorPbTechDeep(const com::zor::tech::Deep* msg);
  /// Loads ctrl as init does.
  explicit ZorPbTechDeep(const _zorDeepApiCtrl& ctrl);
  /// Deletes the held message.
  ~ZorPbTechDeep() override;

  /// Loads a copy of msg. \copydetails load_message
  void init(const com::zor::tech::Deep* msg);
  /// Builds a message from ctrl. \copydetails load_struct
  void init(const _zorDeepApiCtrl& ctrl);

  /// Writes the held message into ctrl. \copydetails write_struct
  void populateStruct(_zorDeepApiCtrl& ctrl);

  /// Prints fourteen lines "deepRef.<field> = <value>". \copydetails print_message
  static void dumpRef(const com::zor::tech::Deep& msg, std::ostream& os);
};
