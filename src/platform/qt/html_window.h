#pragma once

#include <QLineEdit>
#include <QTextBrowser>
#include <QWidget>
#include <filesystem>

class QBoxLayout;

namespace quorix {

/// A top-level window that shows a local HTML file with its pictures. Links to files stay in the window,
/// others go to the desktop. Keys: Alt+Left and Alt+Right step back and forth, Ctrl+F searches, F3 and
/// Shift+F3 step through what is found, Esc ends the search or closes the window.
class HtmlWindow : public QWidget {
  public:
    explicit HtmlWindow(QWidget* parent = nullptr);

    /// Shows a file in place of the one shown so far and brings the window up. False when the file cannot be
    /// read; the window then stays as it is.
    bool ShowFile(const std::filesystem::path& html);

    /// Goes to the next place of the text searched for, from the cursor on and round the end. False when
    /// there is none.
    bool FindNext(bool backward = false);

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void MakeToolRow(QBoxLayout* column);
    void OpenSearch();
    void CloseSearch();

    QTextBrowser* browser_;
    QLineEdit* search_;
};

}  // namespace quorix
