// Everything that the command line offers stands here, and the library that reads it is included
// here alone.
#include "CommandLine.h"

#include <CLI/CLI.hpp>
#include <exception>
#include <iostream>
#include <memory>
#include <sstream>
#include <string>

#include "Commands.h"
#include "Layout.h"
#include "Trouble.h"

namespace {

void reportTrouble(const std::string& text) {
  std::istringstream lines(text);
  for (std::string line; std::getline(lines, line);) std::cerr << "zorcs: " << line << "\n";
}

// The subcommands of a program: each leaves the exit status of its run in status.
class Subcommands {
 public:
  Subcommands(CLI::App* program, int* status) : program_(program), status_(status) {}

  void addCheck() {
    const auto [command, options] = add("check", "Tell what a conversion would lose or endanger",
                                        "check --strict speaker.txtpb headphones.txtpb", check);
    command->add_option("FILE", options->files, "Configurations")->required();
    command->add_flag(
        "--strict", options->strict,
        "Let every finding count for the exit status, not only unsafe, error and lossy");
    command->add_flag("--json", options->json, "Print one JSON object a finding");
  }

  void addShow() {
    const auto [command, options] = add("show", "Print a configuration, long lists summarised",
                                        "show --full device.binpb > device.txtpb", show);
    command->add_option("FILE", options->file, "Configuration")->required();
    auto* full = command->add_flag("--full", options->full, "Print long lists, too");
    auto* json =
        command->add_flag("--json", options->json, "Print one JSON object, long lists whole");
    auto* dump = command->add_flag("--dump", options->dump, "Print the library's own dump");
    full->excludes(json)->excludes(dump);
    json->excludes(dump);
  }

  void addBuild() {
    const auto [command, options] =
        add("build", "Make the binary message of text or JSON; the findings of check are printed",
            "build speaker.txtpb -o speaker.binpb", build);
    command->add_option("FILE", options->file, "Configuration")->required();
    command->add_option("-o,--output", options->output, "Binary message")->required();
  }

  void addDiff() {
    const auto [command, options] = add("diff", "Compare two configurations, field by field",
                                        "diff speaker.txtpb device.binpb", diff);
    command->add_option("A", options->before, "Configuration")->required();
    command->add_option("B", options->after, "Configuration")->required();
    command->add_flag("--json", options->json, "Print one JSON object a difference");
  }

  void addPack() {
    const auto [command, options] =
        add("pack", "Write the engine struct images, from zero",
            "pack speaker.binpb --premix pre.img --postmix post.img", pack);
    command->add_option("FILE", options->file, "Configuration")->required();
    addImages(command, &options->images);
  }

  void addUnpack() {
    const auto [command, options] =
        add("unpack", "Make a message of a device's struct images",
            "unpack --premix pre.img --postmix post.img -o device.binpb", unpack);
    addImages(command, &options->images);
    command->add_option("-o,--output", options->output, "Binary message")->required();
  }

  void addRoundtrip() {
    const auto [command, options] =
        add("roundtrip", "Convert to the engine structs and back, and tell what changed",
            "roundtrip speaker.txtpb", roundtrip);
    command->add_option("FILE", options->file, "Configuration")->required();
    command->add_flag("--json", options->json, "Print one JSON object a difference");
  }

  void addLayout() {
    const auto [command, options] =
        add("layout", "Print every member of every engine struct, and a hash over them",
            "layout --json | grep room_multi_ch", layout);
    command->add_flag("--json", options->json, "Print one JSON object a member");
  }

  void addPlot() {
    const auto [command, options] = add("plot", "Draw graphic bands, room tables and filters",
                                        "plot headphones.txtpb -o headphones.svg", plot);
    command->add_option("FILE", options->file, "Configuration")->required();
    command->add_option("-o,--output", options->output, "SVG picture")->required();
  }

 private:
  template <class Options>
  struct Subcommand {
    CLI::App* command;
    std::shared_ptr<Options> options;
  };

  template <class Options>
  Subcommand<Options> add(const char* name, const char* summary, const char* example,
                          int (*run)(const Options&)) {
    const auto options = std::make_shared<Options>();
    auto* command = program_->add_subcommand(name, summary);
    command->footer("Example:\n  zorcs " + std::string(example));
    command->callback([run, options, status = status_] { *status = run(*options); });
    return {command, options};
  }

  static void addImages(CLI::App* command, ImageNames* images) {
    command->add_option("--premix", images->premix, "Image of _zorOnyxPremixApiCtrlEx");
    command->add_option("--postmix", images->postmix, "Image of _zorOnyxPostmixApiCtrlCoeffsEx");
  }

  CLI::App* program_;
  int* status_;
};

void describe(CLI::App* program, int* status) {
  program->require_subcommand(1);
  program->set_version_flag(
      "--version", [] { return std::string("zorcs " ZORCS_VERSION "\nlayout ") + layoutHash(); });
  program->footer(
      "FILE is a configuration in protobuf text format (.txtpb), JSON (.json) or binary form\n"
      "(.binpb); of another name, the content tells. - is standard input or output.\n"
      "Exit status: 0 clean, 1 findings or differences, 2 usage or input/output, 3 input that\n"
      "does not parse.");
  Subcommands subcommands(program, status);
  subcommands.addCheck();
  subcommands.addShow();
  subcommands.addBuild();
  subcommands.addDiff();
  subcommands.addPack();
  subcommands.addUnpack();
  subcommands.addRoundtrip();
  subcommands.addLayout();
  subcommands.addPlot();
}

int parseAndRun(int argc, const char* const* argv) {
  int status = kClean;
  CLI::App program("Looks into audio configurations and tells what the engine makes of them",
                   "zorcs");
  describe(&program, &status);
  try {
    program.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    if (error.get_exit_code() == 0) return program.exit(error);  // help, version
    reportTrouble(error.what());
    return kCannotRun;
  }
  return status;
}

}  // namespace

int runCommandLine(int argc, const char* const* argv) {
  try {
    int status = kCannotRun;
    try {
      status = parseAndRun(argc, argv);
    } catch (const Trouble& trouble) {
      std::cout.flush();
      reportTrouble(trouble.what());
      return trouble.status();
    }
    if (!std::cout.flush()) throw Trouble(kCannotRun, "standard output: cannot be written");
    return status;
  } catch (const std::exception& error) {
    reportTrouble(error.what());
    return kCannotRun;
  }
}
