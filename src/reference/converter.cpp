#include "reference/converter.h"

#include <exception>
#include <utility>

#include "engine/number_locale.h"
#include "engine/text_fold.h"
#include "platform/path.h"
#include "platform/utf8.h"
#include "reference/constant_text.h"
#include "reference/currency_file.h"
#include "reference/number_entry.h"
#include "reference/number_text.h"
#include "reference/rate_update.h"

namespace quorix {

namespace {

using enum ConverterField;

constexpr int kDefaultRateDecimals = 8;

}  // namespace

Converter::Converter(ConverterPorts ports, std::filesystem::path folder)
    : ports_(std::move(ports)),
      unitFile_(ResolvePath(folder, u"units.dat")),
      currencyFile_(ResolvePath(folder, u"currency.dat")),
      constantFile_(ResolvePath(folder, u"const.dat")),
      stateFile_(folder / "Converter.dat") {
    ReadConverterState(stateFile_, state_);
}

bool Converter::Save() const {
    return WriteConverterState(stateFile_, state_);
}

ConverterField Converter::SideField(int side) const {
    if (mode_ == ConverterMode::units) {
        return side == 0 ? unitFrom : unitTo;
    }
    return side == 0 ? curFrom : curTo;
}

ConverterSide& Converter::Side(int side) {
    auto& pair = mode_ == ConverterMode::units ? state_.units : state_.currencies;
    return pair[static_cast<std::size_t>(side)];
}

std::vector<ConverterField> Converter::VisibleFields() const {
    switch (mode_) {
        case ConverterMode::units: return {catField, unitFrom, unitTo};
        case ConverterMode::currency: return {status, curFrom, curTo};
        case ConverterMode::constants: return {constGroup, constItem, constValue};
        case ConverterMode::nestedConstants: return {constGroup, constSubGroup, constSubItem, constValue};
    }
    return {};
}

std::optional<ConverterField> Converter::ActiveField() const {
    if (!HasSides()) {
        return std::nullopt;
    }
    return SideField(mode_ == ConverterMode::units ? unitActiveSide_ : curActiveSide_);
}

void Converter::SetMode(ConverterMode mode) {
    mode_ = mode;
    listOpen_ = false;
    switch (mode) {
        case ConverterMode::units: ShowUnits(); break;
        case ConverterMode::currency: ShowCurrencies(); break;
        case ConverterMode::constants: ShowConstants(); break;
        case ConverterMode::nestedConstants: break;  // Filled by its lists alone.
    }
    if (HasSides()) {
        // What another calculator has left in the key engine is no number of these fields.
        NumberEntry::Clear();
    }
}

// Without its file a mode has no units, rather than those of the mode before.
void Converter::LoadTable(const std::filesystem::path& file) {
    if (!table_.Load(file) && table_.Error() == DATA_NOT_OPENED) {
        table_.Clear();
    }
}

void Converter::ShowUnits() {
    LoadTable(unitFile_);
    const auto count = static_cast<int>(table_.Records().size());
    if (state_.units[1].index >= count || state_.Field(unitFrom) != FieldText{}) {
        return;
    }
    DataFileReader reader(unitFile_);
    GroupEntry category;
    reader.FirstGroup(category);
    if (category.name.empty()) {
        return;
    }
    state_.Field(catField).label = category.name;
    state_.unitCategoryIndex = 0;
    std::vector<UnitRecord> rows;
    reader.ReadUnitRows(category.name, rows);
    if (rows.size() < 2) {
        return;
    }
    for (int side = 0; side < 2; ++side) {
        const UnitRecord& row = rows[static_cast<std::size_t>(side)];
        Side(side).name = row.name;
        SideText(side) = {u"0", row.symbol};
    }
}

// The first row is the base of all rates, so that one of it is 1 / factor of the second.
void Converter::ShowCurrencies() {
    LoadTable(currencyFile_);
    state_.Field(status) = {{}, LocalRateDate(currencyFile_)};
    const auto records = table_.Records();
    if (state_.currencies[0].index >= static_cast<int>(records.size()) ||
        state_.Field(curFrom) != FieldText{}) {
        return;
    }
    state_.Field(curFrom) = {u"1", records[0].symbol};
    state_.currencies[0] = {records[0].name, 0};
    if (records.size() < 2) {
        return;
    }
    state_.currencies[1] = {records[1].name, 1};
    state_.Field(curTo) = {{}, records[1].symbol};
    if (records[1].factor != 0) {
        std::string text = FixedDecimals(1 / records[1].factor, kDefaultRateDecimals);
        StripTrailingZeros(text);
        state_.Field(curTo).value = ShownConstant(FromUtf8(text), ports_.numberLocale);
    }
}

void Converter::ShowConstants() {
    if (!state_.Field(constGroup).label.empty()) {
        return;
    }
    DataFileReader reader(constantFile_);
    GroupEntry group;
    if (!reader.FirstGroup(group)) {
        return;
    }
    state_.Field(constGroup).label = group.name;
    std::vector<ConstantRow> rows;
    if (!group.hasChildren) {
        reader.ReadConstantRows(group.name, rows);
    }
    if (!rows.empty()) {
        state_.Field(constItem).label = rows.front().name;
        state_.Field(constValue).label = ShownConstant(rows.front().value, ports_.numberLocale);
    }
}

void Converter::ExchangeDecimalSigns() {
    for (const ConverterField field : {unitFrom, unitTo, curFrom, curTo}) {
        std::u16string& text = state_.Field(field).value;
        // Messages, and results in the "%.8e" form, have "." in every locale.
        const std::u16string_view digits = std::u16string_view(text).substr(text.starts_with(u'-') ? 1 : 0);
        if (!digits.empty() && IsDigit(digits.front()) && digits.find(u'e') == digits.npos) {
            quorix::ExchangeDecimalSigns(text);
        }
    }
    quorix::ExchangeDecimalSigns(state_.Field(constValue).label);
}

bool Converter::Convert(std::u16string_view fromName, double value, std::u16string_view toName,
                        double& result, std::u16string& errorText) {
    try {
        double factor = 1;
        double offset = 0;
        if (!table_.GetConversion(fromName, toName, factor, offset)) {
            errorText = table_.ErrorText();
            return false;
        }
        result = value * factor + offset;
        return true;
    } catch (const std::exception&) {
        errorText = u"Out of memory";
        return false;
    }
}

void Converter::StartUpdate() {
    state_.Field(status) = {{}, u"Updating ..."};
    ports_.timers.Set(kUpdateTimer, kUpdateDelayMs);
}

// The fields follow with the next key. Where the rows have given way to those of units they stay.
void Converter::OnTimer(int id) {
    if (id != kUpdateTimer) {
        return;
    }
    ports_.timers.Kill(kUpdateTimer);
    UnitTable aside;
    const bool holdsRates = mode_ == ConverterMode::currency || table_.LoadedPath() == currencyFile_;
    state_.Field(status).label =
        UpdateRates(currencyFile_, ports_.http, ports_.notices, holdsRates ? table_ : aside);
}

}  // namespace quorix
