#include "platform/qt/html_window.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QScreen>
#include <QShortcut>
#include <QToolButton>
#include <QUrl>

namespace quorix {

namespace {

constexpr QSize kFirstSize(640, 720);
constexpr int kTextPixels = 15;
constexpr int kTextMargin = 12;

}  // namespace

HtmlWindow::HtmlWindow(QWidget* parent)
    : QWidget(parent, Qt::Window), browser_(new QTextBrowser(this)), search_(new QLineEdit(this)) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    MakeToolRow(column);
    column->addWidget(browser_);

    QFont font = browser_->font();
    font.setPixelSize(kTextPixels);
    font.setWeight(QFont::Normal);
    browser_->setFont(font);
    browser_->setFrameShape(QFrame::NoFrame);
    browser_->setOpenLinks(false);
    connect(browser_, &QTextBrowser::anchorClicked, this, [this](const QUrl& link) {
        const QUrl target = browser_->source().resolved(link);
        if (target.isLocalFile()) {
            browser_->setSource(target);
        } else {
            QDesktopServices::openUrl(target);
        }
    });
    connect(browser_, &QTextBrowser::sourceChanged, this, [this] {
        setWindowTitle(browser_->documentTitle());
        browser_->document()->setDocumentMargin(kTextMargin);
    });

    search_->setPlaceholderText(QStringLiteral("Search"));
    search_->setClearButtonEnabled(true);
    search_->hide();
    connect(search_, &QLineEdit::returnPressed, this, [this] { FindNext(); });
    connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, this, [this] { OpenSearch(); });
    connect(new QShortcut(QKeySequence::FindNext, this), &QShortcut::activated, this, [this] { FindNext(); });
    connect(new QShortcut(QKeySequence::FindPrevious, this), &QShortcut::activated, this,
            [this] { FindNext(true); });
    resize(kFirstSize.boundedTo(screen()->availableSize()));
}

void HtmlWindow::MakeToolRow(QBoxLayout* column) {
    auto* row = new QHBoxLayout;
    row->setContentsMargins(4, 4, 4, 4);
    const auto add = [&](Qt::ArrowType arrow, const QString& tip, QKeySequence keys) {
        auto* button = new QToolButton(this);
        button->setAutoRaise(true);
        button->setArrowType(arrow);
        button->setToolTip(tip);
        button->setShortcut(keys);
        button->setEnabled(false);
        row->addWidget(button);
        return button;
    };
    QToolButton* back = add(Qt::LeftArrow, QStringLiteral("Back"), QKeySequence::Back);
    QToolButton* forward = add(Qt::RightArrow, QStringLiteral("Forward"), QKeySequence::Forward);
    connect(back, &QToolButton::clicked, browser_, &QTextBrowser::backward);
    connect(forward, &QToolButton::clicked, browser_, &QTextBrowser::forward);
    connect(browser_, &QTextBrowser::backwardAvailable, back, &QWidget::setEnabled);
    connect(browser_, &QTextBrowser::forwardAvailable, forward, &QWidget::setEnabled);
    row->addStretch();
    row->addWidget(search_);
    auto* close = new QToolButton(this);
    close->setAutoRaise(true);
    close->setText(QStringLiteral("Close"));
    close->setShortcut(QKeySequence::Close);
    connect(close, &QToolButton::clicked, this, &QWidget::close);
    row->addWidget(close);
    column->addLayout(row);
}

bool HtmlWindow::ShowFile(const std::filesystem::path& html) {
    const QFileInfo file(QString::fromStdString(html.string()));
    if (!file.isFile() || !file.isReadable()) {
        return false;
    }
    browser_->setSource(QUrl::fromLocalFile(file.absoluteFilePath()));
    browser_->setFocus();
    show();
    raise();
    activateWindow();
    return true;
}

bool HtmlWindow::FindNext(bool backward) {
    if (search_->text().isEmpty()) {
        return false;
    }
    const QTextDocument::FindFlags flags =
        backward ? QTextDocument::FindBackward : QTextDocument::FindFlags();
    if (browser_->find(search_->text(), flags)) {
        return true;
    }
    const QTextCursor before = browser_->textCursor();
    browser_->moveCursor(backward ? QTextCursor::End : QTextCursor::Start);
    const bool found = browser_->find(search_->text(), flags);
    if (!found) {
        browser_->setTextCursor(before);
    }
    return found;
}

void HtmlWindow::OpenSearch() {
    search_->show();
    search_->setFocus();
    search_->selectAll();
}

void HtmlWindow::CloseSearch() {
    search_->hide();
    browser_->setFocus();
}

void HtmlWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Escape) {
        QWidget::keyPressEvent(event);
    } else if (search_->isVisible()) {
        CloseSearch();
    } else {
        close();
    }
}

}  // namespace quorix
