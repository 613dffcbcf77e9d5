// The lists of the converter: what they hold, and what a choice in them does.

#include <algorithm>

#include "reference/constant_text.h"
#include "reference/converter.h"
#include "reference/number_entry.h"
#include "reference/number_text.h"

namespace quorix {

namespace {

using enum ConverterField;

constexpr std::u16string_view kHasChildren = u"1";
constexpr std::u16string_view kSymbolAndName = u" - ";

std::vector<ListItem> GroupItems(const std::vector<GroupEntry>& groups, std::u16string_view tagOfParents) {
    std::vector<ListItem> items;
    for (const GroupEntry& group : groups) {
        items.push_back({group.name, group.hasChildren ? std::u16string(tagOfParents) : std::u16string()});
    }
    return items;
}

/// "EUR - Euro" with the tag "EUR" names Euro.
std::u16string NameOfItem(const ListItem& item) {
    const std::u16string head = item.tag + std::u16string(kSymbolAndName);
    return !item.tag.empty() && item.text.starts_with(head) ? item.text.substr(head.size()) : item.text;
}

}  // namespace

PressOutcome Converter::Press(HotSpot spot) {
    using Kind = PressOutcome::Kind;
    switch (spot) {
        case HotSpot::menu: return {Kind::categoryMenu, {}};
        case HotSpot::table: return {Kind::currencyTable, {}};
        case HotSpot::group:
            if (mode_ == ConverterMode::currency) {
                StartUpdate();
                return {};
            }
            break;
        case HotSpot::to:
            if (!HasSides()) {
                SendConstant();
                return {};
            }
            break;
        case HotSpot::subGroup:
        case HotSpot::from: break;
    }
    if (listOpen_) {
        listOpen_ = false;
        return {Kind::closeList, {}};
    }
    ConverterList list = ListOf(spot);
    if (list.items.empty()) {
        return {};
    }
    list.selected = std::clamp(list.selected, 0, static_cast<int>(list.items.size()) - 1);
    listOpen_ = true;
    return {Kind::openList, std::move(list)};
}

ConverterList Converter::ListOf(HotSpot spot) {
    if (!HasSides()) {
        return ConstantList(spot);
    }
    if (spot == HotSpot::from || spot == HotSpot::to) {
        return UnitList(spot == HotSpot::from ? 0 : 1);
    }
    if (spot != HotSpot::group) {
        return {};
    }
    std::vector<GroupEntry> categories;
    DataFileReader(unitFile_).ListUnitGroups(categories);
    return {CONVERTER_CATEGORY, GroupItems(categories, {}), state_.unitCategoryIndex};
}

ConverterList Converter::UnitList(int side) {
    ConverterList list{side == 0 ? CONVERTER_FROM : CONVERTER_TO, {}, Side(side).index};
    if (mode_ == ConverterMode::currency) {
        for (const UnitRecord& record : table_.Records()) {
            list.items.push_back(
                {record.symbol + std::u16string(kSymbolAndName) + record.name, record.symbol});
        }
        return list;
    }
    std::vector<UnitRecord> rows;
    DataFileReader(unitFile_).ReadUnitRows(state_.Field(catField).label, rows);
    for (UnitRecord& row : rows) {
        list.items.push_back({std::move(row.name), std::move(row.symbol)});
    }
    return list;
}

ConverterList Converter::ConstantList(HotSpot spot) {
    DataFileReader reader(constantFile_);
    const bool nested = mode_ == ConverterMode::nestedConstants;
    if (spot == HotSpot::from) {
        std::vector<ConstantRow> rows;
        reader.ReadConstantRows(state_.Field(nested ? constSubGroup : constGroup).label, rows);
        ConverterList list{CONVERTER_ROW, {}, state_.constItemIndex};
        for (ConstantRow& row : rows) {
            list.items.push_back({std::move(row.name), std::move(row.value)});
        }
        return list;
    }
    std::vector<GroupEntry> groups;
    if (spot == HotSpot::group) {
        reader.ListGroups(groups);
        return {CONVERTER_GROUP, GroupItems(groups, kHasChildren), state_.constGroupIndex};
    }
    if (nested) {
        reader.ListChildGroups(state_.Field(constGroup).label, groups);
    }
    return {CONVERTER_SUBGROUP, GroupItems(groups, {}), state_.constSubGroupIndex};
}

void Converter::OnCommand(int command, int index, const ListItem& item) {
    listOpen_ = false;
    switch (command) {
        case CONVERTER_CATEGORY: ChooseCategory(index, item); break;
        case CONVERTER_FROM: ChooseUnit(0, index, item); break;
        case CONVERTER_TO: ChooseUnit(1, index, item); break;
        case CONVERTER_GROUP: ChooseGroup(index, item); break;
        case CONVERTER_SUBGROUP: ChooseSubGroup(index, item); break;
        case CONVERTER_ROW: ChooseRow(index, item); break;
        default: break;
    }
}

void Converter::ChooseCategory(int index, const ListItem& item) {
    state_.unitCategoryIndex = index;
    state_.units = {};
    state_.Field(catField).label = item.text;
    state_.Field(unitFrom) = {};
    state_.Field(unitTo) = {};
    NumberEntry::Clear();
}

// The other side's number stays and this side follows it.
void Converter::ChooseUnit(int side, int index, const ListItem& item) {
    if (!HasSides()) {
        return;
    }
    Side(side) = {NameOfItem(item), index};
    SideText(side).label = item.tag;
    const std::u16string& fixed = SideText(1 - side).value;
    if (fixed.empty()) {
        return;
    }
    if (!NumberShown(fixed, ports_.numberLocale)) {
        ShowConverted(1 - side);  // A message of the units before gives way to what the new ones say.
        return;
    }
    ShowConverted(side);
    if (side == ActiveSide()) {
        // The number that now stands there is a result: a sign works on it, a digit begins a new one.
        NumberEntry::Clear();
        EnterActiveNumber();
        NumberEntry::Send(u"=");
    }
}

void Converter::ChooseGroup(int index, const ListItem& item) {
    state_.constGroupIndex = index;
    state_.constSubGroupIndex = 0;
    state_.constItemIndex = 0;
    SetMode(item.tag == kHasChildren ? ConverterMode::nestedConstants : ConverterMode::constants);
    state_.lastConstMode = mode_;
    state_.Field(constGroup).label = item.text;
    for (const ConverterField field : {constItem, constSubGroup, constSubItem, constValue}) {
        state_.Field(field).label.clear();
    }
}

void Converter::ChooseSubGroup(int index, const ListItem& item) {
    state_.constSubGroupIndex = index;
    state_.constItemIndex = 0;
    state_.Field(constSubGroup).label = item.text;
    state_.Field(constSubItem).label.clear();
    state_.Field(constValue).label.clear();
}

void Converter::ChooseRow(int index, const ListItem& item) {
    state_.constItemIndex = index;
    state_.Field(constValue).label = ShownConstant(item.tag, ports_.numberLocale);
    state_.Field(mode_ == ConverterMode::nestedConstants ? constSubItem : constItem).label = item.text;
}

void Converter::SendConstant() {
    const std::u16string text = ConstantForEditor(state_.Field(constValue).label,
                                                  state_.Field(constGroup).label, ports_.numberLocale);
    if (!text.empty()) {
        ports_.insertText(text);
    }
}

}  // namespace quorix
