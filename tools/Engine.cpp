#include "Engine.h"

#include <iostream>

#include "ZorPbPostmix.h"
#include "ZorPbPremix.h"

using com::zor::onyx::fxp_std::Onyx;

bool isRefused(const Configuration& configuration) {
  std::vector<Finding> unsafe;
  for (auto& finding : findingsOf(configuration)) {
    if (finding.severity == ZorPbSeverity::kUnsafe) {
      unsafe.push_back(finding);
    } else if (finding.severity == ZorPbSeverity::kError) {
      std::cerr << "zorcs: " << configuration.name << ": " << finding.text << "\n";
    }
  }
  print(unsafe, configuration.name, false, FindingForm::kLines, std::cout);
  if (!unsafe.empty()) std::cerr << "zorcs: " << configuration.name << ": is not converted\n";
  return !unsafe.empty();
}

std::unique_ptr<Engine> toEngine(const Onyx& configuration) {
  auto engine = std::make_unique<Engine>();
  ZorPbPremix(&configuration.premix()).populateStruct(engine->premix);
  ZorPbPostmix(&configuration.postmix()).populateStruct(engine->postmix);
  return engine;
}

void addPremix(const _zorOnyxPremixApiCtrlEx& premix, Onyx* to) {
  const ZorPbPremix wrapper(premix);
  to->mutable_premix()->CheckTypeAndMergeFrom(*wrapper.msg_);
}

void addPostmix(const _zorOnyxPostmixApiCtrlCoeffsEx& postmix, Onyx* to) {
  const ZorPbPostmix wrapper(postmix);
  to->mutable_postmix()->CheckTypeAndMergeFrom(*wrapper.msg_);
}
