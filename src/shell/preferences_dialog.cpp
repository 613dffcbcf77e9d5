#include "shell/preferences_dialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QTabWidget>
#include <QVBoxLayout>
#include <algorithm>

#include "platform/dense_picture.h"
#include "platform/path.h"
#include "platform/qt/conversions.h"
#include "platform/qt/fonts.h"
#include "platform/qt/pictures.h"
#include "shell/preferences_pages.h"

namespace quorix {

namespace {

constexpr int kLeastTransparence = 0;
constexpr int kMostTransparence = 50;
constexpr int kShortestHold = 200;
constexpr int kLongestHold = 600;
constexpr int kMostFixDigits = 32;
/// Role under which a row keeps what it stands for.
constexpr int kValueRole = Qt::UserRole;
constexpr QSize kPreviewUnits(120, 147);

QSlider* NewSlider(int least, int most, int value) {
    auto* const slider = new QSlider(Qt::Horizontal);
    slider->setRange(least, most);
    slider->setValue(value);
    return slider;
}

QCheckBox* NewCheck(const QString& text, std::uint32_t on) {
    auto* const box = new QCheckBox(text);
    box->setChecked(on != 0);
    return box;
}

/// A slider between the words for its ends.
QLayout* Between(const QString& least, QSlider* slider, const QString& most) {
    auto* const row = new QHBoxLayout;
    row->addWidget(new QLabel(least));
    row->addWidget(slider, 1);
    row->addWidget(new QLabel(most));
    return row;
}

void FillFiles(QListWidget& list, const std::vector<FileChoice>& files, std::u16string_view chosen) {
    for (const FileChoice& file : files) {
        auto* const row = new QListWidgetItem(ToQString(file.shown), &list);
        row->setData(kValueRole, ToQString(file.file));
        if (SameFileName(file.file, chosen)) {
            list.setCurrentItem(row);
        }
    }
}

std::u16string ChosenFile(const QListWidget& list, const std::u16string& otherwise) {
    const QListWidgetItem* const row = list.currentItem();
    return row != nullptr ? row->data(kValueRole).toString().toStdU16String() : otherwise;
}

}  // namespace

PreferencesDialog::PreferencesDialog(QWidget* parent, const Preferences& settings,
                                     const Surroundings& surroundings)
    : QDialog(parent),
      settings_(settings),
      folder_(surroundings.folder),
      skin_(surroundings.skin),
      sound_(surroundings.sound),
      pixelsPerUnit_(surroundings.pixelsPerUnit) {
    setWindowTitle(QStringLiteral("Preferences"));
    setFont(FormFont(pixelsPerUnit_));
    pages_ = new QTabWidget;
    pages_->addTab(MakeGeneral(), QStringLiteral("General"));
    pages_->addTab(MakeCategories(), QStringLiteral("Categories"));
    pages_->addTab(MakeSounds(), QStringLiteral("Sounds"));
    pages_->addTab(MakeSkins(), QStringLiteral("Skins"));
    pages_->addTab(MakeModes(), QStringLiteral("Modes"));
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(pages_);
    layout->addWidget(buttons);
}

QWidget* PreferencesDialog::MakeGeneral() {
    auto* const page = new QWidget;
    auto* const layout = new QVBoxLayout(page);
    transparence_ = NewCheck(QStringLiteral("Enable transparence"), settings_.transparenceEnabled);
    transparenceLevel_ =
        NewSlider(kLeastTransparence, kMostTransparence, static_cast<int>(settings_.transparenceLevel));
    layout->addWidget(transparence_);
    layout->addLayout(Between(QStringLiteral("Min"), transparenceLevel_, QStringLiteral("Max")));
    tapHold_ =
        NewCheck(QStringLiteral("When \"Tap n Hold\", enter orange functions"), settings_.tapHoldEnabled);
    tapHoldInterval_ = NewSlider(kShortestHold, kLongestHold, static_cast<int>(settings_.tapHoldInterval));
    tapHoldInterval_->setPageStep(50);
    auto* const milliseconds = new QLabel;
    const auto showInterval = [milliseconds](int value) {
        milliseconds->setText(QStringLiteral("%1 ms").arg(value));
    };
    connect(tapHoldInterval_, &QSlider::valueChanged, milliseconds, showInterval);
    showInterval(tapHoldInterval_->value());
    layout->addWidget(tapHold_);
    auto* const interval = new QHBoxLayout;
    interval->addWidget(new QLabel(QStringLiteral("Interval")));
    interval->addWidget(tapHoldInterval_, 1);
    interval->addWidget(milliseconds);
    layout->addLayout(interval);
    fixDigits_ = new QComboBox;
    for (int digits = 0; digits <= kMostFixDigits; ++digits) {
        fixDigits_->addItem(QString::number(digits));
    }
    fixDigits_->setCurrentIndex(settings_.calculator.fixDigits);
    auto* const form = new QFormLayout;
    form->addRow(QStringLiteral("Decimal digits in fix mode"), fixDigits_);
    layout->addLayout(form);
    toolTips_ = NewCheck(QStringLiteral("Enable function's tooltip."), settings_.calculator.toolTipsEnabled);
    layout->addWidget(toolTips_);
    layout->addStretch();
    const auto enable = [this] {
        transparenceLevel_->setEnabled(transparence_->isChecked());
        tapHoldInterval_->setEnabled(tapHold_->isChecked());
    };
    connect(transparence_, &QCheckBox::toggled, this, enable);
    connect(tapHold_, &QCheckBox::toggled, this, enable);
    enable();
    return page;
}

QWidget* PreferencesDialog::MakeCategories() {
    auto* const page = new QWidget;
    auto* const layout = new QVBoxLayout(page);
    hardKeys_ =
        NewCheck(QStringLiteral("Enable scrolling categories by hard keys."), settings_.hardKeyScrolling);
    layout->addWidget(hardKeys_);
    auto* const caption =
        new QLabel(QStringLiteral("Select the categories to arrange in navigating by hard keys:"));
    caption->setWordWrap(true);
    layout->addWidget(caption);
    categories_ = new QListWidget;
    auto* const row = new QHBoxLayout;
    row->addWidget(categories_, 1);
    auto* const buttons = new QVBoxLayout;
    constexpr std::pair<const char*, RowMove> kMoves[] = {
        {"Top", RowMove::top}, {"Up", RowMove::up}, {"Down", RowMove::down}, {"Bottom", RowMove::bottom}};
    for (const auto& [text, move] : kMoves) {
        auto* const button = new QPushButton(QString::fromLatin1(text));
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this,
                [this, move = move] { MoveCategory(static_cast<int>(move)); });
        buttons->addWidget(button);
    }
    auto* const standard = new QPushButton(QStringLiteral("Default"));
    standard->setAutoDefault(false);
    connect(standard, &QPushButton::clicked, this, [this] {
        TakeChecks();
        settings_.categoryOrder = DefaultCategoryOrder();
        FillCategories(0);
    });
    buttons->addStretch();
    buttons->addWidget(standard);
    row->addLayout(buttons);
    layout->addLayout(row, 1);
    FillCategories(0);
    return page;
}

