#include <QGuiApplication>
#include <QTextStream>
#include <exception>
#include <filesystem>
#include <stdexcept>

#include "key_sounds.h"
#include "platform/files.h"
#include "skin_writer.h"

namespace {

void WriteSounds(const std::filesystem::path& folder) {
    std::filesystem::create_directories(folder);
    for (const quorix::art::KeySound& sound : quorix::art::KeySounds()) {
        if (!quorix::WriteFileAtomically(folder / sound.file, quorix::art::WavFile(sound.compose()))) {
            throw std::runtime_error("cannot write " + (folder / sound.file).string());
        }
    }
}

}  // namespace

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
        WriteSounds(std::filesystem::path(argv[3]) / "Sounds");
    } catch (const std::exception& error) {
        QTextStream(stderr) << "quorix_art: " << error.what() << '\n';
        return 1;
    }
    return 0;
}
