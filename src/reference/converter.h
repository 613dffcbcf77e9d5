#pragma once

// The unit converter, the currency converter and the constants: one model with one unit table and four modes.

#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/http.h"
#include "platform/notices.h"
#include "platform/timers.h"
#include "reference/converter_state.h"
#include "reference/data_file_reader.h"
#include "reference/hot_spots.h"
#include "reference/unit_table.h"

namespace quorix {

/// What the converter asks of the program. All of it outlives the converter.
struct ConverterPorts {
    /// The number-format preference, read at every use.
    const std::u16string& numberLocale;
    Timers& timers;
    HttpClient& http;
    Notices& notices;
    /// Stores into and fetches from the calculator's memory cell, in plain decimal text with "." and perhaps
    /// an exponent "E-12"; an empty cell is an empty text.
    std::function<void(std::string_view plain)> storeMemory;
    std::function<std::string()> recallMemory;
    /// Inserts at the cursor of the expression editor.
    std::function<void(std::u16string_view text)> insertText;
};

/// A row of a popup list.
struct ListItem {
    std::u16string text;
    std::u16string tag;
    friend bool operator==(const ListItem&, const ListItem&) = default;
};

/// The commands that list choices come back with.
enum ConverterCommand : int {
    CONVERTER_CATEGORY = 1003,
    CONVERTER_FROM = 1004,
    CONVERTER_TO = 1005,
    CONVERTER_GROUP = 1006,
    CONVERTER_SUBGROUP = 1007,
    CONVERTER_ROW = 1008,
};

/// A list to be opened at the spot that was pressed; selected: the row to begin with.
struct ConverterList {
    ConverterCommand command = CONVERTER_CATEGORY;
    std::vector<ListItem> items;
    int selected = 0;
};

/// What a pressed spot asks of the window.
struct PressOutcome {
    enum class Kind : std::uint8_t { nothing, categoryMenu, currencyTable, openList, closeList };
    Kind kind = Kind::nothing;
    ConverterList list;
};

/// Keys of the converter that have no character of their own.
inline constexpr int kConverterTab = 9;
inline constexpr int kConverterBackspace = 8;
inline constexpr int kConverterEnter = 13;
inline constexpr int kConverterEscape = 27;
/// The timer that starts a rate update, and its delay.
inline constexpr int kUpdateTimer = 1000;
inline constexpr int kUpdateDelayMs = 500;

class Converter {
  public:
    /// folder: the program's folder with its data files. The saved state is read at once.
    Converter(ConverterPorts ports, std::filesystem::path folder);

    /// Writes the state; false when the disk refuses.
    [[nodiscard]] bool Save() const;

    /// Shows a mode and fills what a new window lacks. Units and currencies are loaded anew.
    void SetMode(ConverterMode mode);
    [[nodiscard]] ConverterMode Mode() const { return mode_; }
    [[nodiscard]] ConverterMode LastConstMode() const { return state_.lastConstMode; }
    [[nodiscard]] std::vector<ConverterField> VisibleFields() const;
    [[nodiscard]] const FieldText& Field(ConverterField field) const { return state_.Field(field); }
    [[nodiscard]] const ConverterState& State() const { return state_; }
    /// The field that is typed into; nothing among the constants.
    [[nodiscard]] std::optional<ConverterField> ActiveField() const;
    /// Writes all fields in the signs of the other locale, for a change of the preference.
    void ExchangeDecimalSigns();
    [[nodiscard]] UnitTable& Table() { return table_; }
    [[nodiscard]] const std::filesystem::path& CurrencyFile() const { return currencyFile_; }

    /// True when the key was consumed; among the constants none is. Keys are characters and the kConverter
    /// codes. From a keyboard "_" changes the sign as "~" does, and "," is the point where the locale has it.
    bool OnKey(int keyCode);
    /// A tap on a field: typing goes on from the number it shows.
    void OnFieldPressed(ConverterField field);
    /// From a key token (a digit, "..", "\b", a sign, "=", "DoNothing" or a whole number) to both fields. A
    /// text of more than 17 characters takes only "\b".
    void Feed(std::u16string_view token);

    /// value times factor plus offset; false with the words of the failure.
    bool Convert(std::u16string_view fromName, double value, std::u16string_view toName, double& result,
                 std::u16string& errorText);

    /// What a pressed spot does in this mode. While a list is open a second press closes it.
    PressOutcome Press(HotSpot spot);
    /// The window tells that a list has gone without a choice.
    void ListClosed() { listOpen_ = false; }
    /// A choice in a list that Press has opened.
    void OnCommand(int command, int index, const ListItem& item);

    /// Announces an update in the status line; it runs when the window hands in its timer.
    void StartUpdate();
    /// Timer of the window; blocks for as long as the network takes.
    void OnTimer(int id);

  private:
    [[nodiscard]] bool HasSides() const { return mode_ <= ConverterMode::currency; }
    [[nodiscard]] ConverterField SideField(int side) const;
    [[nodiscard]] FieldText& SideText(int side) { return state_.Field(SideField(side)); }
    [[nodiscard]] ConverterSide& Side(int side);
    [[nodiscard]] int& ActiveSide() {
        return mode_ == ConverterMode::units ? unitActiveSide_ : curActiveSide_;
    }
    [[nodiscard]] bool TakesTokens();

    void LoadTable(const std::filesystem::path& file);
    void ShowUnits();
    void ShowCurrencies();
    void ShowConstants();

    void Process(std::u16string_view token);
    void ShowEntry();
    void ShowConverted(int side);
    void SwapActiveSide();
    void EnterActiveNumber();
    void ClearBoth();
    void ChangeSign();
    void Equals();
    void StoreMemory();
    void RecallMemory();

    [[nodiscard]] ConverterList ListOf(HotSpot spot);
    [[nodiscard]] ConverterList UnitList(int side);
    [[nodiscard]] ConverterList ConstantList(HotSpot spot);
    void ChooseCategory(int index, const ListItem& item);
    void ChooseUnit(int side, int index, const ListItem& item);
    void ChooseGroup(int index, const ListItem& item);
    void ChooseSubGroup(int index, const ListItem& item);
    void ChooseRow(int index, const ListItem& item);
    void SendConstant();

    ConverterPorts ports_;
    std::filesystem::path unitFile_;
    std::filesystem::path currencyFile_;
    std::filesystem::path constantFile_;
    std::filesystem::path stateFile_;
    UnitTable table_;
    ConverterState state_;
    ConverterMode mode_ = ConverterMode::units;
    int unitActiveSide_ = 0;
    int curActiveSide_ = 0;
    bool listOpen_ = false;
};

}  // namespace quorix
