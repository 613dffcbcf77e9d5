#include "skin_writer.h"

#include <QDir>
#include <QFile>
#include <stdexcept>

#include "png_writer.h"

namespace quorix::art {

namespace {

constexpr const char* kColorFile = "Colors.txt";

void WriteText(const QString& path, const QString& text) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(text.toLatin1()) != text.size()) {
        throw std::runtime_error("cannot write " + path.toStdString());
    }
}

void WriteStrip(const Strip& strip, const Tools& tools, const QString& folder) {
    for (const int scale : ScalesOf(strip)) {
        WritePng(DrawStrip(strip, tools, scale), folder + "/" + NameAtScale(FileNameOf(strip), scale));
    }
}

void MakeFolder(const QString& folder) {
    if (!QDir().mkpath(folder)) {
        throw std::runtime_error("cannot make " + folder.toStdString());
    }
}

}  // namespace

void WriteSkin(const Tools& tools, const QString& interfaces) {
    const QString name = tools.palette.FolderName();
    const QString folder = interfaces + "/" + name;
    MakeFolder(folder);

    QString skin;
    const auto add = [&](const QString& key, const QString& file) {
        skin += key + " = " + name + "\\" + file + "\r\n";
    };
    for (const Strip& strip : SkinStrips()) {
        WriteStrip(strip, tools, folder);
        add(strip.key, FileNameOf(strip));
    }

    QString colors;
    for (const auto& [key, color] : tools.palette.BorderColors()) {
        colors += QString("%1 = %2,%3,%4\r\n").arg(key).arg(color.red()).arg(color.green()).arg(color.blue());
    }
    for (const int scale : {1, 2}) {
        WriteText(folder + "/" + NameAtScale(kColorFile, scale), colors);
    }
    add("BoderColores", kColorFile);
    WriteText(interfaces + "/" + tools.palette.SkinName() + ".inf", skin);
}

void WriteResources(const Tools& tools, const QString& folder) {
    MakeFolder(folder);
    WriteStrip(TexButtonStrip(), tools, folder);
}

}  // namespace quorix::art
