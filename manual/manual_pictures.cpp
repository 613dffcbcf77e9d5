// Draws the pictures of the manual: the real windows, brought to a state by keys, as PNG files.

#include <QApplication>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTextStream>
#include <exception>
#include <filesystem>
#include <functional>
#include <stdexcept>

#include "engine/eval_matrix.h"
#include "matrix/matrix_operators.h"
#include "platform/program_folder.h"
#include "platform/qt/fonts.h"
#include "png_writer.h"
#include "shell/main_frame_wnd.h"
#include "shell/preferences_dialog.h"

namespace {

using namespace quorix;

namespace fs = std::filesystem;

/// A fresh program folder with the window on it; every picture begins with the state of a first start.
class Stage {
  public:
    explicit Stage(std::u16string_view mode = kModeString, std::u16string_view skin = kDefaultSkinFile,
                   const char* view = "") {
        const fs::path folder = folder_.path().toStdString();
        SeedFolder(ExecutableFolder(), folder);
        QFile file(folder_.filePath(QStringLiteral("view.ini")));
        if (!file.open(QIODevice::WriteOnly) || file.write(view) < 0) {
            throw std::runtime_error("cannot write in " + folder.string());
        }
        file.close();
        window_ = std::make_unique<MainFrameWnd>(folder);
        if (!window_->Create()) {
            throw std::runtime_error("cannot read the skin");
        }
        Preferences settings = Frame().UserSettings();
        settings.calculator.inputMode = mode;
        settings.skinFile = skin;
        Frame().ApplyPreferences(settings);
        window_->show();
    }

    [[nodiscard]] CMainFrame& Frame() { return window_->Frame(); }
    [[nodiscard]] MainFrameWnd& Window() { return *window_; }

    void Type(std::u16string_view text) {
        for (const char16_t character : text) {
            Frame().Character(character);
        }
    }
    void Keys(std::initializer_list<std::int32_t> codes) {
        for (const std::int32_t code : codes) {
            Frame().Display().Key(code);
        }
    }
    [[nodiscard]] QImage Grab() {
        QApplication::processEvents();
        return window_->grab().toImage();
    }

