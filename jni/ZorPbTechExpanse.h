// Wide-surround controls, between com.zor.tech.Expanse and _zorExpanseApiCtrl.
#pragma once

#include <iosfwd>

#include "ZorEngineStructs.h"
#include "ZorPbBase.h"
#include "ZorcsExport.h"
#include "techVantix.pb.h"

class ZORCS_EXPORT ZorPbTechExpanse : public ZorPbBase {
 public:
  explicit ZorPbTechExpanse(const com::zor::tech::Expanse* msg);
  explicit ZorPbTechExpanse(const _zorExpanseApiCtrl& ctrl);
  ~ZorPbTechExpanse() override;

  void init(const com::zor::tech::Expanse* msg);
  void init(const _zorExpanseApiCtrl& ctrl);

  void populateStruct(_zorExpanseApiCtrl& ctrl);

  // Prints six lines "expanseRef.<field> = <value>", absent fields with their defaults.
  static void dumpRef(const com::zor::tech::Expanse& msg, std::ostream& os);
};
