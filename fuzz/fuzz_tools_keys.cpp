// Plays keys on the calculators and forms of the tools: every byte is some key or press. Whatever is typed,
// dates stay valid, both calendars show the same day and fields keep their signs.

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

#include "tools/amortisation_text.h"
#include "tools/date_calculator.h"
#include "tools/finance_forms.h"
#include "tools/time_calculator.h"
#include "tools/tip_form.h"

namespace {

using namespace quorix;

constexpr std::u16string_view kKeys = u"0123456789.-\b\tC\x1B";

void Require(bool holds) {
    if (!holds) {
        __builtin_trap();
    }
}

void PlayDates(std::span<const std::uint8_t> bytes) {
    DateCalculator calculator(DateOrder::dayFirst);
    calculator.from.Set({2006, 8, 24});
    calculator.to.Set({2006, 8, 24});
    for (const std::uint8_t byte : bytes) {
        DateFields& fields = (byte & 0x40U) != 0 ? calculator.to : calculator.from;
        const CalendarKind kind = (byte & 0x80U) != 0 ? CalendarKind::lunar : CalendarKind::solar;
        switch (byte & 0x3FU) {
            case 0x20: calculator.ComputeFrom(); break;
            case 0x21: calculator.ComputeTo(); break;
            case 0x22: calculator.ComputeInterval(); break;
            case 0x23: fields.Step(kind, 1); break;
            case 0x24: fields.Step(kind, -1); break;
            case 0x25: calculator.SetOrder(DateOrder::monthFirst); break;
            case 0x26: calculator.interval.SelectNext(); break;
            default:
                if ((byte & 0x30U) == 0x10U) {
                    calculator.interval.Type(kKeys[byte & 0x0FU]);
                } else if ((byte & 0x30U) == 0x30U) {
                    fields.Field(kind).SelectAt(byte & 0x1FU);
                } else {
                    fields.Type(kind, kKeys[byte & 0x0FU]);
                }
        }
        for (const DateFields* shown : {&calculator.from, &calculator.to}) {
            SolarDate date = shown->Date();
            Require(!date.Normalise());
            Require(shown->Field(CalendarKind::lunar).Solar() == date);
            Require(!shown->Field(CalendarKind::lunar).LunarNames().empty());
        }
    }
}

void PlayTimes(std::span<const std::uint8_t> bytes) {
    TimeCalculator calculator;
    const std::array<TimeCtrl*, 4> fields = {&calculator.from, &calculator.to, &calculator.interval,
                                             &calculator.interval};
    for (const std::uint8_t byte : bytes) {
        TimeCtrl& field = *fields[byte >> 6U];
        switch (byte & 0x3FU) {
            case 0x20: calculator.ComputeFrom(); break;
            case 0x21: calculator.ComputeTo(); break;
            case 0x22: calculator.ComputeInterval(); break;
            case 0x23: field.SelectNext(); break;
            case 0x24: field.SelectPrevious(); break;
            case 0x25: field.Step(-1); break;
            default: field.Type(kKeys[byte & 0x0FU]);
        }
        Require(!field.Text().empty());
    }
}

void PlayTip(std::span<const std::uint8_t> bytes) {
    TipForm form(u"English (US)");
    for (const std::uint8_t byte : bytes) {
        if (byte < 0xF0) {
            form.Key(kKeys[byte & 0x0FU]);
        } else {
            form.SetNumberLocale((byte & 1U) != 0 ? u"European" : u"English (US)");
        }
        for (std::size_t i = 0; i < TipForm::kFieldCount; ++i) {
            Require(form.Text(static_cast<TipForm::Field>(i)).ends_with(TipForm::kFields[i].sign));
        }
    }
}

/// The bytes as texts of the boxes, parted by zero bytes.
void FillForms(std::span<const std::uint8_t> bytes) {
    std::array<std::u16string, TvmForm::kFieldCount> texts;
    std::size_t field = 0;
    for (const std::uint8_t byte : bytes) {
        if (byte != 0) {
            texts[field].push_back(byte);
        } else if (++field == texts.size()) {
            break;
        }
    }
    TvmForm tvm;
    LoanForm loan;
    MortgageForm mortgage;
    loan.SetPaymentComputed(bytes.size() % 2 == 0);
    for (std::size_t i = 0; i < texts.size(); ++i) {
        tvm.SetText(static_cast<TvmForm::Field>(i), texts[i]);
        if (i < LoanForm::kFieldCount) {
            loan.SetText(static_cast<LoanForm::Field>(i), texts[i]);
        }
        if (i < MortgageForm::kFieldCount) {
            mortgage.SetText(static_cast<MortgageForm::Field>(i), texts[i]);
        }
    }
    for (int target = TvmForm::NPER; target <= TvmForm::FV; ++target) {
        tvm.SetTarget(static_cast<TvmForm::Field>(target));
        tvm.Calculate();
    }
    if (const auto plan = loan.Calculate()) {
        Require(LoanRows(*plan, u"European").size() <= LoanForm::kMostPayments);
    }
    if (const auto plan = mortgage.Calculate()) {
        Require(MortgageRows(*plan).size() <= MortgageForm::kMostYears * 13);
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) {
        return 0;
    }
    using Player = void (*)(std::span<const std::uint8_t>);
    constexpr Player kPlayers[] = {PlayDates, PlayTimes, PlayTip, FillForms};
    constexpr std::size_t kMostKeys = 400;
    kPlayers[data[0] % 4]({data + 1, std::min(size - 1, kMostKeys)});
    return 0;
}
