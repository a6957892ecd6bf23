// pack and unpack: between a configuration and the bytes of the engine structs.
#include <cstring>
#include <list>
#include <memory>
#include <string>

#include "Commands.h"
#include "Configuration.h"
#include "Engine.h"
#include "Files.h"
#include "Trouble.h"

namespace {

void requireImage(const ImageNames& images) {
  if (images.premix.empty() && images.postmix.empty()) {
    throw Trouble(kCannotRun, "--premix or --postmix is required");
  }
}

template <class Struct>
std::string imageOf(const Struct& s) {
  return {reinterpret_cast<const char*>(&s), sizeof(s)};
}

template <class Struct>
std::unique_ptr<Struct> readImage(const std::string& path) {
  const std::string bytes = readFile(path);
  if (bytes.size() != sizeof(Struct)) {
    throw Trouble(kCannotRun, path + ": has " + std::to_string(bytes.size()) +
                                  " bytes, the struct has " + std::to_string(sizeof(Struct)));
  }
  auto s = std::make_unique<Struct>();
  std::memcpy(s.get(), bytes.data(), sizeof(Struct));
  return s;
}

}  // namespace

int pack(const PackOptions& options) {
  const auto& [premix, postmix] = options.images;
  requireImage(options.images);
  const auto configuration = loadConfiguration(options.file);
  if (isRefused(configuration)) return kFound;
  const auto engine = toEngine(configuration.onyx);
  // Both are written before either takes the place of an old one.
  std::list<AtomicFile> files;
  if (!premix.empty()) files.emplace_back(premix, imageOf(engine->premix));
  if (!postmix.empty()) files.emplace_back(postmix, imageOf(engine->postmix));
  for (auto& file : files) file.commit();
  return kClean;
}

int unpack(const UnpackOptions& options) {
  const auto& [premix, postmix] = options.images;
  requireImage(options.images);
  com::zor::onyx::fxp_std::Onyx configuration;
  configuration.set_version(configuration.version());  // required: the default, made explicit
  if (!premix.empty()) {
    addPremix(*readImage<_zorOnyxPremixApiCtrlEx>(premix), &configuration);
  }
  if (!postmix.empty()) {
    addPostmix(*readImage<_zorOnyxPostmixApiCtrlCoeffsEx>(postmix), &configuration);
  }
  writeFile(options.output, configuration.SerializeAsString());
  return kClean;
}
