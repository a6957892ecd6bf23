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

struct Options {
  std::string file;
  std::string premix;
  std::string postmix;
};

void requireImage(const Options& options) {
  if (options.premix.empty() && options.postmix.empty()) {
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

int pack(const Options& options) {
  requireImage(options);
  const auto configuration = loadConfiguration(options.file);
  if (isRefused(configuration)) return kFound;
  const auto engine = toEngine(configuration.onyx);
  // Both are written before either takes the place of an old one.
  std::list<AtomicFile> files;
  if (!options.premix.empty()) files.emplace_back(options.premix, imageOf(engine->premix));
  if (!options.postmix.empty()) files.emplace_back(options.postmix, imageOf(engine->postmix));
  for (auto& file : files) file.commit();
  return kClean;
}

int unpack(const Options& options) {
  requireImage(options);
  com::zor::onyx::fxp_std::Onyx configuration;
  configuration.set_version(configuration.version());  // required: the default, made explicit
  if (!options.premix.empty()) {
    addPremix(*readImage<_zorOnyxPremixApiCtrlEx>(options.premix), &configuration);
  }
  if (!options.postmix.empty()) {
    addPostmix(*readImage<_zorOnyxPostmixApiCtrlCoeffsEx>(options.postmix), &configuration);
  }
  writeFile(options.file, configuration.SerializeAsString());
  return kClean;
}

}  // namespace

void addPack(CLI::App* program, int* status) {
  const auto options = std::make_shared<Options>();
  auto* command = program->add_subcommand("pack", "Write the engine struct images, from zero");
  command->add_option("FILE", options->file, "Configuration")->required();
  command->add_option("--premix", options->premix, "Image of _zorOnyxPremixApiCtrlEx");
  command->add_option("--postmix", options->postmix, "Image of _zorOnyxPostmixApiCtrlCoeffsEx");
  command->footer("Example:\n  zorcs pack speaker.binpb --premix pre.img --postmix post.img");
  command->callback([options, status] { *status = pack(*options); });
}

void addUnpack(CLI::App* program, int* status) {
  const auto options = std::make_shared<Options>();
  auto* command = program->add_subcommand("unpack", "Make a message of a device's struct images");
  command->add_option("--premix", options->premix, "Image of _zorOnyxPremixApiCtrlEx");
  command->add_option("--postmix", options->postmix, "Image of _zorOnyxPostmixApiCtrlCoeffsEx");
  command->add_option("-o,--output", options->file, "Binary message")->required();
  command->footer("Example:\n  zorcs unpack --premix pre.img --postmix post.img -o device.binpb");
  command->callback([options, status] { *status = unpack(*options); });
}