void PreferencesDialog::FillCategories(int selectedRow) {
    categories_->clear();
    for (const std::uint8_t category : settings_.categoryOrder) {
        auto* const row = new QListWidgetItem(ToQString(kCategoryNames[category]), categories_);
        row->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
        row->setCheckState(settings_.categoryEnabled[category] != 0 ? Qt::Checked : Qt::Unchecked);
        row->setData(kValueRole, category);
    }
    categories_->setCurrentRow(selectedRow);
}

void PreferencesDialog::TakeChecks() {
    for (int i = 0; i < categories_->count(); ++i) {
        const QListWidgetItem* const row = categories_->item(i);
        settings_.categoryEnabled[static_cast<std::size_t>(row->data(kValueRole).toInt())] =
            row->checkState() == Qt::Checked ? 1 : 0;
    }
}

void PreferencesDialog::MoveCategory(int move) {
    if (categories_->currentRow() >= 0) {
        TakeChecks();
        FillCategories(
            MoveRow(settings_.categoryOrder, categories_->currentRow(), static_cast<RowMove>(move)));
    }
}

QWidget* PreferencesDialog::MakeSounds() {
    auto* const page = new QWidget;
    auto* const layout = new QVBoxLayout(page);
    sounds_ = NewCheck(QStringLiteral("Enable play sound"), settings_.soundEnabled);
    soundFiles_ = new QListWidget;
    FillFiles(*soundFiles_, SoundChoices(folder_), settings_.soundFile);
    auto* const play = new QPushButton(QStringLiteral("Play"));
    play->setAutoDefault(false);
    play->setEnabled(sound_ != nullptr && soundFiles_->count() > 0);
    connect(play, &QPushButton::clicked, this, [this] {
        sound_->Play(ResolvePath(folder_, u"Sounds\\" + ChosenFile(*soundFiles_, settings_.soundFile)));
    });
    layout->addWidget(sounds_);
    layout->addWidget(soundFiles_, 1);
    layout->addWidget(play, 0, Qt::AlignRight);
    return page;
}

QWidget* PreferencesDialog::MakeSkins() {
    auto* const page = new QWidget;
    auto* const layout = new QHBoxLayout(page);
    skins_ = new QListWidget;
    preview_ = new QLabel;
    preview_->setAlignment(Qt::AlignCenter);
    preview_->setMinimumSize((QSizeF(kPreviewUnits) * pixelsPerUnit_).toSize());
    layout->addWidget(skins_, 1);
    layout->addWidget(preview_);
    connect(skins_, &QListWidget::currentRowChanged, this, [this] { ShowPreview(); });
    FillFiles(*skins_, SkinChoices(folder_), settings_.skinFile);
    return page;
}

