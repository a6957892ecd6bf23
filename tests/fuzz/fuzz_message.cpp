// Bytes as a configuration, as a device reads them: parsed, checked, and if safe converted.
#include <algorithm>

#include "Roads.h"
#include "ZorPbCheck.h"

namespace zortest {
namespace {

template <class C>
void follow(const typename C::M& msg) {
  static Guarded<typename C::S> first;
  static Guarded<typename C::S> second;
  toStruct<C>(msg, kPoison, &first);
  thereAndBack<C>(&first, &second);
}

bool is(const ZorPbFinding& finding, ZorPbSeverity severity) {
  return ZorPbCheck::severity(finding.rule) == severity;
}

}  // namespace

void runOne(Input input) {
  onyx::Onyx msg;
  if (!msg.ParsePartialFromString(input.rest())) return;

  bool isUnsafe = false;
  bool isError = false;
  for (const auto& finding : ZorPbCheck::findings(msg)) {
    isUnsafe = isUnsafe || is(finding, ZorPbSeverity::kUnsafe);
    isError = isError || is(finding, ZorPbSeverity::kError);
    const std::string text = ZorPbCheck::text(finding);
    require(text.rfind(finding.path(), 0) == 0, "a finding begins with its path");
    require(text.find('\n') == std::string::npos, "a finding is one line");
  }
  require(ZorPbCheck::isSafe(msg) == !(isUnsafe || isError), "isSafe is what the findings say");
  require(isError || msg.IsInitialized(), "what the checker takes for complete is complete");
  if (isUnsafe) return;

  follow<Conversion<ZorPbPremix, onyx::Premix, _zorOnyxPremixApiCtrlEx, kPremix>>(msg.premix());
  follow<Conversion<ZorPbPostmix, onyx::Postmix, _zorOnyxPostmixApiCtrlCoeffsEx, kPostmix>>(
      msg.postmix());
}

}  // namespace zortest
