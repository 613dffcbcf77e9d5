#pragma once

#include <QDialog>
#include <filesystem>
#include <functional>

#include "platform/sound.h"
#include "shell/preferences.h"
#include "shell/skin.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QListWidget;
class QRadioButton;
class QSlider;
class QTabWidget;

namespace quorix {

/// "Preferences" with its five pages. OK gives the changed settings back through Result; Cancel changes
/// nothing.
class PreferencesDialog : public QDialog {
  public:
    struct Surroundings {
        std::filesystem::path folder;
        /// The skin in use; previews of others are found through it.
        const Skin& skin;
        /// May be null: then "Play" is dead.
        SoundPlayer* sound;
        /// Desktop points for one logical unit.
        double pixelsPerUnit;
    };
    PreferencesDialog(QWidget* parent, const Preferences& settings, const Surroundings& surroundings);

    /// The settings as the controls stand.
    [[nodiscard]] Preferences Result() const;

  private:
    QWidget* MakeGeneral();
    QWidget* MakeCategories();
    QWidget* MakeSounds();
    QWidget* MakeSkins();
    QWidget* MakeModes();
    void FillCategories(int selectedRow);
    void TakeChecks();
    void MoveCategory(int move);
    void ShowPreview();
    void EnableModes();

    Preferences settings_;
    std::filesystem::path folder_;
    const Skin& skin_;
    SoundPlayer* sound_;
    double pixelsPerUnit_;

    QTabWidget* pages_ = nullptr;
    QCheckBox* transparence_ = nullptr;
    QSlider* transparenceLevel_ = nullptr;
    QCheckBox* tapHold_ = nullptr;
    QSlider* tapHoldInterval_ = nullptr;
    QComboBox* fixDigits_ = nullptr;
    QCheckBox* toolTips_ = nullptr;
    QCheckBox* hardKeys_ = nullptr;
    QListWidget* categories_ = nullptr;
    QCheckBox* sounds_ = nullptr;
    QListWidget* soundFiles_ = nullptr;
    QListWidget* skins_ = nullptr;
    QLabel* preview_ = nullptr;
    QComboBox* inputMode_ = nullptr;
    QRadioButton* standard_ = nullptr;
    QRadioButton* reversePolish_ = nullptr;
    QComboBox* locale_ = nullptr;
    QComboBox* fraction_ = nullptr;
};

}  // namespace quorix
