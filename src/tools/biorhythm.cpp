#include "tools/biorhythm.h"

#include <algorithm>
#include <random>

#include "tools/number_text.h"

namespace quorix {

namespace {

std::u16string PercentText(float percentage) {
    return WideFixedText(static_cast<double>(percentage), 1) + u"%";
}

std::u16string FontTag(const BiorhythmCycle& cycle) {
    return u"<font color=\"" + std::u16string(cycle.htmlColor) + u"\">";
}

/// A cell of the head table: the cycle's name in its colour, and its percentage.
std::u16string HeadCell(const BiorhythmCycle& cycle, float percentage) {
    return u"\t\t\t<td>" + FontTag(cycle) + std::u16string(cycle.name) + u"</font> " +
           PercentText(percentage) + u"</td>";
}

std::u16string_view TrendText(Trend trend) {
    return trend == Trend::increase ? u", Increase" : trend == Trend::decrease ? u", Decrease" : u"";
}

}  // namespace

std::int64_t DaysSinceBirth(const SolarDate& birth, const SolarDate& view) {
    return std::max<std::int64_t>(DaysBetween(view, birth), 0);
}

BiorhythmGraph Biorhythm::Draw(const Rect& rectangle, const SolarDate& birth, const SolarDate& view) {
    const std::int64_t days = DaysSinceBirth(birth, view);
    BiorhythmGraph graph;
    graph.ground = rectangle;
    graph.outline = rectangle.Inset(-1);
    const int middleRow = rectangle.top + rectangle.Height() / 2;
    const int middleColumn = rectangle.left + rectangle.Width() / 2;
    graph.horizontalAxis[0] = {rectangle.left - 1, middleRow};
    graph.horizontalAxis[1] = {rectangle.right + 1, middleRow};
    graph.verticalAxis[0] = {middleColumn, rectangle.top - 1};
    graph.verticalAxis[1] = {middleColumn, rectangle.bottom + 1};
    for (std::size_t i = 0; i < kCycleCount; ++i) {
        BiorhythmCurve& curve = graph.curves[i];
        curve = DrawCurve(days, kCycles[i].period, rectangle.Width(), rectangle.Height());
        percentages_[i] = curve.percentage;
        for (Point& point : curve.points) {
            point.x += rectangle.left;
            point.y += rectangle.top;
        }
    }
    return graph;
}

std::u16string Biorhythm::AdviceBlock(std::int64_t days, std::int32_t period) const {
    const BiorhythmCycle* cycle = CycleOfPeriod(period);
    if (cycle == nullptr) {
        return {};
    }
    const auto index = static_cast<std::size_t>(cycle - kCycles.data());
    const DayClass dayClass = ClassOfDay(days, *cycle);
    const BiorhythmAdvice::Lines& lines = advice_.Of(index, dayClass);
    if (lines.empty()) {
        return {};
    }
    std::mt19937 random(static_cast<std::uint32_t>(clock_->TickCount()));
    const std::u16string& advice = lines[random() % lines.size()];

    const std::u16string font = FontTag(*cycle);
    std::u16string html = u"<table border=\"0\">";
    // The attribute "with" is intended.
    html += u"<tr><td with=\"10%\">" + font + u"<b>" + std::u16string(cycle->name) +
            u"</b></font></td><td halign=\"left\">" + PercentText(percentages_[index]) + u".</td></tr>";
    html += u"</table>";
    html += u"<table width=\"100%\"  border=\"0\">";
    html += u"<tr><td with=\"10%\" valign=\"top\">" + font + u"<b>Trend</b></font></td><td>" +
            std::u16string(LabelOf(dayClass)) + std::u16string(TrendText(TrendOfDay(days, *cycle))) +
            u".</td></tr>";
    html += u"<tr><td valign=\"top\">" + font + u"<b>Advice</b></font></td><td>" + advice + u"</td></tr>";
    html += u"</table>";
    return html;
}

std::u16string Biorhythm::HeadTable() const {
    const auto cell = [this](std::size_t index) { return HeadCell(kCycles[index], percentages_[index]); };
    return u"<table border=\"0\" width=\"100%\" cellspacing=\"0\" cellpadding=\"0\">\t\t<tr>" + cell(0) +
           cell(2) + u"\t\t</tr>\t\t<tr>" + cell(1) + cell(3) + u"\t\t\t</tr></table><hr size=\"1\">";
}

std::u16string Biorhythm::BuildReport(std::int64_t days) const {
    std::u16string html = u"<html><body>" + HeadTable();
    for (const BiorhythmCycle& cycle : kCycles) {
        html += AdviceBlock(days, cycle.period);
    }
    return html + u"</body></html>";
}

}  // namespace quorix
