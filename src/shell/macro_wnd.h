#pragma once

#include <QLineEdit>
#include <QPointer>
#include <memory>

#include "shell/module_wnd.h"
#include "shell/morvane_button_wnd.h"
#include "shell/number_keyboard_wnd.h"

namespace quorix {

/// The page "User's macros": name, remark and body of a macro, and the key that begins and ends editing.
class MacroWnd : public ModuleWnd {
  public:
    MacroWnd(WindowBase& frame, ModuleSite& site, int category);
    ~MacroWnd() override;

    static std::unique_ptr<ModuleWnd> Make(WindowBase& frame, ModuleSite& site, int category);

    void LayOut() override;
    [[nodiscard]] Rect ChooserKey() const override;

  protected:
    void Paint(QPainter& painter, const Rect& dirty) override;
    void OnScaleChanged() override;
    void hideEvent(QHideEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void Refresh();
    void OnButton(int id);
    void OpenNames();
    void ToggleLetters();
    void CloseLetters();
    void PlaceField(QLineEdit& field, const Rect& units);
    [[nodiscard]] const struct MacroLayout& Layout() const;

    WindowBase& frame_;
    QLineEdit* name_;
    QLineEdit* remark_;
    MorvaneButton* list_;
    MorvaneButton* letters_;
    MorvaneButton* edit_;
    QPointer<MorvaneCalNumberKeyboardWnd> keyboard_;
};

}  // namespace quorix
