#pragma once

#include <iosfwd>

#include "ZorEngineStructs.h"
#include "ZorPbBase.h"
#include "ZorcsExport.h"
#include "techVantix.pb.h"

/// Wide-surround controls, six scalars, between com.zor.tech.Expanse and _zorExpanseApiCtrl.
class ZORCS_EXPORT ZorPbTechExpanse : public ZorPbBase {
 public:
  /// Loads msg as init does.
  explicit ZorPbTechExpanse(const com::zor::tech::Expanse* msg);
  /// Loads ctrl as init does.
  explicit ZorPbTechExpanse(const _zorExpanseApiCtrl& ctrl);
  /// Deletes the held message.
  ~ZorPbTechExpanse() override;

  /// Loads a copy of msg. \copydetails load_message
  void init(const com::zor::tech::Expanse* msg);
  /// Builds a message from ctrl. \copydetails load_struct
  void init(const _zorExpanseApiCtrl& ctrl);

  /// Writes the held message into ctrl. \copydetails write_struct
  void populateStruct(_zorExpanseApiCtrl& ctrl);

  /// Prints six lines "expanseRef.<field> = <value>". \copydetails print_message
  static void dumpRef(const com::zor::tech::Expanse& msg, std::ostream& os);
};
