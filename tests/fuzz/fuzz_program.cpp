// Bytes as a program: loads, writes and destructions, in any order, on one wrapper of each class.
// After each step the live objects are those of a model.
#include <memory>
#include <optional>
#include <tuple>

#include "Guarded.h"
#include "support/LiveObjects.h"
#include "support/OwnershipModel.h"
#include "support/Wrappers.h"

namespace zortest {
namespace {

template <class M>
void keepBlocks(M* /*msg*/, unsigned /*blocks*/) {}

void keepBlocks(tech::Vantix* msg, unsigned blocks) {
  if ((blocks & 1) == 0) msg->clear_imm3d();
  if ((blocks & 2) == 0) msg->clear_expanse();
  if ((blocks & 4) == 0) msg->clear_deep();
}

void keepBlocks(onyx::Premix* msg, unsigned blocks) {
  if ((blocks & 1) == 0) msg->clear_leveler();
  if ((blocks & 2) == 0) msg->clear_contour2();
  if ((blocks & 4) == 0) msg->clear_fader_info();
}

void keepBlocks(onyx::Postmix* msg, unsigned blocks) {
  keepBlocks(msg->mutable_vantix(), blocks >> OwnershipModel::kNestedBlocks);
  if ((blocks & 1) == 0) msg->clear_vantix();
  if ((blocks & 2) == 0) msg->clear_geq10b();
  if ((blocks & 4) == 0) msg->clear_xeq();
  if ((blocks & 8) == 0) msg->clear_contour2();
  if ((blocks & 16) == 0) msg->clear_orb();
  if ((blocks & 32) == 0) msg->clear_xeq_coef();
  if ((blocks & 64) == 0) msg->clear_hpf_coef();
}

template <class W>
const ClassModel& modelOf(const std::string& message) {
  static const ClassModel leaf{message};
  if constexpr (std::is_same_v<W, ZorPbTechVantix>) return kVantixModel;
  if constexpr (std::is_same_v<W, ZorPbPremix>) return kPremixModel;
  if constexpr (std::is_same_v<W, ZorPbPostmix>) return kPostmixModel;
  return leaf;
}

enum Step { kLoadMessage, kLoadStruct, kPopulate, kDestroy, kSteps };

// One wrapper and its model.
template <class C>
class Actor {
 public:
  explicit Actor(Census* expected) : expected_(expected) {}

  void take(int step, unsigned blocks) {
    if (step == kLoadMessage) loadMessage(blocks);
    if (step == kLoadStruct) loadStruct();
    if (step == kPopulate && wrapper_ != nullptr) {
      static Guarded<typename C::S> memory;
      wrapper_->populateStruct(memory.fill(kPoison));
    }
    if (step == kDestroy && wrapper_ != nullptr) {
      wrapper_.reset();
      model_->destroy();
      model_.reset();
    }
  }

 private:
  using W = typename C::W;
  using M = typename C::M;

  void begin() { model_.emplace(modelOf<W>(M::default_instance().GetTypeName()), expected_); }

  void loadMessage(unsigned blocks) {
    static const std::string wire = wireOf(C::layout(), Depth::kToStruct);
    M msg;
    require(msg.ParsePartialFromString(wire), "the layout gives a message");
    keepBlocks(&msg, blocks);
    if (wrapper_ == nullptr) {
      begin();
      wrapper_ = std::make_unique<W>(&msg);
    } else {
      wrapper_->init(&msg);
    }
    model_->loadMessage(blocks);
  }

  void loadStruct() {
    using S = typename C::S;
    if constexpr (std::is_constructible_v<W, const S&>) {
      static S s = {};
      if constexpr (std::is_same_v<C, DeepConversion>) s.uuid = "a string past the short ones";
      if (wrapper_ == nullptr) {
        begin();
        wrapper_ = std::make_unique<W>(s);
      } else {
        wrapper_->init(s);
      }
      model_->loadStruct();
    }
  }

  Census* expected_;
  std::unique_ptr<W> wrapper_;
  std::optional<OwnershipModel> model_;
};

template <class... Conversions>
void run(std::tuple<Conversions...> /*kinds*/, Input input, const LiveObjects& objects) {
  const void* const mark = LiveObjects::mark();
  {
    Census expected;
    std::tuple<Actor<Conversions>...> actors((Actor<Conversions>(&expected))...);
    constexpr int kLongest = 64;
    for (int i = 0; i < kLongest && !input.isEmpty(); ++i) {
      const auto chosen = input.next() % sizeof...(Conversions);
      const int step = input.next() % kSteps;
      const unsigned low = input.next();
      const unsigned high = input.next();
      const unsigned blocks = low | high << OwnershipModel::kNestedBlocks;
      std::size_t number = 0;
      const auto takeIfChosen = [&](auto& actor) {
        if (number++ == chosen) actor.take(step, blocks);
      };
      std::apply([&](auto&... actor) { (takeIfChosen(actor), ...); }, actors);
      require(objects.census(mark) == expected, "what lives is what the model says");
    }
  }
  // What the contract leaves behind, and wrappers that the program did not destroy.
  LiveObjects::freeSince(mark);
}

}  // namespace

void runOne(Input input) {
  using Kinds =
      decltype(std::tuple_cat(LaidOutConversions<std::tuple>(), std::tuple<DeepConversion>()));
  static const LiveObjects objects = [] {
    LiveObjects known;
    knowAll(&known);
    // What is made once and stays is made here.
    eachConversion([](auto conversion) {
      Census unused;
      Actor<decltype(conversion)> actor(&unused);
      for (const int step : {kLoadMessage, kLoadStruct, kPopulate, kDestroy}) actor.take(step, ~0U);
    });
    return known;
  }();
  run(Kinds(), input, objects);
}

}  // namespace zortest
