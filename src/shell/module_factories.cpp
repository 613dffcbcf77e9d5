#include "shell/module_factories.h"

#include "shell/empty_page_wnd.h"
#include "shell/macro_wnd.h"

namespace quorix {

namespace {

struct FactoryRow {
    ModuleWindow window;
    ModuleFactory make;
};

/// The windows that exist so far.
constexpr FactoryRow kFactories[] = {
    {ModuleWindow::macros, MacroWnd::Make},
};

}  // namespace

std::unique_ptr<ModuleWnd> MakeModuleWnd(WindowBase& frame, ModuleSite& site, int category) {
    const CategoryEntry& entry = EntryOf(category);
    for (const FactoryRow& row : kFactories) {
        if (row.window == entry.window) {
            return row.make(frame, site, category);
        }
    }
    if (entry.ground == PageGround::panels) {
        return nullptr;
    }
    return std::make_unique<EmptyPageWnd>(frame, site, category);
}

}  // namespace quorix
