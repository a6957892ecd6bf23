// The speaker virtualizer, between com.zor.tech.Vantix and _zorVantixApiCtrl: its own controls and
// three children, one for each technology that it bundles.
#pragma once

#include <iosfwd>

#include "ZorEngineStructs.h"
#include "ZorPbBase.h"
#include "ZorcsExport.h"
#include "techVantix.pb.h"

class ZorPbTechDeep;
class ZorPbTechExpanse;
class ZorPbTechImm3d;

class ZORCS_EXPORT ZorPbTechVantix : public ZorPbBase {
 public:
  explicit ZorPbTechVantix(const com::zor::tech::Vantix* msg);
  explicit ZorPbTechVantix(const _zorVantixApiCtrl& ctrl);
  // Deletes the children, each with its message, and the held message.
  ~ZorPbTechVantix() override;

  // Makes a child for each technology that msg has; for one that it lacks the child of an earlier
  // load stays. The held message has no nested messages. Children of an earlier load are not
  // released.
  void init(const com::zor::tech::Vantix* msg);
  // Makes all three children, releasing those of an earlier load. The held message's imm3d, expanse
  // and deep are the children's own messages: the very same objects.
  void init(const _zorVantixApiCtrl& ctrl);

  // A technology without a child leaves its nested struct as the caller had it.
  void populateStruct(_zorVantixApiCtrl& ctrl);

  // Prints eleven lines "vantixRef.<field> = <value>", then the dumps of imm3d, expanse and deep:
  // 40 lines, absent fields and technologies with their defaults.
  static void dumpRef(const com::zor::tech::Vantix& msg, std::ostream& os);

 protected:
  // The children, owned; null where none has been made.
  ZorPbTechImm3d* imm3d_ = nullptr;
  ZorPbTechExpanse* expanse_ = nullptr;
  ZorPbTechDeep* deep_ = nullptr;

 private:
  // What the other constructors delegate to, so that a load that throws half-way still runs the
  // destructor on what it has made.
  ZorPbTechVantix() = default;
};
