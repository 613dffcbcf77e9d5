#include <QGuiApplication>
#include <QTextStream>
#include <exception>

#include "skin_writer.h"

int main(int argc, char** argv) {
    const QGuiApplication application(argc, argv);
    if (argc != 4) {
        QTextStream(stderr) << "usage: quorix_art FONTS PALETTES ASSETS\n";
        return 2;
    }
    try {
        const quorix::art::Typeface typeface(argv[1]);
        for (const char* name : {"default", "black"}) {
            const auto palette = quorix::art::Palette::Load(QString("%1/%2.palette").arg(argv[2], name));
            quorix::art::WriteSkin({palette, typeface}, QString("%1/Interfaces").arg(argv[3]));
        }
        const auto palette = quorix::art::Palette::Load(QString("%1/default.palette").arg(argv[2]));
        quorix::art::WriteResources({palette, typeface}, QString("%1/Resources").arg(argv[3]));
    } catch (const std::exception& error) {
        QTextStream(stderr) << "quorix_art: " << error.what() << '\n';
        return 1;
    }
    return 0;
}
