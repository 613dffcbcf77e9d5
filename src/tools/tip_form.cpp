#include "tools/tip_form.h"

#include <algorithm>

#include "engine/identifiers.h"
#include "engine/number_locale.h"
#include "engine/text_fold.h"
#include "tools/date_ctrl.h"
#include "tools/number_text.h"

namespace quorix {

namespace {

constexpr std::u16string_view kTipLabel = u"Tip Amount  = ";
constexpr std::u16string_view kShareLabel = u"Total/Person = ";
constexpr int kResultDigits = 9;

std::u16string WithoutGrouping(std::u16string text, std::u16string_view numberLocale) {
    std::erase(text, SignsOf(numberLocale).thousands);
    return text;
}

/// The text as a program writes numbers: no grouping, "." as decimal sign.
std::u16string PlainNumber(std::u16string text, std::u16string_view numberLocale) {
    text = WithoutGrouping(std::move(text), numberLocale);
    std::ranges::replace(text, SignsOf(numberLocale).decimal, u'.');
    return text;
}

std::u16string Grouped(std::u16string text, std::u16string_view numberLocale) {
    ApplySeparators(text, numberLocale, RADIX_DEC);
    return text;
}

}  // namespace

TipForm::TipForm(std::u16string_view numberLocale) : numberLocale_(numberLocale) {
    for (std::size_t i = 0; i < kFieldCount; ++i) {
        texts_[i] = kFields[i].sign;
    }
    ShowLabels();
}

void TipForm::SetNumberLocale(std::u16string_view numberLocale) {
    for (std::size_t i = 0; i < kFieldCount; ++i) {
        const auto field = static_cast<Field>(i);
        texts_[i] = Grouped(PlainNumber(Number(field), numberLocale_), numberLocale) + kFields[i].sign;
    }
    numberLocale_ = numberLocale;
    Recompute();
}

std::u16string TipForm::Number(Field field) const {
    std::u16string text = texts_[field];
    while (text.ends_with(kFields[field].sign)) {
        text.pop_back();
    }
    return text;
}

double TipForm::Value(Field field) const {
    return ReadNumber(PlainNumber(Number(field), numberLocale_));
}

void TipForm::ShowLabels() {
    result_ = {std::u16string(kTipLabel), std::u16string(kShareLabel)};
}

bool TipForm::Key(char16_t key) {
    if (key == kTab) {
        active_ = static_cast<Field>((active_ + 1) % kFieldCount);
        return true;
    }
    if (key == u'C' || key == kEscape) {
        texts_[active_] = kFields[active_].sign;
        ShowLabels();
        return true;
    }
    const bool taken = Edit(key);
    if (taken) {
        Recompute();
    }
    return taken;
}

bool TipForm::Edit(char16_t key) {
    const char16_t decimal = SignsOf(numberLocale_).decimal;
    if (key == u',' && decimal == kDisplayComma) {
        key = u'.';
    }
    if (!IsDigit(key) && key != u'.' && key != kBackspaceKey) {
        return false;
    }
    const FieldLayout& layout = kFields[active_];
    std::u16string text = WithoutGrouping(Number(active_), numberLocale_);
    if (key == kBackspaceKey) {
        if (!text.empty()) {
            text.pop_back();
        }
    } else {
        const bool secondPoint = key == u'.' && text.find(decimal) != std::u16string::npos;
        if (text.size() + 1 >= layout.limit || secondPoint) {
            return false;
        }
        text.push_back(key == u'.' ? decimal : key);
    }
    texts_[active_] = Grouped(std::move(text), numberLocale_) + layout.sign;
    return true;
}

void TipForm::Recompute() {
    const double people = Value(PEOPLE);
    const double percent = Value(PERCENT);
    const double bill = Value(BILL);
    ShowLabels();
    if (!(people > 0.0 && bill > 0.0 && percent >= 0.0)) {
        return;
    }
    const double tip = bill * percent * 0.01;
    const double share = (tip + bill) / people;
    result_[0] += Grouped(GeneralText(tip, kResultDigits), numberLocale_) + u'$';
    result_[1] += Grouped(GeneralText(share, kResultDigits), numberLocale_) + u'$';
}

}  // namespace quorix
