#include <gtest/gtest.h>

#include <QAccessible>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <set>

#include "shell/morvane_button_wnd.h"
#include "shell/number_keyboard_wnd.h"
#include "shell/preferences_dialog.h"
#include "windows/frame_window.h"

namespace quorix {
namespace {

class ShellWndTest : public testing::FrameWindowTest {
  protected:
    static void CloseBoxes() {
        for (QWidget* const box : QApplication::topLevelWidgets()) {
            if (auto* const dialog = qobject_cast<QDialog*>(box)) {
                dialog->reject();
            }
        }
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
};

TEST_F(ShellWndTest, EveryKeyOfEveryPageHasANameAndCanBePressedInEveryShape) {
    const auto window = Open();
    for (int shape = 0; shape < 3; ++shape) {
        for (int category = 0; category < kCategoryCount; ++category) {
            window->Frame().SwitchCategory(category);
            ASSERT_EQ(window->Frame().CurrentCategory(), category);
            std::set<QString> names;
            for (int cell = 0; cell < window->AccessibleCellCount(); ++cell) {
                const QString name = window->AccessibleCellName(cell);
                if (name.isEmpty()) {
                    continue;
                }
                EXPECT_TRUE(names.insert(name).second) << category << ' ' << name.toStdString();
                EXPECT_TRUE(window->rect().contains(window->AccessibleCellRect(cell)));
                window->PressAccessibleCell(cell);
                window->ClosePopup();
                window->Frame().CloseChooser();
                CloseBoxes();
                if (window->Frame().Display().GetShift()) {
                    window->PressAccessibleCell(cell);
                }
            }
            // The base page has A to F in one base alone.
            const std::size_t expected = category <= kLastPanelCategory                        ? 32U
                                         : EntryOf(category).ground == PageGround::upperWindow ? 20U
                                                                                               : 0U;
            EXPECT_GE(names.size(), expected) << category;
            if (ModuleWnd* const page = window->Module(EntryOf(category).window);
                page != nullptr && category > kLastPanelCategory) {
                EXPECT_TRUE(PressCellNamed(*page, QStringLiteral("categories"))) << category;
                EXPECT_TRUE(window->Chooser().isVisible());
                window->Frame().CloseChooser();
            }
            EXPECT_FALSE(window->grab().isNull());
        }
        Press(*window, Qt::Key_F9);
    }
    window->Frame().SwitchCategory(CATEGORY_TRIGONOMETRY);
    PressCellNamed(*window, QStringLiteral("clear"));
    for (const char* name : {"sine", "3", "0", "close parenthesis", "equals"}) {
        EXPECT_TRUE(PressCellNamed(*window, QString::fromLatin1(name))) << name;
    }
    EXPECT_EQ(Result(*window), "0.5");
    PressCellNamed(*window, QStringLiteral("shift"));
    EXPECT_TRUE(PressCellNamed(*window, QStringLiteral("arc sine"))) << "names follow SHIFT";
}

TEST_F(ShellWndTest, AssistiveProgramsFindTheKeys) {
    const auto window = Open();
    QAccessibleInterface* const accessible = QAccessible::queryAccessibleInterface(window.get());
    ASSERT_NE(accessible, nullptr);
    bool pressed = false;
    for (int i = 0; i < accessible->childCount(); ++i) {
        QAccessibleInterface* const child = accessible->child(i);
        ASSERT_NE(child, nullptr);
        EXPECT_EQ(accessible->indexOfChild(child), i);
        if (child->text(QAccessible::Name) == QStringLiteral("7")) {
            EXPECT_EQ(child->role(), QAccessible::Button);
            const QPoint centre = child->rect().center();
            EXPECT_EQ(accessible->childAt(centre.x(), centre.y()), child);
            child->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
            pressed = true;
        }
    }
    EXPECT_TRUE(pressed);
    EXPECT_EQ(Row(*window), "7");
}

TEST_F(ShellWndTest, TheChooserWorksByKeysAndByName) {
    const auto window = Open();
    PressCellNamed(*window, QStringLiteral("categories"));
    ASSERT_TRUE(window->Chooser().isVisible());
    Press(*window, Qt::Key_Right);
    Press(*window, Qt::Key_Return);
    EXPECT_EQ(window->Frame().CurrentCategory(), CATEGORY_TRIGONOMETRY);
    EXPECT_FALSE(window->Chooser().isVisible());
    for (const char* name : {"Function graph", "Unit converter", "Matrix"}) {
        window->Frame().ToggleChooser();
        EXPECT_TRUE(PressCellNamed(window->Chooser(), QString::fromLatin1(name)));
        EXPECT_EQ(ToUtf8(kCategoryNames[static_cast<std::size_t>(window->Frame().CurrentCategory())]), name);
    }
    Press(*window, Qt::Key_3, Qt::ControlModifier);
    EXPECT_EQ(window->Frame().CurrentCategory(), CATEGORY_BASE_CONVERSION);
}

TEST_F(ShellWndTest, PreferencesTakeEffectOnOkAlone) {
    const auto window = Open();
    const ColorRef body = [&] {
        window->grab();
        return window->BodyColour();
    }();
    for (const bool ok : {false, true}) {
        window->Frame().ChooseTool(Tool::preferences);
        auto* const dialog = dynamic_cast<PreferencesDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        for (auto* const list : dialog->findChildren<QListWidget*>()) {
            for (QListWidgetItem* const item :
                 list->findItems(QStringLiteral("Black Skin"), Qt::MatchExactly)) {
                list->setCurrentItem(item);
            }
            for (QListWidgetItem* const item : list->findItems(QStringLiteral("Finance"), Qt::MatchExactly)) {
                item->setCheckState(Qt::Unchecked);
            }
        }
        for (auto* const combo : dialog->findChildren<QComboBox*>()) {
            combo->setCurrentIndex(combo->findText(QStringLiteral("European")) >= 0 ? 2
                                                                                    : combo->currentIndex());
        }
        ok ? dialog->accept() : dialog->reject();
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_EQ(window->Frame().Settings().skinFile, ok ? u"Black Skin.inf" : u"default.inf");
        EXPECT_EQ(window->Frame().Settings().categoryEnabled[CATEGORY_FINANCE], ok ? 0U : 1U);
        EXPECT_EQ(window->Frame().Settings().calculator.numberLocale == u"European", ok);
        window->grab();
        EXPECT_EQ(window->BodyColour() != body, ok);
    }
    window->close();
    EXPECT_EQ(Open()->Frame().Settings().skinFile, u"Black Skin.inf");
}

TEST_F(ShellWndTest, AMacroIsWrittenCalledAndKept) {
    {
        const auto window = Open();
        window->Frame().SwitchCategory(CATEGORY_MACROS);
        auto* const page = window->Module(ModuleWindow::macros);
        ASSERT_NE(page, nullptr);
        const auto fields = page->findChildren<QLineEdit*>();
        QKeyEvent letter(QEvent::KeyPress, 0, Qt::NoModifier, QStringLiteral("area"));
        QApplication::sendEvent(fields[0], &letter);
        window->Frame().ToggleMacroEditing();
        EXPECT_EQ(Result(*window), "macro editing ...");
        const auto pad = [&](const char* name) { PressCellNamed(*window, QString::fromLatin1(name)); };
        pad("multiply");  // the letters
        ASSERT_NE(window->Popup(), nullptr);
        window->Popup()->PressAccessibleCell(0);
        pad("recall memory");  // multiplies here
        pad("multiply");
        window->Popup()->PressAccessibleCell(1);
        EXPECT_EQ(Row(*window), "α×β");
        pad("store in memory");
        EXPECT_EQ(Result(*window), "valid");
        TypeText(*window, QStringLiteral("+"));
        pad("store in memory");
        EXPECT_EQ(Result(*window), "invalid");
        Press(*window, Qt::Key_Backspace);
        window->Frame().ToggleMacroEditing();
        window->Frame().SwitchCategory(CATEGORY_ARITHMETIC);
        PressCellNamed(*window, QStringLiteral("function list"));
        ASSERT_EQ(window->Popup()->AccessibleCellName(7), QStringLiteral("area(α, β)"));
        window->Popup()->PressAccessibleCell(7);
        TypeText(*window, QStringLiteral("3,4)="));
        EXPECT_EQ(Result(*window), "12");
        window->Frame().SwitchCategory(CATEGORY_BASE_CONVERSION);
        TypeText(*window, QStringLiteral("ar"));
        Press(*window, Qt::Key_Return);
        TypeText(*window, QStringLiteral("3,4)="));
        EXPECT_EQ(Result(*window), "12");
        window->Frame().SwitchCategory(CATEGORY_ARITHMETIC);
        // Killed here, it has the macro all the same.
    }
    const auto window = Open();
    TypeText(*window, QStringLiteral("ar"));
    Press(*window, Qt::Key_Return);
    TypeText(*window, QStringLiteral("5,5)="));
    EXPECT_EQ(Result(*window), "25");
}

TEST_F(ShellWndTest, ListsKeepTheirArrowKeysAndTheLetterKeyboardTheFocus) {
    const auto window = Open();
    PressCellNamed(*window, QStringLiteral("function list"));
    Press(*window, Qt::Key_Down);
    Press(*window, Qt::Key_Down);
    Press(*window, Qt::Key_Return);
    EXPECT_EQ(window->Frame().CurrentCategory(), CATEGORY_ARITHMETIC);
    EXPECT_EQ(Row(*window), "∫(");
    window->Frame().SwitchCategory(CATEGORY_MACROS);
    auto* const page = window->Module(ModuleWindow::macros);
    window->activateWindow();
    QApplication::processEvents();
    page->SendMessage(MSG_BUTTON, 2, 0);
    auto* const name = page->findChildren<QLineEdit*>()[0];
    MorvaneCalNumberKeyboardWnd* letters = nullptr;
    for (QWidget* const child : window->findChildren<QWidget*>()) {
        auto* const keyboard = dynamic_cast<MorvaneCalNumberKeyboardWnd*>(child);
        letters = keyboard != nullptr ? keyboard : letters;
    }
    ASSERT_NE(letters, nullptr);
    name->setFocus();
    for (const int cell : {4, 5}) {
        testing::Tap(*letters, letters->AccessibleCellRect(cell).center());
    }
    EXPECT_EQ(name->text(), QStringLiteral("ab"));
}

TEST_F(ShellWndTest, TheWholeScreenAndBack) {
    const auto window = Open();
    const QSize size = window->size();
    Press(*window, Qt::Key_F11);
    EXPECT_FALSE(window->isWindow());
    TypeText(*window, QStringLiteral("1+1="));
    Press(*window, Qt::Key_F9);
    Press(*window, Qt::Key_F9);
    Press(*window, Qt::Key_F9);
    Press(*window, Qt::Key_F11);
    EXPECT_TRUE(window->isWindow());
    EXPECT_EQ(window->size(), size);
    EXPECT_EQ(Result(*window), "2");
    Press(*window, Qt::Key_Z, Qt::ControlModifier);
    Press(*window, Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
}

}  // namespace
}  // namespace quorix
