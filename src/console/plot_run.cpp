#include "console/plot_run.h"

#include <array>

#include "engine/text_fold.h"
#include "equations/bmp_file.h"
#include "equations/graph_picture.h"
#include "platform/files.h"
#include "platform/png_writer.h"
#include "platform/utf8.h"

namespace quorix {
namespace {

// The surface of the graph window in portrait on a VGA screen.
constexpr std::int32_t kWidth = 468;
constexpr std::int32_t kHeight = 508;
constexpr std::int32_t kScreenScale = 2;
constexpr ColorRef kBackground = MakeColor(0xFB, 0xFC, 0xFE);
constexpr ColorRef kInk = MakeColor(0x24, 0x30, 0x4A);
constexpr std::array<ColorRef, 3> kColours = {MakeColor(0x0B, 0x5C, 0xAD), MakeColor(0xC2, 0x41, 0x0C),
                                              MakeColor(0x3B, 0x0A, 0x2A)};

using Encoder = std::vector<std::uint8_t> (*)(const DecodedPicture& picture);

Encoder EncoderFor(std::string_view file) {
    struct Row {
        std::u16string_view ending;
        Encoder encode;
    };
    constexpr auto kRows = std::to_array<Row>({{u".png", EncodePng}, {u".bmp", EncodeBmp}});
    const std::u16string name = FromUtf8(file);
    for (const Row& row : kRows) {
        if (name.size() > row.ending.size() &&
            EqualsIgnoringCase(std::u16string_view(name).substr(name.size() - row.ending.size()),
                               row.ending)) {
            return row.encode;
        }
    }
    return nullptr;
}

std::string Message(std::string_view text) {
    return "quorix-calc: " + std::string(text) + "\n";
}

}  // namespace

PlotOutcome RunPlot(const ConsoleSession& session, const ConsoleOptions& options) {
    const Encoder encode = EncoderFor(*options.plotFile);
    if (encode == nullptr) return {false, Message("the name of a plot ends in .png or .bmp")};
    if (options.arguments.empty()) return {false, Message("--plot needs a function of x")};
    SetAngleUnit(options.angleUnit);
    GraphView view;
    view.pixelsPerUnitX = options.plot.unitX;
    view.pixelsPerUnitY = options.plot.unitY;
    GraphSetSurface(view, kWidth, kHeight, kScreenScale);
    GraphSetCentre(view, options.plot.centreX, options.plot.centreY);
    PlotOutcome outcome{true, {}};
    for (std::size_t i = 0; i < options.arguments.size(); ++i) {
        const std::optional<std::u16string> text = session.EngineText(options.arguments[i]);
        const std::size_t before = view.curves.size();
        if (text) GraphAddCurve(view, *text, u"x", kColours[i % kColours.size()]);
        if (view.curves.size() == before || view.curves.back().pointCount == 0) {
            outcome.succeeded = false;
            outcome.messages += Message("no value of \"" + options.arguments[i] + "\" in this view");
        }
    }
    if (!WriteFileAtomically(*options.plotFile, encode(DrawGraphPicture(view, kBackground, kInk)))) {
        return {false, outcome.messages + Message("cannot write " + *options.plotFile)};
    }
    return outcome;
}

}  // namespace quorix
