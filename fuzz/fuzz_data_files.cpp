// Feeds bytes as each of the text data files: every operation of the reader, the unit table with conversions
// among its first units, and the file of rates written and read again.

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>

#include "platform/files.h"
#include "reference/currency_file.h"
#include "reference/data_file_reader.h"
#include "reference/unit_table.h"
#include "reference/update_settings.h"
#include "scratch_folder.h"

namespace {

using namespace quorix;

void ReadAll(const std::filesystem::path& path) {
    DataFileReader reader(path);
    std::vector<GroupEntry> groups;
    reader.ListUnitGroups(groups);
    reader.ListGroups(groups);
    constexpr std::size_t kMostGroups = 8;
    for (std::size_t i = 0; i < std::min(groups.size(), kMostGroups); ++i) {
        std::vector<GroupEntry> children;
        std::vector<ConstantRow> constants;
        std::vector<UnitRecord> units;
        reader.ListChildGroups(groups[i].name, children);
        reader.ReadConstantRows(groups[i].name, constants);
        reader.ReadUnitRows(groups[i].name, units);
        if (reader.ErrorText().empty()) {
            __builtin_trap();
        }
    }
}

void ConvertAmongFirst(UnitTable& table) {
    constexpr std::size_t kMostUnits = 6;
    const std::size_t count = std::min(table.Records().size(), kMostUnits);
    for (std::size_t i = 0; i < count; ++i) {
        for (std::size_t j = 0; j < count; ++j) {
            double factor = 0;
            double offset = 0;
            if (table.GetConversion(table.Records()[i].name, table.Records()[j].symbol, factor, offset) &&
                !(std::isfinite(factor) && std::isfinite(offset))) {
                __builtin_trap();
            }
        }
    }
}

/// What was loaded is written as rates and read again.
void SaveAndLoad(const UnitTable& table, const std::filesystem::path& path) {
    if (!SaveCurrency(path, table.Records())) {
        __builtin_trap();
    }
    UnitTable again;
    again.Load(path);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::filesystem::path path = ScratchFolder() / "data.dat";
    if (!WriteFileAtomically(path, {data, size})) {
        return 0;
    }
    ReadAll(path);
    ReadUpdateSettings(path);
    LocalRateDate(path);
    RemoteRateDate({reinterpret_cast<const char*>(data), size});
    UnitTable table;
    table.Load(path);
    ConvertAmongFirst(table);
    SaveAndLoad(table, path);
    return 0;
}