  private:
    QTemporaryDir folder_;
    std::unique_ptr<MainFrameWnd> window_;
};

QImage MainWindow() {
    Stage stage;
    stage.Type(u"(1+2/3)^5=");
    return stage.Grab();
}

QImage BlackSkin() {
    Stage stage(kModeString, u"Black Skin.inf");
    stage.Type(u"(1+2/3)^5=");
    return stage.Grab();
}

QImage Display() {
    Stage stage;
    stage.Type(u"3*12.5^2+17 mod 5=");
    const QImage window = stage.Grab();
    const Rect display = LayoutOf(Orientation::portrait).display.Scaled(stage.Window().Scale());
    return window.copy(display.left, display.top, display.Width(), display.Height());
}

QImage Landscape() {
    Stage stage(kModeString, kDefaultSkinFile, "[General]\nshape=landscape\n");
    stage.Frame().SwitchCategory(CATEGORY_STATISTICS);
    stage.Type(u"ncr(49,6)=");
    return stage.Grab();
}

QImage ShiftOn() {
    Stage stage;
    stage.Frame().SwitchCategory(CATEGORY_TRIGONOMETRY);
    stage.Type(u"2*");
    stage.Keys({KEY_SHIFT});
    return stage.Grab();
}

QImage NamesList() {
    Stage stage;
    stage.Type(u"2*co");
    return stage.Grab();
}

QImage FunctionList() {
    Stage stage;
    const Rect cell =
        CellRect(Orientation::portrait, {Panel::upper, CELL_MENU}).Scaled(stage.Window().Scale());
    const Point middle{(cell.left + cell.right) / 2, (cell.top + cell.bottom) / 2};
    stage.Frame().ButtonDown(middle);
    stage.Frame().ButtonUp(middle);
    return stage.Grab();
}

QImage Hint() {
    Stage stage;
    stage.Keys({KEY_INTEGRAL, KEY_X, KEY_SQUARE, KEY_COMMA, KEY_X, KEY_COMMA, KEY_0, KEY_COMMA});
    return stage.Grab();
}

QImage Chooser() {
    Stage stage;
    Preferences settings = stage.Frame().UserSettings();
    settings.transparenceEnabled = 0;
    stage.Frame().ApplyPreferences(settings);
    stage.Frame().ToggleChooser();
    return stage.Grab();
}

QImage ReversePolish() {
    Stage stage(kModeRpn);
    stage.Type(u"12.5\r4*");
    return stage.Grab();
}

QImage Base() {
    Stage stage;
    stage.Frame().SwitchCategory(CATEGORY_BASE_CONVERSION);
    stage.Keys({KEY_BASE, KEY_WORD_SIZE});
    stage.Type(u"1F4+A=");
    return stage.Grab();
}

QImage MacroPage() {
    Stage stage;
    stage.Frame().SwitchCategory(CATEGORY_MACROS);
    MacroEditor& editor = stage.Frame().TheMacroEditor();
    editor.SetName(u"hyp");
    editor.SetRemark(u"hypotenuse");
    stage.Frame().ToggleMacroEditing();
    stage.Keys({KEY_SQUARE_ROOT});
    editor.InsertLetter(kParameterLetters[0]);
    stage.Keys({KEY_SQUARE, KEY_PLUS});
    editor.InsertLetter(kParameterLetters[1]);
    stage.Keys({KEY_SQUARE, KEY_CLOSE});
    stage.Window().Module(ModuleWindow::macros)->SendMessage(MSG_MACRO_KEYBOARD, 1);
    return stage.Grab();
}

/// A page of the preferences, by its number.
QImage PreferencesPage(int page) {
    constexpr double kPixelsPerUnit = 1.3;
    Stage stage;
    const fs::path folder = stage.Window().Folder();
    PreferencesDialog dialog(nullptr, stage.Frame().UserSettings(),
                             {.folder = folder,
                              .skin = stage.Window().CurrentSkin(),
                              .sound = nullptr,
                              .pixelsPerUnit = kPixelsPerUnit});
    dialog.findChild<QTabWidget*>()->setCurrentIndex(page);
    dialog.show();
    QApplication::processEvents();
    return dialog.grab().toImage();
}

/// A window at a width that suits a page. Viewers of help pages scale pictures badly, so they get them as
/// wide as they are to be shown.
QImage AtWidth(const QImage& window, int width) {
    return window.convertToFormat(QImage::Format_RGB32).scaledToWidth(width, Qt::SmoothTransformation);
}

constexpr int kLarge = 360;
constexpr int kSmall = 300;
constexpr int kWide = 480;

struct ManualPicture {
    const char* file;
    std::function<QImage()> draw;
};

const ManualPicture kPictures[] = {
    {"main.png", [] { return AtWidth(MainWindow(), kLarge); }},
    {"black.png", [] { return AtWidth(BlackSkin(), kSmall); }},
    {"display.png", Display},
    {"landscape.png", [] { return AtWidth(Landscape(), kWide); }},
    {"trigonometry.png", [] { return AtWidth(ShiftOn(), kSmall); }},
    {"typeahead.png", [] { return AtWidth(NamesList(), kSmall); }},
    {"functions.png", [] { return AtWidth(FunctionList(), kSmall); }},
    {"hint.png", [] { return AtWidth(Hint(), kSmall); }},
    {"chooser.png", [] { return AtWidth(Chooser(), kSmall); }},
    {"rpn.png", [] { return AtWidth(ReversePolish(), kSmall); }},
    {"base.png", [] { return AtWidth(Base(), kSmall); }},
    {"macros.png", [] { return AtWidth(MacroPage(), kSmall); }},
    {"preferences-general.png", [] { return PreferencesPage(0); }},
    {"preferences-categories.png", [] { return PreferencesPage(1); }},
    {"preferences-skins.png", [] { return PreferencesPage(3); }},
    {"preferences-modes.png", [] { return PreferencesPage(4); }},
};

}  // namespace

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    QTextStream errors(stderr);
    if (argc != 2) {
        errors << "usage: manual_pictures FOLDER\n";
        return 2;
    }
    try {
        if (!LoadShippedFonts(ExecutableFolder() / "fonts")) {
            throw std::runtime_error("the fonts are missing");
        }
        QApplication::setFont(ScreenFont({}, 1));
        SetMatrixOperators(MatrixOperatorTable());
        fs::create_directories(argv[1]);
        for (const ManualPicture& picture : kPictures) {
            art::WritePng(picture.draw(), QStringLiteral("%1/%2").arg(argv[1], picture.file));
        }
    } catch (const std::exception& error) {
        errors << "manual_pictures: " << error.what() << '\n';
        return 1;
    }
    return 0;
}
