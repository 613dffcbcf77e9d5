#include "shell/module_factories.h"

#include <array>

#include "shell/empty_page_wnd.h"

namespace quorix {

namespace {

/// By ModuleWindow; null where the window does not exist yet.
constexpr std::array<ModuleFactory, kModuleWindowCount> kFactories = {};

}  // namespace

std::unique_ptr<ModuleWnd> MakeModuleWnd(WindowBase& frame, ModuleSite& site, int category) {
    const CategoryEntry& entry = EntryOf(category);
    if (const ModuleFactory factory = kFactories[static_cast<std::size_t>(entry.window)];
        factory != nullptr) {
        return factory(frame, site, category);
    }
    if (entry.ground == PageGround::panels) {
        return nullptr;
    }
    return std::make_unique<EmptyPageWnd>(frame, site, category);
}

}  // namespace quorix
