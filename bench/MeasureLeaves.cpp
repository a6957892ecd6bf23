#include <cstddef>
#include <memory>
#include <string>

#include "Assignments.h"
#include "ByHand.h"
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

namespace zorbench {
namespace {

constexpr double kLeaf = 1.1;

template <class T>
struct Class {
  using Type = T;
};

// A message that holds numbers of every length, and the struct that it gives.
template <class Wrapper, class Message, class Struct>
void addToStruct(const std::string& name, const Message& from, Table& table) {
  const auto message = std::make_shared<Message>(from);
  const auto to = std::make_shared<Struct>();
  const auto asClass = [message, to](auto type) {
    return [message, to](benchmark::State& state) {
      for (auto _ : state) {
        typename decltype(type)::Type(message.get()).populateStruct(*to);
        benchmark::ClobberMemory();
      }
    };
  };
  table.measure(name, "to struct", asClass(Class<Wrapper>()));
  table.measure(name, "to struct, by hand", asClass(Class<ByHand<Message, Struct>>()));
  table.measure(name, "to struct, by hand, inlined", [message, to](benchmark::State& state) {
    for (auto _ : state) {
      const auto held = std::make_unique<Message>();
      load(*message, *held);
      benchmark::DoNotOptimize(held.get());
      write(*held, *to);
      benchmark::ClobberMemory();
    }
  });
  table.compare(name, "to struct", "to struct, by hand", kLeaf);
  table.compare(name, "to struct", "to struct, by hand, inlined");
}

template <class Wrapper, class Message, class Struct>
void addToMessage(const std::string& name, const Struct& from, Table& table) {
  const auto engine = std::make_shared<Struct>(from);
  const auto asClass = [engine](auto type) {
    return [engine](benchmark::State& state) {
      for (auto _ : state) {
        const typename decltype(type)::Type holder(*engine);
        benchmark::DoNotOptimize(&*holder.msg_);
      }
    };
  };
  table.measure(name, "to message", asClass(Class<Wrapper>()));
  table.measure(name, "to message, by hand", asClass(Class<ByHand<Message, Struct>>()));
  table.measure(name, "to message, by hand, inlined", [engine](benchmark::State& state) {
    for (auto _ : state) {
      const auto held = std::make_unique<Message>();
      read(*engine, *held);
      benchmark::DoNotOptimize(held.get());
    }
  });
  table.compare(name, "to message", "to message, by hand", kLeaf);
  table.compare(name, "to message", "to message, by hand, inlined");
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
  read(filled<_zorOnyxHpfApiCoeff>(), hpf);
  addToStruct<ZorPbCoefHpf, coef::Hpf, _zorOnyxHpfApiCoeff>("CoefHpf", hpf, table);
}

}  // namespace zorbench
