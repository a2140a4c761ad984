// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/formats/paragraph_place.h"

#include "rtf/formats/format_properties.h"

#include <QVariant>

#include <algorithm>
#include <cmath>

namespace orvalis::rtf {

namespace {

// As far as even steps are laid out: across a page, and not more of them than a paragraph of any
// file has stops of its own.
constexpr int WidestPage = 11520; // twips
constexpr int MostSteps = 32;

double placeInPixels(int twips) {
    return twips / TwipsPerPixel;
}

int placeInTwips(double pixels) {
    return int(std::lround(pixels * TwipsPerPixel));
}

/// Where the lines begin, from the margin of the page on that side. RTF names the indents by their
/// sides, whichever way the text runs.
int leadingIndent(const ParagraphFormat& format) {
    return format.rightToLeft ? format.right : format.left;
}

QTextFormat::Property leadingMargin(bool rightToLeft) {
    return rightToLeft ? QTextFormat::BlockRightMargin : QTextFormat::BlockLeftMargin;
}

/// The multiple of a step that comes next behind a place.
int nextStep(int place, int step) {
    const int before = place >= 0 ? place / step : -((step - 1 - place) / step);
    return (before + 1) * step;
}

/// All stops but the even steps, in their order.
QList<TabStop> stopsOf(const ParagraphFormat& format) {
    QList<TabStop> stops = format.tabs;
    const auto add = [&](int position) {
        const auto here = [&](const TabStop& stop) { return stop.position == position; };
        if (std::none_of(stops.cbegin(), stops.cend(), here))
            stops.append(TabStop{position});
    };
    if (format.first < 0 && !format.rightToLeft)
        add(format.left);
    if (format.list.kind != ListKind::None && format.list.tab > 0)
        add(format.list.tab);
    const auto ahead = [](const TabStop& a, const TabStop& b) { return a.position < b.position; };
    if (!std::is_sorted(stops.cbegin(), stops.cend(), ahead))
        std::stable_sort(stops.begin(), stops.end(), ahead);
    return stops;
}

int nextStop(const QList<TabStop>& stops, int place, int defaultTab) {
    for (const TabStop& stop : stops)
        if (stop.position > place)
            return stop.position;
    return nextStep(place, defaultTab);
}

int labelStart(const ParagraphFormat& format, const LabelSize& label) {
    const int hanging = leadingIndent(format) + format.first;
    switch (format.list.side) {
    case LabelSide::Center:
        return hanging - label.width / 2;
    case LabelSide::Right:
        return hanging - label.width;
    case LabelSide::Left:
        break;
    }
    return hanging;
}

/// Where the text of the first line begins.
int textStart(const ParagraphFormat& format, const QList<TabStop>& stops, int defaultTab,
              const LabelSize& label) {
    if (format.list.kind == ListKind::None)
        return format.left + format.first;
    const int end = labelStart(format, label) + label.width;
    switch (format.list.follow) {
    case LabelFollow::Blank:
        return end + label.blank;
    case LabelFollow::Nothing:
        return end;
    case LabelFollow::Tab:
        break;
    }
    return nextStop(stops, end, defaultTab);
}

QTextOption::Tab shownStop(const TabStop& stop, int start) {
    return {placeInPixels(stop.position - start), stop.type,
            stop.type == QTextOption::DelimiterTab ? QChar(u'.') : QChar()};
}

QVariantList packed(const QList<TabStop>& stops) {
    QVariantList list;
    for (const TabStop& stop : stops)
        list << stop.position << int(stop.type) << int(stop.leader);
    return list;
}

/// The stops in terms of the layout, and in a property what these do not tell.
void setStops(QTextBlockFormat& block, const ParagraphFormat& format, QList<TabStop> stops,
              int start, int defaultTab) {
    stops.removeIf([&](const TabStop& stop) { return stop.position <= start; });
    const bool stepsAreEven = start % defaultTab == 0;
    if (!stepsAreEven) {
        int step = nextStep(stops.isEmpty() ? start : stops.last().position, defaultTab);
        for (int i = 0; i < MostSteps && step < start + WidestPage; ++i, step += defaultTab)
            stops.append(TabStop{step});
    }
    QList<QTextOption::Tab> shown;
    QVariantList leaders;
    bool hasLeaders = false;
    for (const TabStop& stop : std::as_const(stops)) {
        shown.append(shownStop(stop, start));
        leaders << int(stop.leader);
        hasLeaders |= stop.leader != TabLeader::None;
    }
    if (shown.isEmpty())
        block.clearProperty(QTextFormat::TabPositions);
    else
        block.setTabPositions(shown);
    if (hasLeaders)
        block.setProperty(ShownTabLeaders, leaders);
    else
        block.clearProperty(ShownTabLeaders);
    if (stops == format.tabs && !hasLeaders)
        block.clearProperty(ParagraphTabs);
    else
        block.setProperty(ParagraphTabs, packed(format.tabs));
}

void setLength(QTextBlockFormat& block, QTextFormat::Property property, int twips) {
    if (twips == 0)
        block.clearProperty(property);
    else
        block.setProperty(property, placeInPixels(twips));
}

} // namespace

void placeParagraph(QTextBlockFormat& block, const ParagraphFormat& format, int defaultTab,
                    LabelSize label) {
    const bool isItem = format.list.kind != ListKind::None;
    const QList<TabStop> stops = stopsOf(format);
    const int edge = leadingIndent(format);
    int start = edge + (isItem ? 0 : format.first);
    if (!format.rightToLeft)
        start = textStart(format, stops, defaultTab, label);
    const int outermost = isItem ? labelStart(format, label) : start;
    const int overhang = std::max(0, -std::min(edge, outermost));
    setLength(block, QTextFormat::BlockLeftMargin, format.left);
    setLength(block, QTextFormat::BlockRightMargin, format.right);
    setLength(block, leadingMargin(format.rightToLeft), edge + overhang);
    setLength(block, QTextFormat::TextIndent, start - edge);
    if (overhang > 0)
        block.setProperty(ParagraphOverhang, overhang);
    else
        block.clearProperty(ParagraphOverhang);
    if (isItem) {
        block.setProperty(ParagraphFirstIndent, format.first);
        block.setProperty(LabelOffset, edge + format.first - start);
    } else {
        block.clearProperty(ParagraphFirstIndent);
        block.clearProperty(LabelOffset);
    }
    setStops(block, format, stops, start, defaultTab);
}

int overhangOf(const QTextBlockFormat& block) {
    return block.intProperty(ParagraphOverhang);
}

void standAcrossMargin(QTextBlockFormat& block) {
    if (overhangOf(block) == 0)
        return;
    const auto leading = leadingMargin(block.layoutDirection() == Qt::RightToLeft);
    block.setProperty(leading, block.doubleProperty(leading) - placeInPixels(overhangOf(block)));
    block.clearProperty(ParagraphOverhang);
}

int labelOffset(const QTextBlockFormat& item) {
    return item.intProperty(LabelOffset);
}

QList<TabStop> tabStopsOf(const QTextBlockFormat& block, int start) {
    QList<TabStop> stops;
    if (block.hasProperty(ParagraphTabs)) {
        const QVariantList list = block.property(ParagraphTabs).toList();
        for (qsizetype i = 0; i + 2 < list.size(); i += 3)
            stops.append(TabStop{list[i].toInt(),
                                 static_cast<QTextOption::TabType>(list[i + 1].toInt()),
                                 static_cast<TabLeader>(list[i + 2].toInt())});
        return stops;
    }
    const auto shown = block.tabPositions();
    for (const QTextOption::Tab& stop : shown)
        stops.append(TabStop{start + placeInTwips(stop.position), stop.type});
    return stops;
}

TabLeader leaderBehind(const QTextBlockFormat& block, double position) {
    constexpr double Rounding = 0.1;
    const auto shown = block.tabPositions();
    const QVariantList leaders = block.property(ShownTabLeaders).toList();
    for (qsizetype i = 0; i < std::min(shown.size(), leaders.size()); ++i)
        if (shown[i].position > position + Rounding)
            return static_cast<TabLeader>(leaders[i].toInt());
    return TabLeader::None;
}

} // namespace orvalis::rtf
