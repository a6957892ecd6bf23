#include "ZorPbTechVantix.h"

#include <memory>

#include "ZorPbConvert.h"
#include "ZorPbDump.h"
#include "ZorPbFields.h"
#include "ZorPbTechDeep.h"
#include "ZorPbTechExpanse.h"
#include "ZorPbTechImm3d.h"

using com::zor::tech::Vantix;
using zorpb::TechVantixFields;

ZorPbTechVantix::ZorPbTechVantix(const Vantix* msg) : ZorPbTechVantix() { init(msg); }

ZorPbTechVantix::ZorPbTechVantix(const _zorVantixApiCtrl& ctrl) : ZorPbTechVantix() { init(ctrl); }

ZorPbTechVantix::~ZorPbTechVantix() {
  // Shared messages are the children's to delete.
  if (auto* held = zorpb::heldAs<Vantix>(msg_)) {
    static_cast<void>(held->release_imm3d());
    static_cast<void>(held->release_expanse());
    static_cast<void>(held->release_deep());
  }
  delete imm3d_;
  delete expanse_;
  delete deep_;
}

void ZorPbTechVantix::init(const Vantix* msg) {
  auto fresh = std::make_unique<Vantix>();
  TechVantixFields::controls(zorpb::loading(*msg, *fresh));

  // What an earlier load made stays behind: its message, which may share nested messages with its
  // children, and every child that is replaced here, which no one can reach any more.
  msg_ = fresh.release();
  if (msg->has_imm3d()) imm3d_ = new ZorPbTechImm3d(&msg->imm3d());
  if (msg->has_expanse()) expanse_ = new ZorPbTechExpanse(&msg->expanse());
  if (msg->has_deep()) deep_ = new ZorPbTechDeep(&msg->deep());
}

void ZorPbTechVantix::init(const _zorVantixApiCtrl& ctrl) {
  auto* old = zorpb::heldAs<Vantix>(msg_);
  zorpb::remakeChild(imm3d_, old, &Vantix::release_imm3d, ctrl.imm3d);
  zorpb::remakeChild(expanse_, old, &Vantix::release_expanse, ctrl.expanse);
  zorpb::remakeChild(deep_, old, &Vantix::release_deep, ctrl.deep);
  zorpb::discard(msg_);

  auto fresh = std::make_unique<Vantix>();
  TechVantixFields::controls(zorpb::reading(ctrl, *fresh));

  // From here on nothing can fail, so no message is deleted by two owners.
  zorpb::handOn(*imm3d_, *fresh, &Vantix::set_allocated_imm3d);
  zorpb::handOn(*expanse_, *fresh, &Vantix::set_allocated_expanse);
  zorpb::handOn(*deep_, *fresh, &Vantix::set_allocated_deep);
  msg_ = fresh.release();
}

void ZorPbTechVantix::populateStruct(_zorVantixApiCtrl& ctrl) {
  // The children write even when the held message is missing or foreign.
  zorpb::writeChild(imm3d_, ctrl.imm3d);
  zorpb::writeChild(expanse_, ctrl.expanse);
  zorpb::writeChild(deep_, ctrl.deep);
  if (const auto* held = zorpb::heldAs<Vantix>(msg_)) {
    TechVantixFields::controls(zorpb::writing(*held, ctrl));
  }
}

void ZorPbTechVantix::dumpRef(const Vantix& msg, std::ostream& os) {
  zorpb::dumpScalars<TechVantixFields>(msg, "vantixRef", os);
  ZorPbTechImm3d::dumpRef(msg.imm3d(), os);
  ZorPbTechExpanse::dumpRef(msg.expanse(), os);
  ZorPbTechDeep::dumpRef(msg.deep(), os);
}
