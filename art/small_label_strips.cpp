#include "frontends/key_labels.h"
#include "icons.h"
#include "key_glyphs.h"
#include "keys.h"
#include "label_layout.h"
#include "page_keys.h"
#include "strips.h"

namespace quorix::art {

namespace {

constexpr double kLabelWidth = 33;
constexpr int kPageCells = 12;
constexpr double kMiddle = kLabelWidth / 2;
constexpr double kMaxWidth = 32;
constexpr char16_t kCaretMark = u'\u25BE';

// Text sizes and base lines of the upper panel.
constexpr double kPlainEm = 12;
constexpr double kOnlyBaseline = 16.5;
constexpr double kPlainBaseline = 20.9;
constexpr double kOrangeEm = 9;
constexpr double kOrangeBaseline = 7.9;

// The caret behind a word.
constexpr QPointF kWordCaretAt(16.5, 4.75);
constexpr double kWordWithCaretMiddle = 13.5;

constexpr double kIconGrid = 24;

const char* StyleOfCell(int cell) {
    constexpr const char* kFirstCells[] = {"chooser", "shift", "menu"};
    return cell < 3 ? kFirstCells[cell] : "function";
}

QPointF OriginOf(int cell) {
    return {cell * kLabelWidth, 0};
}

void LayShift(Picture& picture, const Tools& tools) {
    LayLabel(picture, tools.typeface, OriginOf(1),
             {.markup = LabelOfKey(23),
              .em = 10,
              .baseline = 16,
              .centre = kMiddle,
              .face = Face::kBold,
              .spacing = 0.2},
             tools.palette.Color("label.shift"));
}

void LayCell(Picture& picture, const Tools& tools, int category, int cell) {
    std::u16string_view plain = LabelOfCell(category, cell, false);
    const std::u16string_view orange = LabelOfCell(category, cell, true);
    const QPointF origin = OriginOf(cell);
    const QColor color = tools.palette.Color(QString("label.") + StyleOfCell(cell));
    double centre = kMiddle;
    if (plain.ends_with(kCaretMark)) {
        plain.remove_suffix(1);
        centre = kWordWithCaretMiddle;
        LayIcon(picture, origin + kWordCaretAt, kCaret, kIconGrid, kIconGrid, {color, color});
    }
    const bool two = !orange.empty();
    LayLabel(picture, tools.typeface, origin,
             {.markup = plain,
              .em = kPlainEm,
              .baseline = two ? kPlainBaseline : kOnlyBaseline,
              .centre = centre,
              .maxWidth = kMaxWidth},
             color);
    if (two) {
        LayLabel(picture, tools.typeface, origin,
                 {.markup = orange,
                  .em = kOrangeEm,
                  .baseline = kOrangeBaseline,
                  .centre = kMiddle,
                  .maxWidth = kMaxWidth},
                 tools.palette.Color("label.orange"));
    }
}

}  // namespace

void DrawSmallFonts(Picture& picture, const Tools& tools) {
    LayChooser(picture, tools, OriginOf(0), 0);
    LayShift(picture, tools);
}

void DrawChooserLabels(Picture& picture, const Tools& tools) {
    constexpr int kCategories = 16;
    for (int category = 0; category < kCategories; ++category) {
        LayChooser(picture, tools, OriginOf(category), category);
    }
}

template <int category>
void DrawSmallFontsPage(Picture& picture, const Tools& tools) {
    LayChooser(picture, tools, OriginOf(0), category);
    if (OwnLabelOfCell(category, 1, false).empty()) {
        LayShift(picture, tools);
    } else {
        LayCell(picture, tools, category, 1);
    }
    for (int cell = 2; cell < kPageCells; ++cell) {
        LayCell(picture, tools, category, cell);
    }
}

template void DrawSmallFontsPage<0>(Picture&, const Tools&);
template void DrawSmallFontsPage<1>(Picture&, const Tools&);
template void DrawSmallFontsPage<2>(Picture&, const Tools&);
template void DrawSmallFontsPage<3>(Picture&, const Tools&);
template void DrawSmallFontsPage<4>(Picture&, const Tools&);
template void DrawSmallFontsPage<5>(Picture&, const Tools&);

namespace {

constexpr IconStroke kOpenSign[] = {{Ink::kMain, 1.5, "M13.4 6.2 Q9.6 12.4 13.4 18.6"}};
constexpr IconStroke kCloseSign[] = {{Ink::kMain, 1.5, "M10.6 6.2 Q14.4 12.4 10.6 18.6"}};

struct DrawnSign {
    std::u16string_view label;
    std::span<const IconStroke> icon;
};

constexpr DrawnSign kDrawnSigns[] = {
    {u"(", kOpenSign},      {u")", kCloseSign},       {kDeleteMark, kDeleteSign},
    {kLeftMark, kLeftSign}, {kRightMark, kRightSign},
};

}  // namespace

void DrawSmallFontsGeneral(Picture& picture, const Tools& tools) {
    const QColor color = tools.palette.Color("label.function");
    for (int i = 0; i < 6; ++i) {
        const std::u16string_view label = LabelOfCell(0, kPageCells + i, false);
        const QPointF origin = OriginOf(i);
        const auto* sign = std::find_if(std::begin(kDrawnSigns), std::end(kDrawnSigns),
                                        [&](const DrawnSign& candidate) { return candidate.label == label; });
        if (sign != std::end(kDrawnSigns)) {
            LayIcon(picture, origin + QPointF((kLabelWidth - kIconGrid) / 2, 0), sign->icon, kIconGrid,
                    kIconGrid, {color, color});
        } else {
            LayLabel(picture, tools.typeface, origin,
                     {.markup = label, .em = 18, .baseline = 15.5, .centre = kMiddle}, color);
        }
    }
}

}  // namespace quorix::art
