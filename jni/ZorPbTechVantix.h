#pragma once

#include <iosfwd>

#include "ZorEngineStructs.h"
#include "ZorPbBase.h"
#include "ZorcsExport.h"
#include "techVantix.pb.h"

class ZorPbTechDeep;
class ZorPbTechExpanse;
class ZorPbTechImm3d;

/// The speaker virtualizer, between com.zor.tech.Vantix and _zorVantixApiCtrl: eleven scalars of
/// its own and three children, one for each technology that it bundles.
class ZORCS_EXPORT ZorPbTechVantix : public ZorPbBase {
 public:
  /// Loads msg as init does.
  explicit ZorPbTechVantix(const com::zor::tech::Vantix* msg);
  /// Loads ctrl as init does.
  explicit ZorPbTechVantix(const _zorVantixApiCtrl& ctrl);
  /// Deletes the children, each with its message, and the held message.
  ~ZorPbTechVantix() override;

  /// Loads a copy of msg. \copydetails load_message
  ///
  /// Makes a child for each technology that msg has; for one that it lacks the child of an earlier
  /// load stays. The held message has no nested messages.
  void init(const com::zor::tech::Vantix* msg);
  /// Builds a message from ctrl. \copydetails load_struct
  ///
  /// Makes all three children. The held message's imm3d, expanse and deep are the children's own
  /// messages: the very same objects.
  void init(const _zorVantixApiCtrl& ctrl);

  /// Writes the held message into ctrl. \copydetails write_struct
  ///
  /// A technology without a child leaves its nested struct as the caller had it. The children write
  /// even when there is no held message.
  void populateStruct(_zorVantixApiCtrl& ctrl);

  /// Prints eleven lines "vantixRef.<field> = <value>", then the dumps of imm3d, expanse and deep:
  /// 40 lines. \copydetails print_message
  static void dumpRef(const com::zor::tech::Vantix& msg, std::ostream& os);

 protected:
  /// A child, owned; null where none has been made.
  /// @{
  ZorPbTechImm3d* imm3d_ = nullptr;
  ZorPbTechExpanse* expanse_ = nullptr;
  ZorPbTechDeep* deep_ = nullptr;
  /// @}

 private:
  // What the other constructors delegate to, so that a load that throws half-way still runs the
  // destructor on what it has made.
  ZorPbTechVantix() = default;
};
