#include "OwnershipModel.h"

#include "Wrappers.h"

namespace zortest {
namespace {

const ClassModel kExpanseModel{"com.zor.tech.Expanse"};
const ClassModel kDeepModel{"com.zor.tech.Deep"};
const ClassModel kGeq10bModel{"com.zor.tech.Geq10b"};
const ClassModel kXeqModel{"com.zor.tech.Xeq"};
const ClassModel kContour2Model{"com.zor.tech.Contour2"};
const ClassModel kOrbModel{"com.zor.tech.Orb"};
const ClassModel kLevelerModel{"com.zor.tech.Leveler"};
const ClassModel kCoefXeqModel{"com.zor.coef.Xeq"};
const ClassModel kFaderInfoModel{"com.zor.onyx.fxp_std.FaderInfo"};
const ClassModel kHpfModel{"com.zor.coef.Hpf"};

}  // namespace

const ClassModel kImm3dModel{"com.zor.tech.Imm3d"};
const ClassModel kVantixModel{
    "com.zor.tech.Vantix",
    {{"imm3d", &kImm3dModel}, {"expanse", &kExpanseModel}, {"deep", &kDeepModel}}};
const ClassModel kPremixModel{"com.zor.onyx.fxp_std.Premix",
                              {{"leveler", &kLevelerModel, true, true, false, false},
                               {"contour2", &kContour2Model, true, true, false, false},
                               {"fader_info", &kFaderInfoModel, true, true, false, false}}};
const ClassModel kPostmixModel{"com.zor.onyx.fxp_std.Postmix",
                               {{"vantix", &kVantixModel},
                                {"geq10b", &kGeq10bModel},
                                {"xeq", &kXeqModel},
                                {"contour2", &kContour2Model},
                                {"orb", &kOrbModel},
                                {"xeq_coef", &kCoefXeqModel},
                                {"hpf_coef", &kHpfModel, true, false, false, true},
                                {"fader_info", &kFaderInfoModel, false, true, false, false}}};

void knowAll(LiveObjects* objects) {
  eachConversion([&](auto conversion) {
    using M = typename decltype(conversion)::M;
    const M& sample = M::default_instance();
    objects->know(sample.GetTypeName(), sample);
    objects->know(wrapperOf(sample.GetTypeName()), typename decltype(conversion)::W(&sample));
  });
}

OwnershipModel::OwnershipModel(const ClassModel& classModel, Census* live)
    : class_(classModel), live_(live) {
  count(wrapperOf(class_.message), 1);
}

void OwnershipModel::loadMessage(unsigned blocks) {
  held_ = makeMessage();
  unsigned bit = 1;
  for (const Slot& slot : class_.slots) {
    const bool isPresent = (blocks & bit) != 0;
    bit <<= 1;
    if (!slot.madeFromMessage || !isPresent) continue;
    wrappers_.push_back(std::make_unique<OwnershipModel>(*slot.child, live_));
    children_[slot.field] = wrappers_.back().get();
    children_[slot.field]->loadMessage(blocks >> kNestedBlocks);
  }
}

void OwnershipModel::loadStruct() {
  for (const Slot& slot : class_.slots) {
    if (!slot.madeFromStruct) continue;
    if (OwnershipModel* old = children_[slot.field]) {
      if (held_ != nullptr) held_->nested.erase(slot.field);
      old->destroy();
    }
    wrappers_.push_back(std::make_unique<OwnershipModel>(*slot.child, live_));
    children_[slot.field] = wrappers_.back().get();
    children_[slot.field]->loadStruct();
  }
  drop(held_);
  held_ = makeMessage();
  for (const Slot& slot : class_.slots) {
    if (slot.madeFromStruct) held_->nested[slot.field] = children_[slot.field]->held_;
  }
}

void OwnershipModel::destroy() {
  for (const Slot& slot : class_.slots) {
    if (slot.detachedByDestructor) held_->nested.erase(slot.field);
  }
  for (const Slot& slot : class_.slots) {
    OwnershipModel* child = children_[slot.field];
    if (slot.deletedByDestructor && child != nullptr) child->destroy();
  }
  drop(held_);
  count(wrapperOf(class_.message), -1);
}

OwnershipModel::Message* OwnershipModel::makeMessage() {
  messages_.push_back(std::make_unique<Message>(Message{class_.message, {}}));
  count(class_.message, 1);
  return messages_.back().get();
}

void OwnershipModel::drop(Message* msg) {
  if (msg == nullptr) return;
  for (const auto& nested : msg->nested) drop(nested.second);
  count(msg->name, -1);
}

void OwnershipModel::count(const std::string& name, int change) {
  if (((*live_)[name] += change) == 0) live_->erase(name);
}

}  // namespace zortest
