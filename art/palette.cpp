#include "palette.h"

#include <QFile>
#include <QStringList>
#include <stdexcept>

namespace quorix::art {

namespace {

QColor ParseColor(const QString& text, const QString& key) {
    const QColor color("#" + text);
    if (!color.isValid()) {
        throw std::runtime_error("no colour: " + key.toStdString() + " = " + text.toStdString());
    }
    return color;
}

}  // namespace

Palette Palette::Load(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        throw std::runtime_error("cannot read " + path.toStdString());
    }
    Palette palette;
    for (const QByteArray& raw : file.readAll().split('\n')) {
        const QString line = QString::fromUtf8(raw).trimmed();
        if (line.isEmpty() || line.startsWith('#')) {
            continue;
        }
        const qsizetype equals = line.indexOf('=');
        if (equals <= 0) {
            throw std::runtime_error("no key = value: " + line.toStdString());
        }
        palette.values_[line.left(equals).trimmed()] = line.mid(equals + 1).trimmed();
    }
    return palette;
}

QString Palette::Text(const QString& key) const {
    const auto it = values_.find(key);
    if (it == values_.end()) {
        throw std::runtime_error("palette has no " + key.toStdString());
    }
    return it->second;
}

QColor Palette::Color(const QString& role) const {
    return ParseColor(Text(role), role);
}

CapColors Palette::Cap(const QString& style) const {
    const QString key = "cap." + style;
    const QStringList parts = Text(key).split(' ', Qt::SkipEmptyParts);
    if (parts.size() != 4) {
        throw std::runtime_error("four colours wanted: " + key.toStdString());
    }
    return {ParseColor(parts[0], key), ParseColor(parts[1], key), ParseColor(parts[2], key),
            ParseColor(parts[3], key)};
}

std::vector<std::pair<QString, QColor>> Palette::BorderColors() const {
    static const QString prefix = "color.";
    std::vector<std::pair<QString, QColor>> colors;
    for (const auto& [key, value] : values_) {
        if (key.startsWith(prefix)) {
            colors.emplace_back(key.mid(prefix.size()), ParseColor(value, key));
        }
    }
    return colors;
}

}  // namespace quorix::art
