// The leaf messages' conversions by hand: the message that a wrapper would hold, made from a struct
// or from another message, and the struct filled from it. One plain assignment a field.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <iterator>

#include "FieldsByHand.h"
#include "ZorEngineStructs.h"
#include "coefDeep.pb.h"
#include "coefHpf.pb.h"
#include "coefXeq.pb.h"
#include "onyx.pb.h"
#include "peers/Peers.h"

namespace zorbench {

using google::protobuf::RepeatedField;

template <std::size_t n>
void setList(const int32_t (&from)[n], RepeatedField<int32_t>* to) {
  to->Add(std::begin(from), std::end(from));
}
template <std::size_t n>
void writeList(const RepeatedField<int32_t>& from, int32_t (&to)[n]) {
  std::copy_n(from.data(), std::min(static_cast<std::size_t>(from.size()), n), to);
}
inline void copyList(const RepeatedField<int32_t>& from, RepeatedField<int32_t>* to) {
  to->Add(from.data(), from.data() + from.size());
}

#define READ(number, field) to.set_##field(from.field);
#define READ_LIST(number, field) setList(from.field, to.mutable_##field());
#define LOAD(number, field) to.set_##field(from.field());
#define LOAD_LIST(number, field) copyList(from.field(), to.mutable_##field());
#define WRITE(number, field) to.field = static_cast<decltype(to.field)>(from.field());
#define WRITE_LIST(number, field) writeList(from.field(), to.field);

#define BY_HAND(LIST, Message, Struct)                                               \
  inline void read(const Struct& from, Message& to) { LIST(READ, READ, READ_LIST) }  \
  inline void load(const Message& from, Message& to) { LIST(LOAD, LOAD, LOAD_LIST) } \
  inline void write(const Message& from, Struct& to) { LIST(WRITE, WRITE, WRITE_LIST) }

BY_HAND(BENCH_IMM3D, com::zor::tech::Imm3d, _zorImm3dApiCtrl)
BY_HAND(BENCH_EXPANSE, com::zor::tech::Expanse, _zorExpanseApiCtrl)
BY_HAND(BENCH_DEEP, com::zor::tech::Deep, _zorDeepApiCtrl)
BY_HAND(BENCH_XEQ, com::zor::tech::Xeq, _zorXeqApiCtrl)
BY_HAND(BENCH_CONTOUR2, com::zor::tech::Contour2, _zorContour2ApiCtrl)
BY_HAND(BENCH_GEQ10B, com::zor::tech::Geq10b, _zorGeq10bApiCtrl)
BY_HAND(BENCH_ORB, com::zor::tech::Orb, _zorOrbApiCtrl)
BY_HAND(BENCH_LEVELER, com::zor::tech::Leveler, _zorLevelerApiCtrl)
BY_HAND(BENCH_FADER_INFO, com::zor::onyx::fxp_std::FaderInfo, _zorOnyxFaderInfo)

constexpr int kXeqWords = sizeof(_zorXeqApiCoeff) / sizeof(int32_t);

inline void read(const _zorXeqApiCoeff& from, com::zor::coef::Xeq& to) {
  const auto* const words = reinterpret_cast<const int32_t*>(&from);
  to.set_uuid(kNoUuid);
  to.set_sample_rate(kSampleRateHz);
  to.mutable_coeffs()->Add(words, words + kXeqWords);
}
inline void load(const com::zor::coef::Xeq& from, com::zor::coef::Xeq& to) {
  to.set_uuid(from.uuid());
  to.set_sample_rate(from.sample_rate());
  copyList(from.coeffs(), to.mutable_coeffs());
}
inline void write(const com::zor::coef::Xeq& from, _zorXeqApiCoeff& to) {
  std::copy_n(from.coeffs().data(), std::min(from.coeffs_size(), kXeqWords),
              reinterpret_cast<int32_t*>(&to));
}

inline void read(const _zorOnyxHpfApiCoeff& from, com::zor::coef::Hpf& to) {
  setList(from.coeffs, to.mutable_coeffs());
}
inline void load(const com::zor::coef::Hpf& from, com::zor::coef::Hpf& to) {
  copyList(from.coeffs(), to.mutable_coeffs());
}
inline void write(const com::zor::coef::Hpf& from, _zorOnyxHpfApiCoeff& to) {
  to.order = from.order();
  std::memcpy(to.coeffs, from.coeffs().data(),
              sizeof(int32_t) * static_cast<std::size_t>(from.coeffs_size()));
}

inline void read(const _zorDeepApiCoeffEx& from, com::zor::coef::Deep& to) {
  to.set_speaker_size(from.speaker_size);
  to.set_analysis_size(from.analysis_size);
  setList(from.coeffs, to.mutable_coeffs());
  to.set_uuid(from.uuid);
  to.set_sample_rate(from.sample_rate);
}
inline void load(const com::zor::coef::Deep& from, com::zor::coef::Deep& to) {
  to.set_speaker_size(from.speaker_size());
  to.set_analysis_size(from.analysis_size());
  copyList(from.coeffs(), to.mutable_coeffs());
  to.set_uuid(from.uuid());
  to.set_sample_rate(from.sample_rate());
}
inline void write(const com::zor::coef::Deep& from, _zorDeepApiCoeffEx& to) {
  to.speaker_size = from.speaker_size();
  to.analysis_size = from.analysis_size();
  std::fill_n(to.coeffs, 6, 0);
  writeList(from.coeffs(), to.coeffs);
  to.uuid = from.uuid().c_str();
  to.sample_rate = from.sample_rate();
}

#undef READ
#undef READ_LIST
#undef LOAD
#undef LOAD_LIST
#undef WRITE
#undef WRITE_LIST
#undef BY_HAND

}  // namespace zorbench
