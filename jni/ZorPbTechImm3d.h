// 3-D spatial enhancement controls, between com.zor.tech.Imm3d and _zorImm3dApiCtrl.
#pragma once

#include <iosfwd>

#include "ZorEngineStructs.h"
#include "ZorPbBase.h"
#include "ZorcsExport.h"
#include "techVantix.pb.h"

class ZORCS_EXPORT ZorPbTechImm3d : public ZorPbBase {
 public:
  explicit ZorPbTechImm3d(const com::zor::tech::Imm3d* msg);
  explicit ZorPbTechImm3d(const _zorImm3dApiCtrl& ctrl);
  ~ZorPbTechImm3d() override;

  void init(const com::zor::tech::Imm3d* msg);
  void init(const _zorImm3dApiCtrl& ctrl);

  void populateStruct(_zorImm3dApiCtrl& ctrl);

  // Prints nine lines "imm3dRef.<field> = <value>", absent fields with their defaults.
  static void dumpRef(const com::zor::tech::Imm3d& msg, std::ostream& os);
};
