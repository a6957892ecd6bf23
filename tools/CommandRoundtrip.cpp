#include <iostream>

#include "Changes.h"
#include "Commands.h"
#include "Configuration.h"
#include "Engine.h"
#include "Trouble.h"

namespace {

using com::zor::onyx::fxp_std::Onyx;

// What is outside the two stages never travels: it is taken over as it is.
Onyx throughEngine(const Onyx& sent) {
  const auto engine = toEngine(sent);
  Onyx back;
  if (sent.has_version()) back.set_version(sent.version());
  if (sent.has_route_flags()) back.set_route_flags(sent.route_flags());
  if (sent.has_premix()) addPremix(engine->premix, &back);
  if (sent.has_postmix()) addPostmix(engine->postmix, &back);
  return back;
}

}  // namespace

int roundtrip(const RoundtripOptions& options) {
  const auto configuration = loadConfiguration(options.file);
  if (isRefused(configuration)) return kFound;
  const auto back = withNames(throughEngine(configuration.onyx));
  const auto changes = changesBetween(*configuration.message, *back);
  print(changes, options.json ? ChangeForm::kJson : ChangeForm::kLines, std::cout);
  if (changes.empty() && !options.json) std::cout << "lossless\n";
  return changes.empty() ? kClean : kFound;
}
