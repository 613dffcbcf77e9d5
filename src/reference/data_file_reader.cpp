#include "reference/data_file_reader.h"

#include <algorithm>
#include <cstdlib>

#include "platform/files.h"
#include "platform/utf8.h"

namespace quorix {

namespace {

/// What a visitor thinks of a line.
enum class Step : std::uint8_t { next, stop, bad, full };

/// Case of A to Z does not count.
bool SameWord(std::u16string_view a, std::u16string_view b) {
    const auto fold = [](char16_t c) { return c >= u'A' && c <= u'Z' ? static_cast<char16_t>(c + 32) : c; };
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [&](char16_t x, char16_t y) { return fold(x) == fold(y); });
}
bool IsKeyword(std::string_view field, std::u16string_view keyword) {
    return SameWord(WidenField(field), keyword);
}

bool FlagOfField(std::string_view field) {
    return std::strtol(std::string(field).c_str(), nullptr, 10) != 0;
}

template <class Row>
Step Append(std::vector<Row>& rows, Row&& row) {
    if (rows.size() >= kMostDataRows) {
        return Step::full;
    }
    rows.push_back(std::forward<Row>(row));
    return Step::next;
}

// Visitors see the depth that counts the group being opened or closed: 1 for a top-level group.

class TopLevelVisitor {
  public:
    TopLevelVisitor(bool unitsOnly, bool firstOnly, std::vector<GroupEntry>& groups)
        : unitsOnly_(unitsOnly), firstOnly_(firstOnly), groups_(groups) {}

    Step Begin(int depth, std::u16string&& name, FieldCutter& fields) {
        if (depth != 1) {
            return Step::next;
        }
        const std::string_view flag = fields.Next();
        if (flag.empty()) {
            return Step::bad;
        }
        open_ = {std::move(name), FlagOfField(flag)};
        return Step::next;
    }
    Step End(int depth) {
        constexpr std::u16string_view kConstants = u"Constant";
        if (depth != 1 ||
            (unitsOnly_ &&
             SameWord(std::u16string_view(open_.name).substr(0, kConstants.size()), kConstants))) {
            return Step::next;
        }
        const Step step = Append(groups_, std::move(open_));
        return firstOnly_ ? Step::stop : step;
    }
    static Step Row(FieldCutter& /*fields*/, bool /*damaged*/) { return Step::next; }

  private:
    bool unitsOnly_;
    bool firstOnly_;
    std::vector<GroupEntry>& groups_;
    GroupEntry open_;
};

/// Notes where the wanted group is open.
class NamedGroup {
  public:
    explicit NamedGroup(std::u16string_view name) : name_(name) {}
    [[nodiscard]] bool IsOpen() const { return depth_ != 0; }
    [[nodiscard]] int Depth() const { return depth_; }
    void Begin(int depth, std::u16string_view name) {
        if (!IsOpen() && name == name_) {
            depth_ = depth;
        }
    }
    /// True when this end closes the wanted group.
    bool End(int depth) {
        if (!IsOpen() || depth != depth_) {
            return false;
        }
        depth_ = 0;
        return true;
    }

  private:
    std::u16string_view name_;
    int depth_ = 0;
};

class ChildVisitor {
  public:
    ChildVisitor(std::u16string_view name, std::vector<GroupEntry>& children)
        : group_(name), children_(children) {}

    // A child without a flag is a leaf: only top-level groups must have one.
    Step Begin(int depth, std::u16string&& name, FieldCutter& fields) {
        if (group_.IsOpen() && depth == group_.Depth() + 1) {
            open_ = {std::move(name), FlagOfField(fields.Next())};
        } else {
            group_.Begin(depth, name);
        }
        return Step::next;
    }
    Step End(int depth) {
        if (group_.IsOpen() && depth == group_.Depth() + 1) {
            return Append(children_, std::move(open_));
        }
        group_.End(depth);
        return Step::next;
    }
    static Step Row(FieldCutter& /*fields*/, bool /*damaged*/) { return Step::next; }

  private:
    NamedGroup group_;
    std::vector<GroupEntry>& children_;
    GroupEntry open_;
};

class ConstantVisitor {
  public:
    ConstantVisitor(std::u16string_view name, std::vector<ConstantRow>& rows) : group_(name), rows_(rows) {}

    Step Begin(int depth, std::u16string&& name, FieldCutter& /*fields*/) {
        group_.Begin(depth, name);
        return Step::next;
    }
    Step End(int depth) { return group_.End(depth) ? Step::stop : Step::next; }
    Step Row(FieldCutter& fields, bool damaged) {
        if (!group_.IsOpen()) {
            return Step::next;
        }
        const std::string_view name = fields.Next();
        const std::string_view value = fields.Next();
        if (damaged || value.empty()) {
            return Step::bad;
        }
        return Append(rows_, ConstantRow{NameOfField(name), NameOfField(value)});
    }

