#include "ZorPbPostmix.h"

#include <cstddef>
#include <memory>
#include <ostream>
#include <string>
#include <string_view>

#include "ZorPbCoefHpf.h"
#include "ZorPbCoefXeq.h"
#include "ZorPbConvert.h"
#include "ZorPbDump.h"
#include "ZorPbFaderInfo.h"
#include "ZorPbFields.h"
#include "ZorPbReport.h"
#include "ZorPbTechContour2.h"
#include "ZorPbTechGeq10b.h"
#include "ZorPbTechOrb.h"
#include "ZorPbTechVantix.h"
#include "ZorPbTechXeq.h"

using com::zor::onyx::fxp_std::Postmix;
using zorpb::PostmixFields;

namespace {

constexpr std::string_view kDumpPrefix = "postmixRef";
constexpr int kDumpedChannels = 6;

// Prints the stage's own controls in the order of the struct. What follows the lists stands one
// column further right than what precedes them: readers of the dump know it so.
class ControlsDump {
 public:
  ControlsDump(const Postmix& msg, std::ostream& os) : msg_(msg), os_(os) {}

  template <auto get, auto set, auto member>
  void operator()(zorpb::Scalar<get, set, member> field) const {
    zorpb::ScalarDump<Postmix>(msg_, kDumpPrefix, width_, os_)(field);
  }

  template <auto get, auto mut, auto member>
  void operator()(zorpb::List<Postmix, get, mut, member> field) {
    const std::string label = std::string(kDumpPrefix) + "." + field.name + "[";
    const auto& values = field.values(msg_);
    for (int i = 0; i < kDumpedChannels; ++i) {
      os_ << label << i << "]  = " << (i < values.size() ? values.Get(i) : 0) << std::endl;
    }
    width_ = kWidthAfterLists;
  }

 private:
  static constexpr std::size_t kWidthBeforeLists = 15;
  static constexpr std::size_t kWidthAfterLists = 16;

  const Postmix& msg_;
  std::ostream& os_;
  std::size_t width_ = kWidthBeforeLists;
};

}  // namespace

ZorPbPostmix::ZorPbPostmix(const Postmix* msg) : ZorPbPostmix() { init(msg); }

ZorPbPostmix::ZorPbPostmix(const _zorOnyxPostmixApiCtrlCoeffsEx& s) : ZorPbPostmix() { init(s); }

ZorPbPostmix::~ZorPbPostmix() {
  // Shared messages are the children's to delete, all but the fader's.
  if (auto* held = zorpb::heldAs<Postmix>(msg_)) {
    static_cast<void>(held->release_vantix());
    static_cast<void>(held->release_geq10b());
    static_cast<void>(held->release_xeq());
    static_cast<void>(held->release_contour2());
    static_cast<void>(held->release_orb());
    static_cast<void>(held->release_xeq_coef());
  }
  delete vantix_;
  delete geq10b_;
  delete xeq_;
  delete contour2_;
  delete orb_;
  delete xeqCoef_;
  delete hpfCoef_;
  // faderInfo_ stays behind: its message goes with the held one, which still refers to it, so that
  // deleting the child as well would delete the message twice. No one can reach the child any more.
}

void ZorPbPostmix::init(const Postmix* msg) {
  auto fresh = std::make_unique<Postmix>();
  PostmixFields::controls(zorpb::loading(*msg, *fresh));

  // What an earlier load made stays behind: its message, which may share nested messages with its
  // children, and every child that is replaced here, which no one can reach any more.
  auto* const held = fresh.get();
  msg_ = fresh.release();
  if (msg->has_vantix()) vantix_ = new ZorPbTechVantix(&msg->vantix());
  if (msg->has_geq10b()) geq10b_ = new ZorPbTechGeq10b(&msg->geq10b());
  if (msg->has_xeq()) xeq_ = new ZorPbTechXeq(&msg->xeq());
  if (msg->has_contour2()) contour2_ = new ZorPbTechContour2(&msg->contour2());
  if (msg->has_orb()) orb_ = new ZorPbTechOrb(&msg->orb());
  if (msg->has_xeq_coef()) xeqCoef_ = new ZorPbCoefXeq(&msg->xeq_coef());
  if (msg->has_hpf_coef()) hpfCoef_ = new ZorPbCoefHpf(&msg->hpf_coef());

  PostmixFields::tables(zorpb::loading(*msg, *held));
}

void ZorPbPostmix::init(const _zorOnyxPostmixApiCtrlCoeffsEx& s) {
  auto* old = zorpb::heldAs<Postmix>(msg_);
  zorpb::remakeChild(vantix_, old, &Postmix::release_vantix, s.vantix);
  zorpb::remakeChild(geq10b_, old, &Postmix::release_geq10b, s.geq10b);
  zorpb::remakeChild(xeq_, old, &Postmix::release_xeq, s.xeq);
  zorpb::remakeChild(contour2_, old, &Postmix::release_contour2, s.contour2);
  zorpb::remakeChild(orb_, old, &Postmix::release_orb, s.orb);
  zorpb::remakeChild(xeqCoef_, old, &Postmix::release_xeq_coef, s.xeq_coef);
  zorpb::remakeChild(faderInfo_, old, &Postmix::release_fader_info, s.fader_info);
  // hpfCoef_ cannot be made from a struct; one from an earlier load stays, with its message.
  zorpb::discard(msg_);

  auto fresh = std::make_unique<Postmix>();
  PostmixFields::controls(zorpb::reading(s, *fresh));
  PostmixFields::tables(zorpb::reading(s, *fresh));

  // From here on nothing can fail, so no message is deleted by two owners.
  zorpb::handOn(*vantix_, *fresh, &Postmix::set_allocated_vantix);
  zorpb::handOn(*geq10b_, *fresh, &Postmix::set_allocated_geq10b);
  zorpb::handOn(*xeq_, *fresh, &Postmix::set_allocated_xeq);
  zorpb::handOn(*contour2_, *fresh, &Postmix::set_allocated_contour2);
  zorpb::handOn(*orb_, *fresh, &Postmix::set_allocated_orb);
  zorpb::handOn(*xeqCoef_, *fresh, &Postmix::set_allocated_xeq_coef);
  zorpb::handOn(*faderInfo_, *fresh, &Postmix::set_allocated_fader_info);
  msg_ = fresh.release();
}

void ZorPbPostmix::populateStruct(_zorOnyxPostmixApiCtrlCoeffsEx& s) {
  const auto* held = zorpb::heldAs<Postmix>(msg_);
  if (held == nullptr) {
    zorpb::reportNoMessage();
    return;
  }
  PostmixFields::controls(zorpb::writing(*held, s));
  zorpb::writeChild(vantix_, s.vantix);
  zorpb::writeChild(geq10b_, s.geq10b);
  zorpb::writeChild(xeq_, s.xeq);
  zorpb::writeChild(contour2_, s.contour2);
  zorpb::writeChild(orb_, s.orb);
  zorpb::writeChild(xeqCoef_, s.xeq_coef);
  // After xeq_coef, whose struct follows: what the high-pass list overruns is what stays.
  zorpb::writeChild(hpfCoef_, s.hpf_coef);
  zorpb::writeChild(faderInfo_, s.fader_info);
  PostmixFields::tables(zorpb::writing(*held, s));
}

void ZorPbPostmix::dumpRef(const Postmix& msg, std::ostream& os) {
  PostmixFields::controls(ControlsDump(msg, os));
  const auto& vantix = msg.vantix();
  os << "&vantixRef: " << static_cast<const void*>(&vantix) << std::endl;
  ZorPbTechVantix::dumpRef(vantix, os);
}