void PreferencesDialog::ShowPreview() {
    const std::filesystem::path path =
        skin_.FindSkinValue("SkinPreview", ChosenFile(*skins_, settings_.skinFile));
    const int scale = pixelsPerUnit_ > 1 ? 2 : 1;
    const double density = pixelsPerUnit_ / scale * devicePixelRatioF();
    const QImage picture = ToQImage(LoadDense(path, scale, density));
    if (picture.isNull()) {
        preview_->setText(QStringLiteral("No preview"));
        return;
    }
    const QSize size = (QSizeF(kPreviewUnits) * pixelsPerUnit_ * devicePixelRatioF()).toSize();
    QImage shown = picture.size() == size
                       ? picture
                       : picture.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    shown.setDevicePixelRatio(devicePixelRatioF());
    preview_->setPixmap(QPixmap::fromImage(shown));
}

QWidget* PreferencesDialog::MakeModes() {
    auto* const page = new QWidget;
    auto* const layout = new QVBoxLayout(page);
    auto* const form = new QFormLayout;
    inputMode_ = new QComboBox;
    inputMode_->addItems({QStringLiteral("String"), QStringLiteral("Basic")});
    inputMode_->setCurrentIndex(settings_.calculator.IsStringMode() ? 0 : 1);
    standard_ = new QRadioButton(QStringLiteral("Standard"));
    reversePolish_ = new QRadioButton(QStringLiteral("RPN"));
    (settings_.calculator.inputMode == kModeRpn ? reversePolish_ : standard_)->setChecked(true);
    auto* const kinds = new QHBoxLayout;
    kinds->addWidget(standard_);
    kinds->addWidget(reversePolish_);
    kinds->addStretch();
    form->addRow(QStringLiteral("Input mode:"), inputMode_);
    form->addRow(QString(), kinds);
    locale_ = new QComboBox;
    for (const std::u16string_view name : kLocaleChoices) {
        locale_->addItem(ToQString(name));
    }
    const auto* const place =
        std::find(kLocaleChoices.begin(), kLocaleChoices.end(), settings_.calculator.numberLocale);
    locale_->setCurrentIndex(
        place == kLocaleChoices.end() ? 0 : static_cast<int>(place - kLocaleChoices.begin()));
    form->addRow(QStringLiteral("Output mode:"), locale_);
    form->addRow(QString(),
                 new QLabel(QStringLiteral("(US date    : mm/dd/yyyy\n US number: 123,456.789\n EU date "
                                           "    : dd/mm/yyyy\n EU number:  123.456,789)")));
    fraction_ = new QComboBox;
    for (const std::u16string_view text : kFractionChoices) {
        fraction_->addItem(ToQString(text));
    }
    const auto limit = settings_.calculator.fractionLimit;
    fraction_->setCurrentIndex(limit < kFractionChoices.size() ? static_cast<int>(limit) : 0);
    form->addRow(QStringLiteral("Fraction denominator:"), fraction_);
    layout->addLayout(form);
    layout->addStretch();
    connect(inputMode_, &QComboBox::currentIndexChanged, this, [this] { EnableModes(); });
    EnableModes();
    return page;
}

void PreferencesDialog::EnableModes() {
    const bool basic = inputMode_->currentIndex() == 1;
    standard_->setEnabled(basic);
    reversePolish_->setEnabled(basic);
}

Preferences PreferencesDialog::Result() const {
    Preferences result = settings_;
    result.transparenceEnabled = transparence_->isChecked() ? 1 : 0;
    result.transparenceLevel = static_cast<std::uint32_t>(transparenceLevel_->value());
    result.tapHoldEnabled = tapHold_->isChecked() ? 1 : 0;
    result.tapHoldInterval = static_cast<std::uint32_t>(tapHoldInterval_->value());
    result.hardKeyScrolling = hardKeys_->isChecked() ? 1 : 0;
    result.soundEnabled = sounds_->isChecked() ? 1 : 0;
    for (int i = 0; i < categories_->count(); ++i) {
        const QListWidgetItem* const row = categories_->item(i);
        result.categoryEnabled[static_cast<std::size_t>(row->data(kValueRole).toInt())] =
            row->checkState() == Qt::Checked ? 1 : 0;
    }
    result.soundFile = ChosenFile(*soundFiles_, settings_.soundFile);
    result.skinFile = ChosenFile(*skins_, settings_.skinFile);
    CalculatorSettings& calculator = result.calculator;
    calculator.toolTipsEnabled = toolTips_->isChecked() ? 1 : 0;
    calculator.fixDigits = static_cast<std::uint8_t>(fixDigits_->currentIndex());
    calculator.inputMode = InputModeOf(inputMode_->currentIndex() == 1, reversePolish_->isChecked());
    calculator.numberLocale = kLocaleChoices[static_cast<std::size_t>(locale_->currentIndex())];
    calculator.fractionLimit = static_cast<std::uint32_t>(fraction_->currentIndex());
    return result;
}

}  // namespace quorix
