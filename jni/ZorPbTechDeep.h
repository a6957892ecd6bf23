// Bass enhancement controls, between com.zor.tech.Deep and _zorDeepApiCtrl.
#pragma once

#include <iosfwd>

#include "ZorEngineStructs.h"
#include "ZorPbBase.h"
#include "ZorcsExport.h"
#include "techVantix.pb.h"

class ZORCS_EXPORT ZorPbTechDeep : public ZorPbBase {
 public:
  explicit ZorPbTechDeep(const com::zor::tech::Deep* msg);
  explicit ZorPbTechDeep(const _zorDeepApiCtrl& ctrl);
  ~ZorPbTechDeep() override;

  void init(const com::zor::tech::Deep* msg);
  void init(const _zorDeepApiCtrl& ctrl);

  void populateStruct(_zorDeepApiCtrl& ctrl);

  // Prints fourteen lines "deepRef.<field> = <value>", absent fields with their defaults.
  static void dumpRef(const com::zor::tech::Deep& msg, std::ostream& os);
};
