// Whole keys of the category windows: up looks in the left half of a strip, down looks in the right half.
#include "frontends/categories.h"
#include "icons.h"
#include "key_glyphs.h"
#include "keys.h"
#include "label_layout.h"
#include "strips.h"

namespace quorix::art {

namespace {

constexpr KeyFace kEmpty;
constexpr KeyFace Digit(std::u16string_view sign) {
    return {.style = "digit", .label = sign};
}
constexpr KeyFace Key(const char* style, std::span<const IconStroke> icon) {
    return {.style = style, .icon = icon};
}
constexpr KeyFace Chooser(int category) {
    return {.style = "chooser", .chooser = category};
}

constexpr KeyFace kBackspace = Key("function", kDeleteSign);
constexpr KeyFace kLeft = Key("function", kLeftSign);
constexpr KeyFace kRight = Key("function", kRightSign);

// The pads of forms leave their three command cells empty: the command keys are drawn over them.
constexpr int kPadColumns = 6;
constexpr KeyFace kNumberPad[] = {
    kEmpty,      kEmpty,      kEmpty,      kBackspace,  kLeft,       kRight,       //
    Digit(u"1"), Digit(u"2"), Digit(u"3"), Digit(u"4"), Digit(u"5"), Digit(u"6"),  //
    Digit(u"7"), Digit(u"8"), Digit(u"9"), Digit(u"0"), Digit(u"."), Digit(u"\u2212"),
};
constexpr KeyFace Operator(std::u16string_view sign) {
    return {.style = "operator", .label = sign};
}
/// A row that joins the number pad where values are expressions.
constexpr KeyFace kFormulaRow[] = {Operator(u"+"), Operator(u"\u00D7"), Operator(u"\u00F7"),
                                   Operator(u"E"), Operator(u"("),      Operator(u")")};

constexpr std::u16string_view kLetters = u"abcdefghijklmnopqrstuvwxyz";
constexpr int kFirstLetterCell = 4;

// What commands 0, 1 and 2 of a pad look like; the rows are its modes.
constexpr KeyFace kCommandRows[][3] = {
    {{.style = "menu", .label = u"OK"}, Key("menu", kTrashSign), Key("menu", kMenuSign)},
    {{.style = "menu", .label = u"OK", .cells = 2}, Key("menu", kTrashSign), {.cells = 0}},
    {{.style = "menu", .label = u"OK", .cells = 3}, {.cells = 0}, {.cells = 0}},
    {{.style = "menu", .label = u"OK"}, {.style = "menu", .icon = kTrashSign, .cells = 2}, {.cells = 0}},
};
constexpr int kCommandCells = 3;

// The last key stands in the second one's place on the page of simultaneous equations.
constexpr KeyFace kSolverKeys[] = {
    Chooser(CATEGORY_EQUATION_SOLVER),
    {.style = "menu", .label = u"1 \u2013 4", .orange = u"N"},
    Key("function", kSpaceSign),
    kBackspace,
    kLeft,
    kRight,
    {.style = "menu", .label = u"N", .orange = u"1 \u2013 4"},
};

constexpr KeyFace kGraphKeys[] = {Chooser(CATEGORY_FUNCTION_GRAPH), Key("function", kTargetSign),
                                  Key("function", kResetSign),      Key("function", kCameraSign),
                                  Key("menu", kCurveSign),          Key("menu", kMenuSign)};
constexpr double kModeBoxWidth = 24;
constexpr double kModeBoxHeight = 18;
constexpr double kModeGrid = 16;

constexpr KeyFace kDateKeys[] = {Chooser(CATEGORY_DATE_TIME), Key("menu", kCalendarSign),
                                 Key("menu", kClockSign),     {.style = "operator", .label = u"="},
                                 Key("function", kDownSign),  Key("function", kUpSign)};

constexpr KeyFace kFormulaListKeys[] = {Chooser(CATEGORY_FORMULAS),   Key("function", kSearchSign),
                                        Key("function", kImportSign), Key("function", kTrashSign),
                                        Key("function", kInfoSign),   Key("function", kMenuSign)};
constexpr KeyFace kFormulaKeys[] = {
    Chooser(CATEGORY_FORMULAS), {.style = "clear", .label = u"C"}, kBackspace, kLeft, kRight, Operator(u"=")};
constexpr KeyFace kBackKey[] = {Key("function", kBackSign)};
constexpr KeyFace kNextKey[] = {Key("function", kNextSign)};
constexpr KeyFace kPlayKey[] = {Key("menu", kPlaySign)};
constexpr KeyFace kSwitchKeys[] = {Key("menu", kSwitchSign), Key("clear", kClearAllSign)};

}  // namespace

void DrawNumberKeyboard(Picture& picture, const Tools& tools) {
    LayKeys(picture, tools, 0, kPadColumns, kNumberPad);
}

void DrawFormulaKeyboard(Picture& picture, const Tools& tools) {
    LayKeys(picture, tools, 0, kPadColumns, kFormulaRow);
}

void DrawLetterKeyboard(Picture& picture, const Tools& tools) {
    std::vector<KeyFace> faces(kFirstLetterCell - 1);
    faces.push_back(kBackspace);
    for (std::size_t i = 0; i < kLetters.size(); ++i) {
        faces.push_back(Digit(kLetters.substr(i, 1)));
    }
    LayKeys(picture, tools, 0, kPadColumns, faces);
}

void DrawPadCommands(Picture& picture, const Tools& tools) {
    double top = 0;
    for (const auto& row : kCommandRows) {
        LayKeys(picture, tools, top, kCommandCells, row);
        top += kKeyHeight;
    }
}

void DrawSolverKeys(Picture& picture, const Tools& tools) {
    LayKeys(picture, tools, 0, static_cast<int>(std::size(kSolverKeys)), kSolverKeys);
}

void DrawGraphKeys(Picture& picture, const Tools& tools) {
    LayKeys(picture, tools, 0, kPadColumns, kGraphKeys);
    const QColor ink = tools.palette.Color("label.function");
    double left = 0;
    for (const auto& mark : kGraphModeMarks) {
        picture.Paint([&](QPainter& painter) {
            painter.fillRect(QRectF(left, kKeyHeight, kModeBoxWidth, kModeBoxHeight),
                             tools.palette.Cap("function").faceTop);
        });
        LayIcon(picture,
                {left + (kModeBoxWidth - kModeGrid) / 2, kKeyHeight + (kModeBoxHeight - kModeGrid) / 2}, mark,
                kModeGrid, kModeGrid, {ink, ink});
        left += kModeBoxWidth;
    }
}

void DrawDateKeys(Picture& picture, const Tools& tools) {
    LayKeys(picture, tools, 0, kPadColumns, kDateKeys);
}

void DrawFormulaListKeys(Picture& picture, const Tools& tools) {
    LayKeys(picture, tools, 0, kPadColumns, kFormulaListKeys);
}

void DrawFormulaKeys(Picture& picture, const Tools& tools) {
    LayKeys(picture, tools, 0, kPadColumns, kFormulaKeys);
}

void DrawFormulaSwitch(Picture& picture, const Tools& tools) {
    LayKeys(picture, tools, 0, static_cast<int>(std::size(kSwitchKeys)), kSwitchKeys);
}

void DrawBackKey(Picture& picture, const Tools& tools) {
    LayKeys(picture, tools, 0, 1, kBackKey);
}

void DrawNextKey(Picture& picture, const Tools& tools) {
    LayKeys(picture, tools, 0, 1, kNextKey);
}

void DrawPlayKey(Picture& picture, const Tools& tools) {
    LayKeys(picture, tools, 0, 1, kPlayKey);
}

}  // namespace quorix::art
