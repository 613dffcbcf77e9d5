#pragma once

// Where a module's window is plugged in: one line in module_factories.cpp.

#include "shell/module_wnd.h"

namespace quorix {

/// Makes the window of a category; an empty page with the category's name where the module has none yet. Null
/// for pages whose panels are all that there is.
std::unique_ptr<ModuleWnd> MakeModuleWnd(WindowBase& frame, ModuleSite& site, int category);

}  // namespace quorix
