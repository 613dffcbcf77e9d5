#pragma once

#include <QImage>
#include <QString>

namespace quorix::art {

/// Writes a picture as PNG with no chunk but the necessary ones: the loader acts on background and gamma, so
/// there must be none. Opaque pictures are stored without alpha, pictures of few colours with a palette where
/// that is smaller. Throws std::runtime_error.
void WritePng(const QImage& image, const QString& path);

}  // namespace quorix::art
