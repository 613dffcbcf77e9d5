#pragma once

// The text data files "units.dat", "currency.dat" and "const.dat": rows in nested groups, a record a line.
//   '#Begin:NAME:FLAG' opens a group (a flag other than 0: it holds groups), '#End' closes the innermost one;
//   any other line with "#" is a comment. Fields stand between blanks and tabs, "_" in them means a blank.

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "reference/data_errors.h"
#include "reference/unit_record.h"

namespace quorix {

struct GroupEntry {
    std::u16string name;
    bool hasChildren = false;
    friend bool operator==(const GroupEntry&, const GroupEntry&) = default;
};

/// The value stays text: a number with perhaps a blank and a unit, or a formula.
struct ConstantRow {
    std::u16string name;
    std::u16string value;
    friend bool operator==(const ConstantRow&, const ConstantRow&) = default;
};

/// Every operation reads the file anew and fills its list from the start. False leaves the reason in Error()
/// and in the list what came before the failure. The end of the file ends every scan with success, whatever
/// is open. Names are given and compared with blanks, case counting.
class DataFileReader {
  public:
    explicit DataFileReader(std::filesystem::path path) : path_(std::move(path)) {}

    /// The closed top-level groups in the order of the file.
    bool ListGroups(std::vector<GroupEntry>& groups);
    /// The same but for those whose name begins with "Constant" in any case: the unit categories.
    bool ListUnitGroups(std::vector<GroupEntry>& groups);
    /// The closed direct children of every group of that name.
    bool ListChildGroups(std::u16string_view name, std::vector<GroupEntry>& children);
    /// The first closed top-level group; an empty name when there is none.
    bool FirstGroup(GroupEntry& entry);
    /// The rows of the first group of that name, of its sub-groups too.
    bool ReadConstantRows(std::u16string_view group, std::vector<ConstantRow>& rows);
    /// The rows of every group of that name, of their sub-groups too.
    bool ReadUnitRows(std::u16string_view group, std::vector<UnitRecord>& rows);

    /// A DataError, or the number of the line that stopped the last operation.
    [[nodiscard]] std::int32_t Error() const { return error_; }
    [[nodiscard]] std::u16string ErrorText() const;

  private:
    template <class Visitor>
    bool Scan(Visitor& visitor);
    bool ListTopLevel(bool unitsOnly, bool firstOnly, std::vector<GroupEntry>& groups);

    std::filesystem::path path_;
    std::int32_t error_ = DATA_NO_ERROR;
};

}  // namespace quorix
