// Loading the units and converting between two of them, beside the plainest code that touches the same bytes.

#include <filesystem>
#include <fstream>
#include <string>
#include <unordered_map>
#include <vector>

#include "ratio_report.h"
#include "reference/unit_table.h"

namespace {

using namespace quorix;

const std::filesystem::path kUnits = std::filesystem::path(QUORIX_SOURCE_DIR) / "assets/units.dat";

template <class Body>
bench::Body Loop(Body body) {
    return [body](benchmark::State& state) {
        for (auto _ : state) {
            benchmark::DoNotOptimize(body());
        }
    };
}

/// The file as fields and nothing more.
std::vector<std::vector<std::string>> SplitLines() {
    std::vector<std::vector<std::string>> lines;
    std::ifstream stream(kUnits);
    for (std::string line; std::getline(stream, line);) {
        std::vector<std::string>& fields = lines.emplace_back();
        constexpr const char* kBlanks = " \t";
        for (std::size_t at = line.find_first_not_of(kBlanks); at != std::string::npos;) {
            const std::size_t end = std::min(line.find_first_of(kBlanks, at), line.size());
            fields.push_back(line.substr(at, end - at));
            at = line.find_first_not_of(kBlanks, end);
        }
    }
    return lines;
}

constexpr std::u16string_view kPairs[][2] = {
    {u"Foot", u"Metre"},
    {u"Kilowatt hour", u"British thermal unit (IT)"},
    {u"Degree Fahrenheit", u"Degree Celsius"},
    {u"Mile per US gallon", u"Kilometre per litre"},
    {u"Pound-force per square inch", u"Torr"},
};

struct Names {
    std::u16string from;
    std::u16string to;
};

std::vector<Names> AllPairs() {
    std::vector<Names> names;
    for (const auto& [from, to] : kPairs) {
        names.push_back({std::u16string(from), std::u16string(to)});
    }
    return names;
}

}  // namespace

int main(int argc, char** argv) {
    bench::RegisterPair("loading units.dat", Loop([] {
                            UnitTable table;
                            table.Load(kUnits);
                            return table.Records().size();
                        }),
                        Loop([] { return SplitLines().size(); }), 3);

    UnitTable table;
    if (!table.Load(kUnits)) {
        return 1;
    }
    std::unordered_map<std::u16string, std::size_t> byName;
    for (std::size_t i = 0; i < table.Records().size(); ++i) {
        byName.emplace(table.Records()[i].name, i);
        byName.emplace(table.Records()[i].symbol, i);
    }
    const std::vector<Names> pairs = AllPairs();
    bench::RegisterPair("five conversions", Loop([&] {
                            double sum = 0;
                            for (const Names& pair : pairs) {
                                double factor = 0;
                                double offset = 0;
                                table.GetConversion(pair.from, pair.to, factor, offset);
                                sum += factor + offset;
                            }
                            return sum;
                        }),
                        Loop([&] {
                            std::size_t sum = 0;
                            for (const Names& pair : pairs) {
                                sum += byName.find(pair.from)->second + byName.find(pair.to)->second;
                            }
                            return sum;
                        }),
                        20);
    return bench::RunPairs(argc, argv);
}
