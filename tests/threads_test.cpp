// Many threads at once, as in an audio service: what they share is read only, so none of them waits
// and none sees another's work.
#include <gtest/gtest.h>

#include <atomic>
#include <cstddef>
#include <string>
#include <thread>
#include <type_traits>
#include <vector>

#include "ZorPbCheck.h"
#include "support/Wrappers.h"

namespace zortest {
namespace {

// Message to struct and back, through bytes: what arrives.
template <class C>
std::string travelled() {
  typename C::M msg;
  EXPECT_TRUE(msg.ParsePartialFromString(wireOf(C::layout(), Depth::kToStruct)));
  typename C::W sent(&msg);
  typename C::S s = {};
  sent.populateStruct(s);
  if constexpr (std::is_constructible_v<typename C::W, const typename C::S&>) {
    return typename C::W(s).msg_->SerializePartialAsString();
  } else {
    return {reinterpret_cast<const char*>(&s), sizeof(s)};
  }
}

// What every class makes of a configuration and of its default instance.
std::vector<std::string> everything() {
  std::vector<std::string> results;
  eachConversion([&](auto conversion) {
    using C = decltype(conversion);
    results.push_back(travelled<C>());
    results.push_back(C::M::default_instance().SerializePartialAsString());
  });
  for (const auto& finding : ZorPbCheck::findings(onyx::Onyx::default_instance())) {
    results.push_back(ZorPbCheck::text(finding));
  }
  return results;
}

TEST(Threads, EachConvertsAsIfAlone) {
  constexpr std::size_t kThreads = 8;
  constexpr int kRounds = 20;
  std::vector<std::vector<std::string>> first(kThreads);
  std::atomic<std::size_t> ready = 0;
  std::atomic<int> different = 0;
  std::vector<std::thread> threads;
  for (std::size_t i = 0; i < kThreads; ++i) {
    threads.emplace_back([&, i] {
      // Together, so that whatever is made at its first use is wanted by all of them.
      for (++ready; ready < kThreads;) std::this_thread::yield();
      first[i] = everything();
      for (int round = 1; round < kRounds; ++round) different += everything() != first[i];
    });
  }
  for (auto& thread : threads) thread.join();
  EXPECT_EQ(different, 0);
  for (const auto& results : first) EXPECT_EQ(results, first[0]);
  EXPECT_EQ(first[0], everything());
}

}  // namespace
}  // namespace zortest
