#pragma once

#include <QString>

#include "strips.h"

namespace quorix::art {

/// Writes a whole skin under `interfaces`: its pictures in all their scales, its colour file under both
/// names, and the skin file that names them.
void WriteSkin(const Tools& tools, const QString& interfaces);

/// Writes the pictures that are the program's own under `folder`.
void WriteResources(const Tools& tools, const QString& folder);

}  // namespace quorix::art
