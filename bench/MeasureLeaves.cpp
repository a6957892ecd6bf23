#include <algorithm>
#include <cstddef>
#include <cstring>
#include <iterator>
#include <memory>
#include <string>

#include "FieldsByHand.h"
#include "Subjects.h"
#include "ZorPbCoefDeep.h"
#include "ZorPbCoefHpf.h"
#include "ZorPbCoefXeq.h"
#include "ZorPbFaderInfo.h"
#include "ZorPbTechContour2.h"
#include "ZorPbTechDeep.h"
#include "ZorPbTechExpanse.h"
#include "ZorPbTechGeq10b.h"
#include "ZorPbTechImm3d.h"
#include "ZorPbTechLeveler.h"
#include "ZorPbTechOrb.h"
#include "ZorPbTechXeq.h"
#include "peers/Peers.h"

namespace zorbench {
namespace {

using google::protobuf::RepeatedField;

// By hand: the message that the wrapper would hold, made from a struct or from another message, and
// the struct filled from it. One plain assignment a field.
template <std::size_t n>
void setList(const int32_t (&from)[n], RepeatedField<int32_t>* to) {
  to->Add(std::begin(from), std::end(from));
}
template <std::size_t n>
void writeList(const RepeatedField<int32_t>& from, int32_t (&to)[n]) {
  std::copy_n(from.data(), std::min(static_cast<std::size_t>(from.size()), n), to);
}
void copyList(const RepeatedField<int32_t>& from, RepeatedField<int32_t>* to) {
  to->Add(from.data(), from.data() + from.size());
}

#define READ(number, field) to.set_##field(from.field);
#define READ_LIST(number, field) setList(from.field, to.mutable_##field());
#define LOAD(number, field) to.set_##field(from.field());
#define LOAD_LIST(number, field) copyList(from.field(), to.mutable_##field());
#define WRITE(number, field) to.field = static_cast<decltype(to.field)>(from.field());
#define WRITE_LIST(number, field) writeList(from.field(), to.field);

#define BY_HAND(LIST, Message, Struct)                                        \
  void read(const Struct& from, Message& to) { LIST(READ, READ, READ_LIST) }  \
  void load(const Message& from, Message& to) { LIST(LOAD, LOAD, LOAD_LIST) } \
  void write(const Message& from, Struct& to) { LIST(WRITE, WRITE, WRITE_LIST) }

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

void read(const _zorXeqApiCoeff& from, com::zor::coef::Xeq& to) {
  const auto* const words = reinterpret_cast<const int32_t*>(&from);
  to.set_uuid(kNoUuid);
  to.set_sample_rate(kSampleRateHz);
  to.mutable_coeffs()->Add(words, words + kXeqWords);
}
void load(const com::zor::coef::Xeq& from, com::zor::coef::Xeq& to) {
  to.set_uuid(from.uuid());
  to.set_sample_rate(from.sample_rate());
  copyList(from.coeffs(), to.mutable_coeffs());
}
void write(const com::zor::coef::Xeq& from, _zorXeqApiCoeff& to) {
  std::copy_n(from.coeffs().data(), std::min(from.coeffs_size(), kXeqWords),
              reinterpret_cast<int32_t*>(&to));
}

void load(const com::zor::coef::Hpf& from, com::zor::coef::Hpf& to) {
  copyList(from.coeffs(), to.mutable_coeffs());
}
void write(const com::zor::coef::Hpf& from, _zorOnyxHpfApiCoeff& to) {
  to.order = from.order();
  std::memcpy(to.coeffs, from.coeffs().data(),
              sizeof(int32_t) * static_cast<std::size_t>(from.coeffs_size()));
}

void read(const _zorDeepApiCoeffEx& from, com::zor::coef::Deep& to) {
  to.set_speaker_size(from.speaker_size);
  to.set_analysis_size(from.analysis_size);
  setList(from.coeffs, to.mutable_coeffs());
  to.set_uuid(from.uuid);
  to.set_sample_rate(from.sample_rate);
}
void load(const com::zor::coef::Deep& from, com::zor::coef::Deep& to) {
  to.set_speaker_size(from.speaker_size());
  to.set_analysis_size(from.analysis_size());
  copyList(from.coeffs(), to.mutable_coeffs());
  to.set_uuid(from.uuid());
  to.set_sample_rate(from.sample_rate());
}
void write(const com::zor::coef::Deep& from, _zorDeepApiCoeffEx& to) {
  to.speaker_size = from.speaker_size();
  to.analysis_size = from.analysis_size();
  std::fill_n(to.coeffs, 6, 0);
  writeList(from.coeffs(), to.coeffs);
  to.uuid = from.uuid().c_str();
  to.sample_rate = from.sample_rate();
}

constexpr double kLeaf = 1.1;

// A message that holds numbers of every length, and the struct that it gives.
template <class Wrapper, class Message, class Struct>
void addToStruct(const std::string& name, const Message& from, Table& table) {
  const auto message = std::make_shared<Message>(from);
  const auto to = std::make_shared<Struct>();
  table.measure(name, "to struct", [message, to](benchmark::State& state) {
    for (auto _ : state) {
      Wrapper(message.get()).populateStruct(*to);
      benchmark::ClobberMemory();
    }
  });
  table.measure(name, "to struct, by hand", [message, to](benchmark::State& state) {
    for (auto _ : state) {
      const auto held = std::make_unique<Message>();
      load(*message, *held);
      benchmark::DoNotOptimize(held.get());
      write(*held, *to);
      benchmark::ClobberMemory();
    }
  });
  table.compare(name, "to struct", "to struct, by hand", kLeaf);
}

template <class Wrapper, class Message, class Struct>
void addToMessage(const std::string& name, const Struct& from, Table& table) {
  const auto engine = std::make_shared<Struct>(from);
  table.measure(name, "to message", [engine](benchmark::State& state) {
    for (auto _ : state) {
      const Wrapper wrapper(*engine);
      benchmark::DoNotOptimize(wrapper.msg_);
    }
  });
  table.measure(name, "to message, by hand", [engine](benchmark::State& state) {
    for (auto _ : state) {
      const auto held = std::make_unique<Message>();
      read(*engine, *held);
      benchmark::DoNotOptimize(held.get());
    }
  });
  table.compare(name, "to message", "to message, by hand", kLeaf);
}

// Bytes of every kind, the same each time.
template <class Struct>
Struct filled() {
  Struct s = {};
  auto* const words = reinterpret_cast<uint16_t*>(&s);
  for (std::size_t i = 0; i < sizeof(Struct) / sizeof(uint16_t); ++i) {
    words[i] = static_cast<uint16_t>(40503 * (i + 1));
  }
  return s;
}

template <class Wrapper, class Message, class Struct>
void addLeaf(const std::string& name, const Struct& engine, Table& table) {
  addToMessage<Wrapper, Message>(name, engine, table);
  Message message;
  read(engine, message);
  addToStruct<Wrapper, Message, Struct>(name, message, table);
}
template <class Wrapper, class Message, class Struct>
void addLeaf(const std::string& name, Table& table) {
  addLeaf<Wrapper, Message>(name, filled<Struct>(), table);
}

}  // namespace

void addLeaves(Table& table) {
  namespace tech = com::zor::tech;
  namespace coef = com::zor::coef;
  using com::zor::onyx::fxp_std::FaderInfo;
  addLeaf<ZorPbTechImm3d, tech::Imm3d, _zorImm3dApiCtrl>("Imm3d", table);
  addLeaf<ZorPbTechExpanse, tech::Expanse, _zorExpanseApiCtrl>("Expanse", table);
  addLeaf<ZorPbTechDeep, tech::Deep, _zorDeepApiCtrl>("Deep", table);
  addLeaf<ZorPbTechXeq, tech::Xeq, _zorXeqApiCtrl>("Xeq", table);
  addLeaf<ZorPbTechContour2, tech::Contour2, _zorContour2ApiCtrl>("Contour2", table);
  addLeaf<ZorPbTechGeq10b, tech::Geq10b, _zorGeq10bApiCtrl>("Geq10b", table);
  addLeaf<ZorPbTechOrb, tech::Orb, _zorOrbApiCtrl>("Orb", table);
  addLeaf<ZorPbTechLeveler, tech::Leveler, _zorLevelerApiCtrl>("Leveler", table);
  addLeaf<ZorPbFaderInfo, FaderInfo, _zorOnyxFaderInfo>("FaderInfo", table);
  addLeaf<ZorPbCoefXeq, coef::Xeq, _zorXeqApiCoeff>("CoefXeq", table);

  auto deep = filled<_zorDeepApiCoeffEx>();
  deep.uuid = kNoUuid;
  addLeaf<ZorPbCoefDeep, coef::Deep>("CoefDeep", deep, table);

  coef::Hpf hpf;
  const auto coefficients = filled<_zorOnyxHpfApiCoeff>();
  setList(coefficients.coeffs, hpf.mutable_coeffs());
  addToStruct<ZorPbCoefHpf, coef::Hpf, _zorOnyxHpfApiCoeff>("CoefHpf", hpf, table);
}

}  // namespace zorbench
