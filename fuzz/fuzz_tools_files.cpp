// Feeds bytes as the files of the biorhythm. The first byte picks the file. Persons that were read are
// written and must read the same; of advice a report is made.

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>

#include "platform/clock.h"
#include "platform/files.h"
#include "scratch_folder.h"
#include "tools/biorhythm.h"
#include "tools/date_order.h"
#include "tools/persons.h"

namespace {

using namespace quorix;

const std::filesystem::path& PersonsPath() {
    static const std::filesystem::path path = ScratchFolder() / "persons.dat";
    return path;
}

void FuzzPersons(std::span<const std::uint8_t> bytes) {
    if (!WriteFileAtomically(PersonsPath(), bytes)) {
        return;
    }
    Persons persons;
    persons.Load(PersonsPath());
    for (const Person& person : persons.List()) {
        const SolarDate birth = ReadDateText(person.birth, DateOrder::monthFirst);
        if (!(ReadDateText(DateText(birth, DateOrder::dayFirst), DateOrder::dayFirst) == birth)) {
            __builtin_trap();
        }
        if (DaysSinceBirth(birth, SolarDate(2026, 1, 1)) < 0) {
            __builtin_trap();
        }
    }
    Persons again;
    if (!persons.Save(PersonsPath())) {
        __builtin_trap();
    }
    again.Load(PersonsPath());
    if (again.List() != persons.List() || again.Current() != persons.Current()) {
        __builtin_trap();
    }
    std::error_code ignored;
    std::filesystem::remove(PersonsPath(), ignored);
}

void FuzzAdvice(std::span<const std::uint8_t> bytes) {
    static SystemClock clock;
    BiorhythmAdvice advice;
    advice.Parse(bytes);
    Biorhythm biorhythm(clock);
    biorhythm.SetAdvice(std::move(advice));
    for (std::int64_t days = 0; days < 38; ++days) {
        if (!biorhythm.BuildReport(days).ends_with(u"</body></html>")) {
            __builtin_trap();
        }
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) {
        return 0;
    }
    const std::span<const std::uint8_t> bytes(data + 1, size - 1);
    if (data[0] % 2 == 0) {
        FuzzPersons(bytes);
    } else {
        FuzzAdvice(bytes);
    }
    return 0;
}