  private:
    NamedGroup group_;
    std::vector<ConstantRow>& rows_;
};

class UnitVisitor {
  public:
    UnitVisitor(std::u16string_view name, std::vector<UnitRecord>& rows) : group_(name), rows_(rows) {}

    Step Begin(int depth, std::u16string&& name, FieldCutter& /*fields*/) {
        group_.Begin(depth, name);
        return Step::next;
    }
    Step End(int depth) {
        group_.End(depth);
        return Step::next;
    }
    Step Row(FieldCutter& fields, bool damaged) {
        if (!group_.IsOpen()) {
            return Step::next;
        }
        UnitRecord record;
        if (damaged || !ReadUnitRow(fields, record)) {
            return Step::bad;
        }
        return Append(rows_, std::move(record));
    }

  private:
    NamedGroup group_;
    std::vector<UnitRecord>& rows_;
};

/// Sends a line to the visitor; depth counts the open groups.
template <class Visitor>
Step Visit(const DataLine& line, int& depth, Visitor& visitor) {
    FieldCutter row(line.text, FieldSeparators::blanksAndColons);
    if (row.Rest().empty()) {
        return Step::next;
    }
    if (!row.Rest().starts_with('#')) {
        return visitor.Row(row, line.damaged);
    }
    FieldCutter control(line.text, FieldSeparators::blanksColonsAndHashes);
    const std::string_view keyword = control.Next();
    if (IsKeyword(keyword, u"Begin")) {
        ++depth;
        const std::string_view name = control.Next();
        return line.damaged || name.empty() ? Step::bad : visitor.Begin(depth, NameOfField(name), control);
    }
    // An end too many is passed over, so that the groups behind it are found.
    if (IsKeyword(keyword, u"End") && depth > 0) {
        return visitor.End(depth--);
    }
    return Step::next;
}

}  // namespace

template <class Visitor>
bool DataFileReader::Scan(Visitor& visitor) {
    error_ = DATA_NO_ERROR;
    const auto bytes = ReadWholeFile(path_);
    if (!bytes) {
        error_ = DATA_NOT_OPENED;
        return false;
    }
    DataLines lines({reinterpret_cast<const char*>(bytes->data()), bytes->size()}, kLongestGroupLine);
    int depth = 0;
    for (DataLine line; lines.Next(line);) {
        switch (Visit(line, depth, visitor)) {
            case Step::next: break;
            case Step::stop: return true;
            case Step::bad: error_ = line.number; return false;
            case Step::full: error_ = DATA_OVERFLOW; return false;
        }
    }
    return true;
}

bool DataFileReader::ListTopLevel(bool unitsOnly, bool firstOnly, std::vector<GroupEntry>& groups) {
    groups.clear();
    TopLevelVisitor visitor(unitsOnly, firstOnly, groups);
    return Scan(visitor);
}

bool DataFileReader::ListGroups(std::vector<GroupEntry>& groups) {
    return ListTopLevel(false, false, groups);
}

bool DataFileReader::ListUnitGroups(std::vector<GroupEntry>& groups) {
    return ListTopLevel(true, false, groups);
}

bool DataFileReader::FirstGroup(GroupEntry& entry) {
    std::vector<GroupEntry> groups;
    const bool read = ListTopLevel(false, true, groups);
    entry = groups.empty() ? GroupEntry{} : std::move(groups.front());
    return read;
}

bool DataFileReader::ListChildGroups(std::u16string_view name, std::vector<GroupEntry>& children) {
    children.clear();
    ChildVisitor visitor(name, children);
    return Scan(visitor);
}

bool DataFileReader::ReadConstantRows(std::u16string_view group, std::vector<ConstantRow>& rows) {
    rows.clear();
    ConstantVisitor visitor(group, rows);
    return Scan(visitor);
}

bool DataFileReader::ReadUnitRows(std::u16string_view group, std::vector<UnitRecord>& rows) {
    rows.clear();
    UnitVisitor visitor(group, rows);
    return Scan(visitor);
}

std::u16string DataFileReader::ErrorText() const {
    const std::u16string path = FromUtf8(path_.string());
    if (error_ > 0) {
        return u"Error on line " + FromUtf8(std::to_string(error_)) + u" in " + path + u".";
    }
    switch (error_) {
        case DATA_NO_ERROR: return u"No Error.";
        case DATA_NOT_OPENED: return u"Loi mo tep " + path + u".";
        case DATA_OVERFLOW: return u"Stack over flow.";
        default: return u"Unknown Error.";
    }
}

}  // namespace quorix
