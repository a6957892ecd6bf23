#include "ZorPbPremix.h"

#include <memory>

#include "ZorPbConvert.h"
#include "ZorPbFaderInfo.h"
#include "ZorPbFields.h"
#include "ZorPbReport.h"
#include "ZorPbTechContour2.h"
#include "ZorPbTechLeveler.h"

using com::zor::onyx::fxp_std::Premix;
using zorpb::PremixFields;

ZorPbPremix::ZorPbPremix(const Premix* msg) { init(msg); }

ZorPbPremix::ZorPbPremix(const _zorOnyxPremixApiCtrlEx& s) { init(s); }

// The children stay behind. After a load from a struct they point to messages that go with the held
// one; after a load from a message they keep their own. No one can reach either any more.
ZorPbPremix::~ZorPbPremix() = default;

void ZorPbPremix::init(const Premix* msg) {
  auto fresh = std::make_unique<Premix>();
  PremixFields::controls(zorpb::loading(*msg, *fresh));

  // What an earlier load made stays behind: its message, which may share nested messages with its
  // children, and every child that is replaced here, which no one can reach any more.
  msg_ = fresh.release();
  if (msg->has_leveler()) leveler_ = new ZorPbTechLeveler(&msg->leveler());
  if (msg->has_contour2()) contour2_ = new ZorPbTechContour2(&msg->contour2());
  if (msg->has_fader_info()) faderInfo_ = new ZorPbFaderInfo(&msg->fader_info());
}

void ZorPbPremix::init(const _zorOnyxPremixApiCtrlEx& s) {
  auto* old = zorpb::heldAs<Premix>(msg_);
  zorpb::remakeChild(leveler_, old, &Premix::release_leveler, s.leveler);
  zorpb::remakeChild(contour2_, old, &Premix::release_contour2, s.contour2);
  zorpb::remakeChild(faderInfo_, old, &Premix::release_fader_info, s.fader_info);
  zorpb::discard(msg_);

  auto fresh = std::make_unique<Premix>();
  PremixFields::controls(zorpb::reading(s, *fresh));

  // From here on nothing can fail, so no message is deleted by two owners.
  zorpb::handOn(*leveler_, *fresh, &Premix::set_allocated_leveler);
  zorpb::handOn(*contour2_, *fresh, &Premix::set_allocated_contour2);
  zorpb::handOn(*faderInfo_, *fresh, &Premix::set_allocated_fader_info);
  msg_ = fresh.release();
}

void ZorPbPremix::populateStruct(_zorOnyxPremixApiCtrlEx& s) {
  const auto* held = zorpb::heldAs<Premix>(msg_);
  if (held == nullptr) {
    zorpb::reportNoMessage();
    return;
  }
  PremixFields::controls(zorpb::writing(*held, s));
  zorpb::writeChild(leveler_, s.leveler);
  zorpb::writeChild(contour2_, s.contour2);
  zorpb::writeChild(faderInfo_, s.fader_info);
}
