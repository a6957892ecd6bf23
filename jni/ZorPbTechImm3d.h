#pragma once

#include <iosfwd>

#include "ZorEngineStructs.h"
#include "ZorPbBase.h"
#include "ZorcsExport.h"
#include "techVantix.pb.h"

/// 3-D spatial enhancement controls, nine scalars, between com.zor.tech.Imm3d and _zorImm3dApiCtrl.
class ZORCS_EXPORT ZorPbTechImm3d : public ZorPbBase {
 public:
  /// Loads msg as init does.
  explicit ZorPbTechImm3d(const com::zor::tech::Imm3d* msg);
  /// Loads ctrl as init does.
  explicit ZorPbTechImm3d(const _zorImm3dApiCtrl& ctrl);
  /// Deletes the held message.
  ~ZorPbTechImm3d() override;

  /// Loads a copy of msg. \copydetails load_message
  void init(const com::zor::tech::Imm3d* msg);
  /// Builds a message from ctrl. \copydetails load_struct
  void init(const _zorImm3dApiCtrl& ctrl);

  /// Writes the held message into ctrl. \copydetails write_struct
  void populateStruct(_zorImm3dApiCtrl& ctrl);

  /// Prints nine lines "imm3dRef.<field> = <value>". \copydetails print_message
  static void dumpRef(const com::zor::tech::Imm3d& msg, std::ostream& os);
};
