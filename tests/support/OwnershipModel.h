// Who owns what after any sequence of loads, as the wrappers' contract states it: a model that
// makes and deletes named tokens in place of objects.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "LiveObjects.h"

namespace zortest {

struct ClassModel;

struct Slot {
  std::string field;
  const ClassModel* child;
  bool madeFromMessage = true;
  bool madeFromStruct = true;
  bool detachedByDestructor = true;
  bool deletedByDestructor = true;
};

// Known by its message's full name.
struct ClassModel {
  std::string message;
  std::vector<Slot> slots = {};
};

inline std::string wrapperOf(const std::string& message) { return message + "'s wrapper"; }

// Makes every wrapper and its message known by the model's names.
void knowAll(LiveObjects* objects);

extern const ClassModel kImm3dModel, kVantixModel, kPremixModel, kPostmixModel;

// One wrapper, in the model. Tokens that are never deleted show in the census.
class OwnershipModel {
 public:
  OwnershipModel(const ClassModel& classModel, Census* live);

  // From a message that has the blocks whose bits are set, in the order of the slots; the blocks'
  // own blocks are the bits from kNestedBlocks on.
  static constexpr int kNestedBlocks = 8;
  void loadMessage(unsigned blocks);
  void loadStruct();
  void destroy();

 private:
  struct Message {
    std::string name;
    std::map<std::string, Message*> nested;
  };

  Message* makeMessage();
  void drop(Message* msg);
  void count(const std::string& name, int change);

  const ClassModel& class_;
  Census* live_;
  Message* held_ = nullptr;
  std::map<std::string, OwnershipModel*> children_;
  // What the model itself allocates lives as long as the model.
  std::vector<std::unique_ptr<Message>> messages_;
  std::vector<std::unique_ptr<OwnershipModel>> wrappers_;
};

}  // namespace zortest
