#include "ZorPbCheck.h"

#include <cstddef>

#include "ZorPbCheckWalk.h"

using com::zor::onyx::fxp_std::Onyx;
using com::zor::onyx::fxp_std::Postmix;
using com::zor::onyx::fxp_std::Premix;
using zorpb::Detail;
using zorpb::Path;

namespace {

// Most configurations have fewer findings; those that have more are not in a hurry.
constexpr std::size_t kExpectedFindings = 16;

static_assert(zorpb::deepest<Onyx>() <= ZorPbFinding::kMaxSteps, "a path has more steps than fit");

// Writes the chain that ends at path, its root first; returns the number of steps.
std::size_t copySteps(const Path* path, ZorPbFinding* finding) {
  if (path == nullptr) return 0;
  const std::size_t depth = copySteps(path->parent, finding);
  finding->steps[depth] = {path->name, path->index};
  return depth + 1;
}

template <class Sink>
void walk(const Onyx& msg, Sink sink) {
  zorpb::Walk<Sink>(sink).converted(msg);
}
template <class Sink>
void walk(const Premix& msg, Sink sink) {
  const Path root{nullptr, "premix"};
  zorpb::Walk<Sink>(sink).converted(msg, &root);
}
template <class Sink>
void walk(const Postmix& msg, Sink sink) {
  const Path root{nullptr, "postmix"};
  zorpb::Walk<Sink>(sink).converted(msg, &root);
}

template <class M>
std::vector<ZorPbFinding> collected(const M& msg) {
  std::vector<ZorPbFinding> all;
  walk(msg, [&all](ZorPbRule rule, const Path& path, const Detail& detail) {
    if (all.empty()) all.reserve(kExpectedFindings);
    all.push_back({rule, {}, detail.firstIndex, detail.lastIndex, detail.value, detail.engine});
    copySteps(&path, &all.back());
  });
  return all;
}

template <class M>
bool safe(const M& msg) {
  bool safe = true;
  walk(msg, [&safe](ZorPbRule rule, const Path& /*path*/, const Detail& /*detail*/) {
    if (ZorPbCheck::severity(rule) <= ZorPbSeverity::kError) safe = false;
  });
  return safe;
}

}  // namespace

std::vector<ZorPbFinding> ZorPbCheck::findings(const Onyx& msg) { return collected(msg); }
std::vector<ZorPbFinding> ZorPbCheck::findings(const Premix& msg) { return collected(msg); }
std::vector<ZorPbFinding> ZorPbCheck::findings(const Postmix& msg) { return collected(msg); }

bool ZorPbCheck::isSafe(const Onyx& msg) { return safe(msg); }
bool ZorPbCheck::isSafe(const Premix& msg) { return safe(msg); }
bool ZorPbCheck::isSafe(const Postmix& msg) { return safe(msg); }
