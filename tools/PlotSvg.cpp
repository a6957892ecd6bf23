#include "PlotSvg.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "PlotScale.h"
#include "SvgWriter.h"

namespace {

using com::zor::onyx::fxp_std::Onyx;
using com::zor::onyx::fxp_std::Postmix;
using com::zor::tech::Geq10b;
using Words = google::protobuf::RepeatedField<int32_t>;

constexpr double kPageWidth = 1100;
constexpr double kMargin = 28;
constexpr double kGap = 20;
constexpr double kHeaderHeight = 88;
constexpr double kBandsHeight = 272;
constexpr double kListHeight = 362;
constexpr double kNoticeHeight = 96;
constexpr double kFooterLineHeight = 19;

constexpr double kTickDistance = 22;
constexpr double kFloorDb = -80;

// Blue and vermilion stay apart for every kind of colour vision (M. Okabe, K. Ito, "Color Universal
// Design", 2008).
constexpr std::string_view kWordColor = "#0072b2";
constexpr std::string_view kEnergyColor = "#d55e00";
constexpr std::string_view kInkColor = "#1f2933";
constexpr std::string_view kMutedColor = "#5b6770";
constexpr std::string_view kZeroColor = "#8a949c";
constexpr std::string_view kGridColor = "#e6eaed";
constexpr std::string_view kFrameColor = "#d5dbe0";

constexpr std::string_view kEllipsis = "\u2026";

struct Box {
  double x, y, width, height;

  double right() const { return x + width; }
  double bottom() const { return y + height; }
};

// The visible part of a text that may be longer than its line.
std::string shortened(const std::string& text, int maxCharacters) {
  std::string result = wellFormed(text);
  int characters = 0;
  for (std::size_t i = 0; i < result.size(); ++i) {
    const bool begins = (static_cast<unsigned char>(result[i]) & 0xC0U) != 0x80;
    if (begins && ++characters > maxCharacters) return result.substr(0, i).append(kEllipsis);
  }
  return result;
}

// A panel with a long list: one per field, declared in listsOf().
struct List {
  std::string name;
  const Words* words;
};

std::vector<List> listsOf(const Postmix& postmix) {
  return {{"room_multi_ch", &postmix.room_multi_ch()},
          {"room_stereo_front", &postmix.room_stereo_front()},
          {"room_stereo_wide", &postmix.room_stereo_wide()},
          {"hpeq_coeffs", &postmix.hpeq_coeffs()},
          {"hpf_coef.coeffs", &postmix.hpf_coef().coeffs()},
          {"xeq_coef.coeffs", &postmix.xeq_coef().coeffs()}};
}

std::array<int32_t, 10> bandGains(const Geq10b& geq) {
  return {geq.band0_gain(), geq.band1_gain(), geq.band2_gain(), geq.band3_gain(), geq.band4_gain(),
          geq.band5_gain(), geq.band6_gain(), geq.band7_gain(), geq.band8_gain(), geq.band9_gain()};
}

std::string summary(const Geq10b& geq) {
  std::string text = "ten bands, lowest first; enable " + grouped(geq.enable());
  if (geq.has_input_gain()) text += ", input_gain " + grouped(geq.input_gain());
  return text;
}

std::string summary(const Words& words) {
  const auto [lowest, highest] = std::minmax_element(words.begin(), words.end());
  if (words.size() == 1) return "1 word: " + grouped(*lowest);
  return grouped(words.size()) + " words, lowest " + grouped(*lowest) + ", highest " +
         grouped(*highest);
}

class Page {
 public:
  Page(const Onyx& configuration, const std::string& title);

  std::string draw();

 private:
  bool hasBands() const { return configuration_.postmix().has_geq10b(); }
  double height() const;
  std::string description() const;
  std::vector<std::string> footer() const;

  void drawHeader();
  void drawNotice();
  void drawBands(const Box& box);
  void drawLists(double top);
  void drawList(const List& list, const Box& box);
  void drawFooter();

  void openPanel(const std::string& name, const std::string& summaryText, const Box& box);
  Scale drawWordAxis(const Extent& extent, const Box& box, double inset);
  void drawBand(std::size_t band, int32_t gain, double center, const Scale& y);
  void drawIndexAxis(int count, const Box& waveform, const Box& energy);
  void drawEnergyAxis(const Box& box, const Scale& y);
  void drawStems(const std::vector<Column>& columns, const Box& box, const Scale& y);
  void drawEnvelope(const std::vector<Column>& columns, const Box& box, const Scale& y);
  void drawEnergy(const std::vector<Column>& columns, const Box& box, const Scale& y);

  void drawLine(double x1, double y1, double x2, double y2, std::string_view color);
  void drawText(std::string_view text, double x, double y, double size,
                std::string_view color = kMutedColor, std::string_view anchor = "start",
                std::string_view weight = "normal");

