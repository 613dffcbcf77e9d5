#pragma once

#include <QImage>
#include <QPainter>
#include <cstdlib>
#include <string>

#include "frontends/led_painter.h"
#include "frontends/panel_painter.h"
#include "platform/path.h"
#include "platform/program_folder.h"
#include "shell/colours.h"
#include "shell/skin.h"
#include "support/calculator_rig.h"

namespace quorix::testing {

inline constexpr DeviceScreen kPortrait2{480, 640};
inline constexpr DeviceScreen kPortrait1{240, 320};
inline constexpr DeviceScreen kLandscape2{640, 480};

/// The main window as a picture: a display on a bench, painted with a skin that is staged beside the tests.
class ScreenRig {
  public:
    explicit ScreenRig(DeviceScreen deviceScreen, std::u16string_view skinFile = kDefaultSkinFile)
        : screen(deviceScreen), skin(ExecutableFolder(), deviceScreen) {
        skin.Select(skinFile);
        loaded = skin.LoadSkinPaths();
        colours.LoadColours(skin.FindSkinValue("BoderColores"));
    }

    [[nodiscard]] QImage Paint() {
        const int scale = screen.Scale();
        const Orientation orientation = OrientationOf(screen);
        const FrameLayout& layout = LayoutOf(orientation);
        const auto load = [&](const std::filesystem::path& file) { return LoadDense(file, scale, 1.0); };
        const PanelPictures pictures{.smallButtons = load(skin.Path(SkinPath::smallButtons)),
                                     .smallFontsGeneral = load(skin.Path(SkinPath::smallFontsGeneral)),
                                     .largeButtons = load(skin.Path(SkinPath::largeButtons)),
                                     .largeFonts = load(skin.Path(SkinPath::largeFonts))};
        panels.SetPictures(pictures);
        panels.SetPageLabels(load(skin.Path(SmallFontsOf(calculator.category))));
        const auto tex = ScreenValue("Resources\\TexButton.png", screen.IsVga());
        led.SetTexButton(load(ResolvePath(ExecutableFolder(), tex)));
        const Rect client = layout.client.Scaled(scale);
        QImage picture(client.Width(), client.Height(), QImage::Format_RGB32);
        QPainter painter(&picture);
        PanelPainter::PaintBody(painter, client,
                                {colours[SkinColour::border0], colours[SkinColour::border1],
                                 pictures.largeButtons.image.BackgroundColor()});
        panels.PaintPanel(painter, orientation, scale, Panel::upper, looks);
        panels.PaintPanel(painter, orientation, scale, Panel::lower, looks);
        PanelPainter::PaintLandscapeWord(painter, layout.landscapeWord.Scaled(scale), scale);
        const Rect display = layout.display.Scaled(scale);
        painter.translate(display.left, display.top);
        PaintDisplay(painter, {0, 0, display.Width(), display.Height()});
        return picture;
    }

    /// The display alone.
    [[nodiscard]] QImage PaintDisplay() {
        const Rect display = LayoutOf(OrientationOf(screen)).display.Scaled(screen.Scale());
        QImage picture(display.Width(), display.Height(), QImage::Format_RGB32);
        QPainter painter(&picture);
        PaintDisplay(painter, {0, 0, display.Width(), display.Height()});
        return picture;
    }

    DeviceScreen screen;
    Skin skin;
    bool loaded = false;
    SkinColours colours;
    CalculatorRig calculator;
    PanelLooks looks;
    LedPainter led;
    PanelPainter panels;

  private:
    void PaintDisplay(QPainter& painter, const Rect& size) {
        led.Paint(painter, size, *calculator.display,
                  {colours[SkinColour::border2], colours[SkinColour::border3], colours[SkinColour::border4]},
                  screen.Scale());
    }
};

/// Keeps a picture for the eye when QUORIX_SCREENSHOTS names a folder.
inline void KeepScreenshot(const QImage& picture, const std::string& name) {
    if (const char* folder = std::getenv("QUORIX_SCREENSHOTS")) {
        picture.save(QString::fromStdString(std::string(folder) + "/" + name + ".png"));
    }
}

}  // namespace quorix::testing
