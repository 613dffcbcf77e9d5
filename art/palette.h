#pragma once

#include <QColor>
#include <QString>
#include <map>
#include <vector>

namespace quorix::art {

/// Colours of a cap: the face's gradient and the gradient of the edge round it, each from top to bottom.
struct CapColors {
    QColor faceTop, faceBottom, edgeTop, edgeBottom;
};

/// A skin's colours by role, read from a file of 'key = value' lines; "#" starts a remark line.
class Palette {
  public:
    /// Reads a palette file. Throws std::runtime_error naming the line at fault.
    static Palette Load(const QString& path);

    [[nodiscard]] QString SkinName() const { return Text("skin"); }      ///< Name of the .inf file.
    [[nodiscard]] QString FolderName() const { return Text("folder"); }  ///< Folder of its pictures.
    /// Colour of a role. Throws std::runtime_error for a role that the file does not have.
    [[nodiscard]] QColor Color(const QString& role) const;
    [[nodiscard]] CapColors Cap(const QString& style) const;
    /// Keys and colours of the skin's colour file, in a fixed order.
    [[nodiscard]] std::vector<std::pair<QString, QColor>> BorderColors() const;

  private:
    [[nodiscard]] QString Text(const QString& key) const;

    std::map<QString, QString> values_;
};

}  // namespace quorix::art