  const Onyx& configuration_;
  const std::string title_;
  std::vector<List> present_;
  std::vector<std::string> absent_;
  SvgWriter svg_;
};

Page::Page(const Onyx& configuration, const std::string& title)
    : configuration_(configuration), title_(title.empty() ? "Configuration" : title) {
  if (!hasBands()) absent_.emplace_back("geq10b");
  for (const List& list : listsOf(configuration.postmix())) {
    if (list.words->empty()) {
      absent_.push_back(list.name);
    } else {
      present_.push_back(list);
    }
  }
}

std::string Page::draw() {
  svg_.open("svg", {{"xmlns", "http://www.w3.org/2000/svg"},
                    {"role", "img"},
                    {"width", kPageWidth},
                    {"height", height()},
                    {"viewBox", "0 0 " + svgNumber(kPageWidth) + " " + svgNumber(height())},
                    {"font-family", "system-ui, 'Segoe UI', 'Helvetica Neue', Arial, sans-serif"},
                    {"style", "font-variant-numeric: tabular-nums"}});
  svg_.text("title", title_);
  svg_.text("desc", description());
  svg_.leaf("rect", {{"width", "100%"}, {"height", "100%"}, {"fill", "#ffffff"}});
  drawHeader();
  if (!hasBands() && present_.empty()) drawNotice();
  if (hasBands()) drawBands({kMargin, kHeaderHeight, kPageWidth - 2 * kMargin, kBandsHeight});
  drawLists(kHeaderHeight + (hasBands() ? kBandsHeight + kGap : 0));
  drawFooter();
  svg_.close();
  return svg_.document();
}

double Page::height() const {
  double panels = hasBands() ? kBandsHeight + kGap : 0;
  const std::size_t rows = (present_.size() + 1) / 2;
  panels += static_cast<double>(rows) * (kListHeight + kGap);
  if (panels == 0) panels = kNoticeHeight + kGap;
  return kHeaderHeight + panels + static_cast<double>(footer().size()) * kFooterLineHeight +
         kMargin / 2;
}

std::string Page::description() const {
  std::string text;
  if (hasBands()) {
    text += "Graphic equalizer, band 0 to band 9:";
    for (const int32_t gain : bandGains(configuration_.postmix().geq10b())) {
      text += " " + grouped(gain);
    }
    text += ". ";
  }
  for (const List& list : present_) text += list.name + ": " + summary(*list.words) + ". ";
  return text + footer()[0];
}

std::vector<std::string> Page::footer() const {
  std::string names;
  for (const std::string& name : absent_) names += (names.empty() ? "" : ", ") + name;
  std::vector<std::string> lines = {absent_.empty() ? "Absent: nothing."
                                                    : "Absent: " + names + "."};
  if (!present_.empty()) {
    lines.emplace_back(
        "Words are the engine's fixed-point values. Where words outnumber the pixels, each pixel "
        "column spans its lowest to its highest word.");
    lines.emplace_back(
        "Energy left: the sum of the squared words from an index to the end, relative to the whole "
        "list. A curve ends where it falls below " +
        grouped(static_cast<int64_t>(kFloorDb)) + " dB.");
  }
  return lines;
}

void Page::drawHeader() {
  drawText(shortened(title_, 60), kMargin, 44, 23, kInkColor, "start", "600");
  std::string subtitle = "postmix: graphic equalizer, room tables and filter coefficients";
  if (configuration_.has_version()) {
    subtitle = "version " + shortened(configuration_.version(), 40) + "  \u00b7  " + subtitle;
  }
  drawText(subtitle, kMargin, 67, 13);
}

void Page::drawNotice() {
  const Box box = {kMargin, kHeaderHeight, kPageWidth - 2 * kMargin, kNoticeHeight};
  openPanel("", "", box);
  drawText("There is nothing to draw in this configuration.", box.x + box.width / 2,
           box.y + box.height / 2 + 5, 15, kMutedColor, "middle");
  svg_.close();
}

void Page::drawBands(const Box& box) {
  const Geq10b& geq = configuration_.postmix().geq10b();
  openPanel("geq10b", summary(geq), box);
  const auto gains = bandGains(geq);
  const Box plot = {box.x + 66, box.y + 78, box.width - 66 - 18, box.height - 78 - 36};
  const Scale y = drawWordAxis(extentOf(gains), plot, 20);
  drawText("gain", plot.x, plot.y - 8, 11);
  for (std::size_t i = 0; i < gains.size(); ++i) {
    const double slot = plot.width / static_cast<double>(gains.size());
    drawBand(i, gains[i], plot.x + (static_cast<double>(i) + 0.5) * slot, y);
    drawText("band " + std::to_string(i), plot.x + (static_cast<double>(i) + 0.5) * slot,
             plot.bottom() + 20, 12, kMutedColor, "middle");
  }
  svg_.close();
}

void Page::drawBand(std::size_t band, int32_t gain, double center, const Scale& y) {
  constexpr double kWidth = 44;
  svg_.open("g", {});
  svg_.text("title", "band" + std::to_string(band) + "_gain " + grouped(gain));
  svg_.leaf("rect", {{"x", center - kWidth / 2},
                     {"y", std::min(y(gain), y(0))},
                     {"width", kWidth},
                     {"height", std::abs(y(gain) - y(0))},
                     {"fill", kWordColor}});
  drawText(grouped(gain), center, y(gain) + (gain < 0 ? 15 : -6), 12, kInkColor, "middle", "600");
  svg_.close();
}

void Page::drawLists(double top) {
  const double half = (kPageWidth - 2 * kMargin - kGap) / 2;
  for (std::size_t i = 0; i < present_.size(); ++i) {
    const std::size_t row = i / 2;
    const bool right = i % 2 == 1;
    const bool alone = !right && i + 1 == present_.size();
    drawList(present_[i], {kMargin + (right ? half + kGap : 0),
                           top + static_cast<double>(row) * (kListHeight + kGap),
                           alone ? kPageWidth - 2 * kMargin : half, kListHeight});
  }
}

void Page::drawList(const List& list, const Box& box) {
  openPanel(list.name, summary(*list.words), box);
  const Box waveform = {box.x + 66, box.y + 84, box.width - 66 - 18, 126};
  const Box energy = {waveform.x, waveform.bottom() + 32, waveform.width, 78};
  const auto columns = columnsOf(*list.words, static_cast<int>(waveform.width));

  drawIndexAxis(list.words->size(), waveform, energy);
  const Scale wordScale = drawWordAxis(extentOf(*list.words), waveform, 5);
  drawText("word", waveform.x, waveform.y - 8, 11);
  // Stems show that nothing lies between two words, as long as there is room between them.
  if (static_cast<double>(columns.size()) * 3 <= waveform.width) {
    drawStems(columns, waveform, wordScale);
  } else {
    drawEnvelope(columns, waveform, wordScale);
  }

  const Scale energyScale = {kFloorDb, 0, energy.bottom(), energy.y};
  drawEnergyAxis(energy, energyScale);
  drawEnergy(columns, energy, energyScale);
  svg_.close();
}

void Page::drawFooter() {
  const auto lines = footer();
  double baseline = height() - static_cast<double>(lines.size()) * kFooterLineHeight;
  for (const std::string& line : lines) {
    drawText(line, kMargin, baseline, 12);
    baseline += kFooterLineHeight;
  }
}

void Page::openPanel(const std::string& name, const std::string& summaryText, const Box& box) {
  svg_.open("g", {});
  if (!name.empty()) svg_.text("title", name);
  svg_.leaf("rect", {{"x", box.x + 0.5},
                     {"y", box.y + 0.5},
                     {"width", box.width - 1},
                     {"height", box.height - 1},
                     {"rx", 6.0},
                     {"fill", "none"},
                     {"stroke", kFrameColor}});
  drawText(name, box.x + 18, box.y + 29, 15, kInkColor, "start", "600");
  drawText(summaryText, box.x + 18, box.y + 48, 12);
}

// inset is the room that the plot needs beyond its extent, for marks and their labels.
Scale Page::drawWordAxis(const Extent& extent, const Box& box, double inset) {
  const Scale y = {static_cast<double>(extent.plotLow()), static_cast<double>(extent.plotHigh()),
                   box.bottom() - (extent.plotLow() < 0 ? inset : 0),
                   box.y + (extent.plotHigh() > 0 ? inset : 0)};
  const Ticks ticks = ticksWithin(extent.plotLow(), extent.plotHigh(),
                                  static_cast<int64_t>(box.height / kTickDistance));
  for (int64_t tick = ticks.first; tick <= ticks.last; tick += ticks.step) {
    const double pixel = y(static_cast<double>(tick));
    drawLine(box.x, pixel, box.right(), pixel, tick == 0 ? kZeroColor : kGridColor);
    drawText(tickLabel(tick, ticks), box.x - 8, pixel + 4, 11, kMutedColor, "end");
  }
  return y;
}

void Page::drawIndexAxis(int count, const Box& waveform, const Box& energy) {
  const Scale x = {0, static_cast<double>(count), waveform.x, waveform.right()};
  const Ticks ticks = ticksWithin(0, count - 1, static_cast<int64_t>(waveform.width / 70));
  for (int64_t tick = ticks.first; tick <= ticks.last; tick += ticks.step) {
    const double pixel = x(static_cast<double>(tick) + 0.5);
    drawLine(pixel, waveform.y, pixel, waveform.bottom(), kGridColor);
    drawLine(pixel, energy.y, pixel, energy.bottom() + 4, kGridColor);
    drawText(grouped(tick), pixel, energy.bottom() + 17, 11, kMutedColor, "middle");
  }
  drawText("index", energy.right(), energy.bottom() + 31, 11, kMutedColor, "end");
}

void Page::drawEnergyAxis(const Box& box, const Scale& y) {
  drawText("energy left, dB", box.x, box.y - 8, 11);
  for (const int tick : {0, -20, -40, -60, -80}) {
    drawLine(box.x, y(tick), box.right(), y(tick), tick == -80 ? kZeroColor : kGridColor);
    if (tick % 40 == 0) drawText(grouped(tick), box.x - 8, y(tick) + 4, 11, kMutedColor, "end");
  }
}

void Page::drawStems(const std::vector<Column>& columns, const Box& box, const Scale& y) {
  const double pitch = box.width / static_cast<double>(columns.size());
  SvgPath stems;
  SvgPath heads;
  double x = box.x + pitch / 2;
  for (const Column& column : columns) {
    stems.moveTo(x, y(0));
    stems.verticalTo(y(column.highest));
    heads.moveTo(x, y(column.highest));
    heads.horizontalTo(x);
    x += pitch;
  }
  svg_.leaf("path", {{"d", stems.data()}, {"fill", "none"}, {"stroke", kWordColor}});
  // A line without length and with round ends is a dot.
  svg_.leaf("path", {{"d", heads.data()},
                     {"fill", "none"},
                     {"stroke", kWordColor},
                     {"stroke-width", std::clamp(pitch * 0.6, 2.2, 6.0)},
                     {"stroke-linecap", "round"}});
}

void Page::drawEnvelope(const std::vector<Column>& columns, const Box& box, const Scale& y) {
  const double pitch = box.width / static_cast<double>(columns.size());
  SvgPath line;
  double x = box.x + pitch / 2;
  for (const Column& column : columns) {
    if (&column == &columns.front()) {
      line.moveTo(x, y(column.lowest));
    } else {
      line.lineTo(x, y(column.lowest));
    }
    if (column.highest != column.lowest) line.verticalTo(y(column.highest));
    x += pitch;
  }
  svg_.leaf(
      "path",
      {{"d", line.data()}, {"fill", "none"}, {"stroke", kWordColor}, {"stroke-linejoin", "round"}});
}

void Page::drawEnergy(const std::vector<Column>& columns, const Box& box, const Scale& y) {
  const double total = columns.front().energyLeft;
  if (total == 0) {
    drawText("none: every word is 0", box.x + box.width / 2, box.y + box.height / 2 + 4, 12,
             kMutedColor, "middle");
    return;
  }
  const double pitch = box.width / static_cast<double>(columns.size());
  SvgPath curve;
  curve.moveTo(box.x, y(0));
  double x = box.x;
  for (const Column& column : columns) {
    const double db = 10 * std::log10(column.energyLeft / total);
    curve.verticalTo(y(std::max(db, kFloorDb)));
    if (db <= kFloorDb) break;
    x += pitch;
    curve.horizontalTo(x);
  }
  svg_.leaf("path", {{"d", curve.data() + "V" + svgNumber(y(kFloorDb)) + "H" + svgNumber(box.x)},
                     {"fill", kEnergyColor},
                     {"fill-opacity", 0.12}});
  svg_.leaf("path", {{"d", curve.data()},
                     {"fill", "none"},
                     {"stroke", kEnergyColor},
                     {"stroke-width", 1.5},
                     {"stroke-linejoin", "round"}});
}

void Page::drawLine(double x1, double y1, double x2, double y2, std::string_view color) {
  // In the middle of a pixel a line is one pixel wide, on its edge two.
  const auto crisp = [](double pixel) { return std::floor(pixel) + 0.5; };
  const bool upright = x1 == x2;
  svg_.leaf("line", {{"x1", upright ? crisp(x1) : x1},
                     {"y1", upright ? y1 : crisp(y1)},
                     {"x2", upright ? crisp(x2) : x2},
                     {"y2", upright ? y2 : crisp(y2)},
                     {"stroke", color}});
}

void Page::drawText(std::string_view text, double x, double y, double size, std::string_view color,
                    std::string_view anchor, std::string_view weight) {
  svg_.text("text", text,
            {{"x", x},
             {"y", y},
             {"font-size", size},
             {"fill", color},
             {"text-anchor", anchor},
             {"font-weight", weight}});
}

}  // namespace

std::string plotSvg(const Onyx& configuration, const std::string& title) {
  return Page(configuration, title).draw();
}
