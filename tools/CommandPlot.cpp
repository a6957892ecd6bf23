#include "Commands.h"
#include "Configuration.h"
#include "Files.h"
#include "PlotSvg.h"
#include "Trouble.h"

int plot(const PlotOptions& options) {
  const auto configuration = loadConfiguration(options.file);
  writeFile(options.output, plotSvg(configuration.onyx, configuration.name));
  return kClean;
}
