#include "equations/graph_labels.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace quorix {
namespace {

/// Strokes parted by blanks; each point is two hexadecimal digits, x and y in half units.
struct Glyph {
    char character;
    std::string_view strokes;
    double advance;
};
constexpr double kAdvance = 5.5;
constexpr auto kGlyphs = std::to_array<Glyph>({
    {'0', "2060828A6C2C0A0220", kAdvance},
    {'1', "12505C", kAdvance},
    {'2', "02206082840C8C", kAdvance},
    {'3', "00804565878A6C2C0A", kAdvance},
    {'4', "6C600888", kAdvance},
    {'5', "8010062464868A6C2C0A", kAdvance},
    {'6', "7032060A2C6C8A87652507", kAdvance},
    {'7', "00803C", kAdvance},
    {'8', "206082836525030220 25070A2C6C8A8765", kAdvance},
    {'9', "1C5A8682602002052767 6785", kAdvance},
    {'-', "1676", kAdvance},
    {'.', "1C1C", 2.5},
});
constexpr double kHeight = 6.0;
constexpr double kMargin = 5.0;
// Distances between labels in logical units.
constexpr double kLeastDistanceX = 44;
constexpr double kLeastDistanceY = 24;

double HalfUnits(char digit) {
    return (digit <= '9' ? digit - '0' : digit - 'A' + 10) * 0.5;
}

void AppendStroke(std::string_view points, GraphPoint at, double scale, std::vector<GraphRun>& runs) {
    GraphRun run;
    for (std::size_t i = 0; i + 1 < points.size(); i += 2) {
        run.push_back({at.x + HalfUnits(points[i]) * scale, at.y + HalfUnits(points[i + 1]) * scale});
    }
    runs.push_back(std::move(run));
}

double AppendGlyph(char character, GraphPoint at, double scale, std::vector<GraphRun>& runs) {
    const auto* glyph = std::ranges::find(kGlyphs, character, &Glyph::character);
    if (glyph == kGlyphs.end()) return kAdvance * scale;
    std::string_view rest = glyph->strokes;
    while (!rest.empty()) {
        const std::size_t end = std::min(rest.find(' '), rest.size());
        AppendStroke(rest.substr(0, end), at, scale, runs);
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    return glyph->advance * scale;
}

double WidthOf(std::string_view text, double scale) {
    std::vector<GraphRun> unused;
    double width = 0.0;
    for (const char c : text) width += AppendGlyph(c, {}, scale, unused);
    return width;
}

// The least of 1, 2, 5, 10, 20, ... units that is `distance` pixels wide.
std::int64_t UnitsApart(double distance, std::int32_t pixelsPerUnit) {
    std::int64_t units = 1;
    for (int i = 0; static_cast<double>(units * pixelsPerUnit) < distance; ++i) {
        units = i % 3 == 1 ? units / 2 * 5 : units * 2;
    }
    return units;
}

// Calls add(value, pixel) for the multiples of `units` on [least, end), value counting along the pixels.
template <class Add>
void ForEachLabel(std::int32_t origin, std::int32_t pixelsPerUnit, std::int64_t units, double least,
                  double end, const Add& add) {
    const double spacing = static_cast<double>(units * pixelsPerUnit);
    for (double index = std::ceil((least - origin) / spacing); origin + index * spacing < end; ++index) {
        if (index != 0) add(index * static_cast<double>(units), origin + index * spacing);
    }
}

}  // namespace

std::vector<GraphRun> TextStrokes(std::string_view text, GraphPoint at, double scale) {
    std::vector<GraphRun> runs;
    for (const char c : text) at.x += AppendGlyph(c, at, scale, runs);
    return runs;
}

std::vector<GraphRun> GraphLabels(const GraphView& view) {
    std::vector<GraphRun> runs;
    const double scale = view.screenScale;
    const auto append = [&](double value, const auto& placeFor) {
        const std::string text = GraphFieldText(value);
        const double width = WidthOf(text, scale);
        const GraphPoint place = placeFor(width);
        // Half a number would be another number.
        if (place.x < 0 || place.x + width > view.surfaceWidth) return;
        const std::vector<GraphRun> strokes = TextStrokes(text, place, scale);
        runs.insert(runs.end(), strokes.begin(), strokes.end());
    };
    const double bottom = view.surfaceHeight - (kMargin + kHeight) * scale;
    ForEachLabel(view.AxisX(), view.pixelsPerUnitX, UnitsApart(kLeastDistanceX * scale, view.pixelsPerUnitX),
                 0, view.surfaceWidth, [&](double value, double x) {
                     append(value, [&](double width) { return GraphPoint{x - width / 2, bottom}; });
                 });
    // The lowest place belongs to the labels along the bottom.
    ForEachLabel(
        view.AxisY(), view.pixelsPerUnitY, UnitsApart(kLeastDistanceY * scale, view.pixelsPerUnitY),
        kHeight * scale, bottom - kHeight * scale, [&](double value, double y) {
            append(-value, [&](double) { return GraphPoint{kMargin * scale, y - kHeight / 2 * scale}; });
        });
    return runs;
}

}  // namespace quorix
