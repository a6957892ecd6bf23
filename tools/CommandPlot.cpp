#include <memory>
#include <string>

#include "Commands.h"
#include "Configuration.h"
#include "Files.h"
#include "PlotSvg.h"
#include "Trouble.h"

namespace {

struct Options {
  std::string file;
  std::string output;
};

int plot(const Options& options) {
  const auto configuration = loadConfiguration(options.file);
  writeFile(options.output, plotSvg(configuration.onyx, configuration.name));
  return kClean;
}

}  // namespace

void addPlot(CLI::App* program, int* status) {
  const auto options = std::make_shared<Options>();
  auto* command = program->add_subcommand("plot", "Draw graphic bands, room tables and filters");
  command->add_option("FILE", options->file, "Configuration")->required();
  command->add_option("-o,--output", options->output, "SVG picture")->required();
  command->footer("Example:\n  zorcs plot headphones.txtpb -o headphones.svg");
  command->callback([options, status] { *status = plot(*options); });
}
