#pragma once

// One row per category: which window it has, where that window stands, how keys reach it and how long it
// lives. A module that arrives fills in nothing here but its factory (module_factories.h).

#include <array>
#include <cstdint>

#include "frontends/categories.h"
#include "frontends/key_panel.h"
#include "platform/geometry.h"

namespace quorix {

/// The windows of the modules. Some serve several categories.
enum class ModuleWindow : std::uint8_t {
    none,
    statistics,
    matrix,
    tip,
    converter,
    biorythm,
    macros,
    equationSolver,
    functionGraph,
    dateTime,
    formulas,
    count
};

inline constexpr std::size_t kModuleWindowCount = static_cast<std::size_t>(ModuleWindow::count);

/// How keys reach a category's window.
enum class KeyRoute : std::uint8_t {
    /// They go to the display; the window reads it.
    display,
    /// Pad keys and typed characters come as MSG_PAD_CHARACTER.
    characters,
    /// The window has the desktop's focus and takes key events itself.
    focus,
};

/// What happens to a window when its category is left.
enum class ModuleLife : std::uint8_t {
    /// It is destroyed and made anew on the next entry.
    category,
    /// The same, but only hidden while a macro is being edited.
    categoryOrMacro,
};

/// What lies around and under a module's window.
enum class PageGround : std::uint8_t {
    /// Both panels.
    panels,
    /// The window in place of the upper panel, the lower panel below it.
    upperWindow,
    /// The window alone.
    window,
};

struct CategoryEntry {
    CategoryId id;
    ModuleWindow window;
    int childId;
    /// Told to the window as MSG_SET_MODE: pages that share one window.
    int mode;
    KeyRoute keys;
    ModuleLife life;
    PageGround ground;
    /// Logical units; empty: the panel rectangle.
    Rect portrait;
    Rect landscape;
};

/// Messages between the frame and the windows of the modules.
enum FrameMessage : int {
    /// Popup list: item (first) of list (second) was chosen.
    MSG_POPUP_CHOSEN = 1290,
    /// A character (first) of the pad or the keyboard.
    MSG_PAD_CHARACTER = 3024,
    /// A key of the lower panel (first: its code), for windows that have the focus above it.
    MSG_PAD_KEY = 3025,
    /// A command cell of a number pad (first), with the pad's cookie (second).
    MSG_PAD_COMMAND = 3246,
    /// The skin has changed: load your pictures again.
    MSG_SKIN_CHANGED = 4368,
    /// Of the macro window: 0 closes the macro editing keyboard, 1 refreshes the edit boxes.
    MSG_MACRO_KEYBOARD = 4357,
    /// Hides the matrix window and shows the display again.
    MSG_HIDE_MATRIX = 5025,
    /// Select a page of a shared window (first: CategoryEntry::mode).
    MSG_SET_MODE = 5100,
    /// Copy to the clipboard (first: 1 for the line whatever else is on show); paste from it.
    MSG_COPY = 5102,
    MSG_PASTE = 5103,
};

inline constexpr Rect kPortraitUpperWindow{3, 3, 237, 138};
inline constexpr Rect kLandscapeUpperWindow{3, 1, 317, 106};
/// The client area within its two frame lines.
inline constexpr Rect kPortraitClient{2, 2, 238, 292};
inline constexpr Rect kLandscapeClient{2, 2, 318, 212};

inline constexpr std::array<CategoryEntry, kCategoryCount> kCategoryEntries = {{
    {CATEGORY_ARITHMETIC,
     ModuleWindow::none,
     0,
     0,
     KeyRoute::display,
     ModuleLife::category,
     PageGround::panels,
     {},
     {}},
    {CATEGORY_TRIGONOMETRY,
     ModuleWindow::none,
     0,
     0,
     KeyRoute::display,
     ModuleLife::category,
     PageGround::panels,
     {},
     {}},
    {CATEGORY_BASE_CONVERSION,
     ModuleWindow::none,
     0,
     0,
     KeyRoute::display,
     ModuleLife::category,
     PageGround::panels,
     {},
     {}},
    {CATEGORY_STATISTICS,
     ModuleWindow::statistics,
     155,
     0,
     KeyRoute::display,
     ModuleLife::category,
     PageGround::panels,
     {},
     {}},
    {CATEGORY_MATRIX,
     ModuleWindow::matrix,
     130,
     0,
     KeyRoute::display,
     ModuleLife::category,
     PageGround::panels,
     {},
     {}},
    {CATEGORY_FINANCE,
     ModuleWindow::none,
     0,
     0,
     KeyRoute::display,
     ModuleLife::category,
     PageGround::panels,
     {},
     {}},
    {CATEGORY_TIP, ModuleWindow::tip, 1001, 0, KeyRoute::characters, ModuleLife::category,
     PageGround::upperWindow, kPortraitUpperWindow, kLandscapeUpperWindow},
    {CATEGORY_UNIT_CONVERTER,
     ModuleWindow::converter,
     1003,
     0,
     KeyRoute::characters,
     ModuleLife::category,
     PageGround::upperWindow,
     {3, 54, 237, 138},
     {4, 52, 316, 106}},
    {CATEGORY_CURRENCY_CONVERTER,
     ModuleWindow::converter,
     1003,
     1,
     KeyRoute::characters,
     ModuleLife::category,
     PageGround::upperWindow,
     {3, 54, 237, 138},
     {4, 52, 316, 106}},
    {CATEGORY_CONSTANTS,
     ModuleWindow::converter,
     1003,
     2,
     KeyRoute::display,
     ModuleLife::category,
     PageGround::upperWindow,
     {3, 54, 237, 138},
     {4, 52, 316, 106}},
    {CATEGORY_BIORYTHM, ModuleWindow::biorythm, 1004, 0, KeyRoute::focus, ModuleLife::category,
     PageGround::window, kPortraitClient, kLandscapeClient},
    {CATEGORY_MACROS,
     ModuleWindow::macros,
     1004,
     0,
     KeyRoute::display,
     ModuleLife::categoryOrMacro,
     PageGround::upperWindow,
     {3, 54, 237, 138},
     {4, 52, 316, 106}},
    {CATEGORY_EQUATION_SOLVER, ModuleWindow::equationSolver, 0, 0, KeyRoute::focus, ModuleLife::category,
     PageGround::upperWindow, kPortraitUpperWindow, kLandscapeUpperWindow},
    {CATEGORY_FUNCTION_GRAPH, ModuleWindow::functionGraph, 0, 0, KeyRoute::focus, ModuleLife::category,
     PageGround::window, kPortraitClient, kLandscapeClient},
    {CATEGORY_DATE_TIME, ModuleWindow::dateTime, 0, 0, KeyRoute::focus, ModuleLife::category,
     PageGround::window, kPortraitClient, kLandscapeClient},
    {CATEGORY_FORMULAS, ModuleWindow::formulas, 8338, 0, KeyRoute::focus, ModuleLife::category,
     PageGround::window, kPortraitClient, kLandscapeClient},
}};

constexpr const CategoryEntry& EntryOf(int category) {
    return kCategoryEntries[static_cast<std::size_t>(category)];
}

/// Where a category's window stands, in logical units. A square screen is the portrait one, cut at its end.
constexpr Rect WindowPlaceOf(int category, Orientation orientation) {
    const CategoryEntry& entry = EntryOf(category);
    if (orientation == Orientation::landscape) {
        return entry.landscape;
    }
    Rect place = entry.portrait;
    constexpr int kSquareBottom = 240;
    if (orientation == Orientation::square && place.bottom > kSquareBottom) {
        place.bottom = kSquareBottom;
    }
    return place;
}

static_assert(
    [] {
        for (int id = 0; id < kCategoryCount; ++id) {
            if (EntryOf(id).id != id) {
                return false;
            }
        }
        return true;
    }(),
    "the rows stand in the order of their ids");

}  // namespace quorix
