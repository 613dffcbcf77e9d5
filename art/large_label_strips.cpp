#include <optional>

#include "frontends/key_labels.h"
#include "label_layout.h"
#include "signs.h"
#include "strips.h"

namespace quorix::art {

namespace {

constexpr int kColumns = 5;
constexpr int kKeys = 20;
constexpr double kLabelWidth = 41;
constexpr double kMiddle = kLabelWidth / 2;

/// Sizes of one set of pad labels, in units.
struct PadSizes {
    double height;
    double middle;  ///< Where signs and digits are centred.
    double digitEm, digitBaseline;
    double letterEm, letterBaseline;  ///< A letter that stands alone.
    double underEm, underBaseline;    ///< A letter under an orange label.
    double orangeEm, orangeBaseline;
    double sign;         ///< Length of a level bar.
    double underMiddle;  ///< Middle of a sign under an orange label.
};

constexpr PadSizes kPortrait = {34, 16.5, 21, 24, 18, 23, 16, 26.4, 9, 9.5, 14, 19.5};
constexpr PadSizes kSquare = {22, 10.5, 16, 16, 14, 15.4, 11, 18.9, 8, 7.5, 11, 15.5};

struct OrangePair {
    int code;
    int orange;
};
constexpr OrangePair kOrangeKeys[] = {{9, 20}, {14, 21}, {19, 22}};

std::optional<int> OrangeOf(int code) {
    for (const OrangePair& pair : kOrangeKeys) {
        if (pair.code == code) {
            return pair.orange;
        }
    }
    return std::nullopt;
}

const char* StyleOf(int code) {
    if (code == 4) {
        return "label.clear";
    }
    return code % kColumns < 3 ? "label.digit" : "label.operator";
}

void LayKey(Picture& picture, const Tools& tools, const PadSizes& sizes, int code) {
    const QPointF origin(code % kColumns * kLabelWidth, code / kColumns * sizes.height);
    const QColor color = tools.palette.Color(StyleOf(code));
    const std::u16string_view label = LabelOfKey(code);
    const std::optional<int> orange = OrangeOf(code);
    const auto lay = [&](std::u16string_view markup, double em, double baseline, const QColor& ink) {
        LayLabel(picture, tools.typeface, origin,
                 {.markup = markup, .em = em, .baseline = baseline, .centre = kMiddle}, ink);
    };
    if (orange) {
        lay(LabelOfKey(*orange), sizes.orangeEm, sizes.orangeBaseline, tools.palette.Color("label.orange"));
    }
    if (IsDrawnSign(label.front())) {
        const double middle = orange ? sizes.underMiddle : sizes.middle;
        LaySign(picture, origin + QPointF(kMiddle, middle), sizes.sign, color, label.front());
    } else if (orange) {
        lay(label, sizes.underEm, sizes.underBaseline, color);
    } else if (label.front() >= u'0' && label.front() <= u'9') {
        lay(label, sizes.digitEm, sizes.digitBaseline, color);
    } else {
        lay(label, sizes.letterEm, sizes.letterBaseline, color);
    }
}

void DrawPad(Picture& picture, const Tools& tools, const PadSizes& sizes) {
    for (int code = 0; code < kKeys; ++code) {
        LayKey(picture, tools, sizes, code);
    }
}

}  // namespace

void DrawLargeFonts(Picture& picture, const Tools& tools) {
    DrawPad(picture, tools, kPortrait);
}
void DrawLargeFontsSquare(Picture& picture, const Tools& tools) {
    DrawPad(picture, tools, kSquare);
}

}  // namespace quorix::art
