#include "ZorPbCoefXeq.h"

#include <cstdint>
#include <memory>

#include "ZorPbConvert.h"
#include "ZorPbFields.h"

using com::zor::coef::Xeq;
using zorpb::CoefXeqFields;

namespace {

// What a message built from a struct says of the identifier and the rate, which the struct lacks.
constexpr char kNoUuid[] = "00000000-0000-0000-0000-000000000000";
constexpr int32_t kSampleRateHz = 48000;

}  // namespace

ZorPbCoefXeq::ZorPbCoefXeq(const Xeq* msg) { init(msg); }

ZorPbCoefXeq::ZorPbCoefXeq(const _zorXeqApiCoeff& s) { init(s); }

ZorPbCoefXeq::~ZorPbCoefXeq() = default;

void ZorPbCoefXeq::init(const Xeq* msg) {
  auto fresh = std::make_unique<Xeq>();
  fresh->set_uuid(msg->uuid());
  fresh->set_sample_rate(msg->sample_rate());
  CoefXeqFields::each(zorpb::loading(*msg, *fresh));
  // The message held before stays behind, as after any load from a message.
  msg_ = fresh.release();
}

void ZorPbCoefXeq::init(const _zorXeqApiCoeff& s) {
  zorpb::discard(msg_);
  auto fresh = std::make_unique<Xeq>();
  fresh->set_uuid(kNoUuid);
  fresh->set_sample_rate(kSampleRateHz);
  CoefXeqFields::each(zorpb::reading(s, *fresh));
  msg_ = fresh.release();
}

void ZorPbCoefXeq::populateStruct(_zorXeqApiCoeff& s) { zorpb::writeOut<CoefXeqFields>(msg_, s); }
