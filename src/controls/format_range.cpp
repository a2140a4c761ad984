// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/format_range.h"

#include "controls/break_guides.h"
#include "controls/broken_lines.h"
#include "controls/layout_ruler.h"
#include "controls/list_numbers.h"
#include "controls/page_characters.h"
#include "controls/page_pictures.h"
#include "controls/page_runs.h"
#include "controls/rich_text_box.h"
#include "controls/small_capitals.h"
#include "controls/tab_leaders.h"
#include "controls/text_positions.h"
#include "rtf/formats/format_properties.h"
#include "rtf/formats/paragraph_place.h"
#include "rtf/kept/kept_parts.h"
#include "rtf/kept/kept_text.h"
#include "rtf/room/document_height.h"
#include "runtime/failure.h"
#include "runtime/twips.h"

#include <QAbstractTextDocumentLayout>
#include <QFontInfo>
#include <QHash>
#include <QPainter>
#include <QPalette>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextLayout>

#include <algorithm>
#include <utility>

namespace orvalis {
namespace {

constexpr qreal TwipsPerInch = 1440;
constexpr qreal PixelsPerInch = 96;
/// The height of a layout that was measured, as far as it can be in other dots.
constexpr double MostDots = 0.75 * rtf::EndlessHeight;
/// What letters are wider at most in dots that are finer than those of the screen, where their
/// widths may be whole numbers.
constexpr double WiderInFineDots = 1.25;

/// The dots of the layout: with one to the twip every size of letters is a whole number of them, so
/// that lines break where they do on every other printer.
constexpr int LayoutDots = 1440;

/// Twips that a line of letters of a fixed width may be longer: counted in whole twips as it is
/// elsewhere, as many of them fit as there are to be.
constexpr qreal Slack = 2;

/// As many dots as that, or fewer, in which whole points are whole as long as that is possible.
int scaledDown(double factor) {
    constexpr int DotsOfWholePoints = 72;
    const int dots = std::max(1, int(LayoutDots * factor));
    return dots > DotsOfWholePoints ? dots - dots % DotsOfWholePoints : dots;
}

} // namespace

int RangeFormatter::FormatPage(const FormatRange& range) {
    if (!range.painter && !range.device)
        throw RuntimeError(ErrorNumber::InvalidProcedureCall);
    const TextPositions& positions = m_box.positions();
    const QPaintDevice& device = range.device ? *range.device : *range.painter->device();
    m_dots = QSize(device.logicalDpiX(), device.logicalDpiY());
    prepare(range);
    const int length = positions.length();
    const int stop = range.last < 0 ? length : std::min(range.last, length);
    if (m_lines.empty())
        return stop;
    const int firstPosition = inCopy(positions.positionOf(range.first));
    const int stopPosition = inCopy(positions.positionOf(stop));

    const auto behind = [](int position, const Line& line) { return position < line.position; };
    auto first = std::upper_bound(m_lines.begin(), m_lines.end(), firstPosition, behind);
    if (first != m_lines.begin())
        --first;
    const qreal height = range.rect.height() * m_counted / TwipsPerInch;
    auto line = first + 1;
    while (line != m_lines.end() && line->bottom - first->top <= height && !line->startsPage &&
           (line->position < stopPosition || stop == length))
        ++line;
    const bool toTheEnd = line == m_lines.end();
    if (range.painter)
        draw(range, *first, *(line - 1), firstPosition, stopPosition);
    return toTheEnd ? stop : std::min(stop, positions.indexOf(inDocument(line->position)));
}

int RangeFormatter::inCopy(int position) const {
    const auto behind = std::upper_bound(m_guides.begin(), m_guides.end(), position);
    return position + int(behind - m_guides.begin());
}

int RangeFormatter::inDocument(int position) const {
    const auto isAhead = [&](const int& at) { return at + int(&at - m_guides.data()) < position; };
    const auto behind = std::partition_point(m_guides.begin(), m_guides.end(), isAhead);
    return position - int(behind - m_guides.begin());
}

void RangeFormatter::prepare(const FormatRange& range) {
    const QTextDocument& document = *m_box.document();
    const QSizeF page = range.rect.size();
    if (m_copy && m_revision == document.revision() && m_page == page &&
        m_left == range.rect.left())
        return;
    m_revision = document.revision();
    m_page = page;
    m_left = range.rect.left();
    tell(0);
    m_copy.reset(document.clone());
    tell(0);
    m_copy->setUndoRedoEnabled(false);
    m_copy->setDocumentMargin(0);
    m_copy->setUseDesignMetrics(true);
    QTextOption option = m_copy->defaultTextOption();
    if (option.wrapMode() != QTextOption::WrapAnywhere) // which long words need
        option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    m_copy->setDefaultTextOption(option);
    m_marginDots = PixelsPerInch;
    standAcrossMargin(range.rect.left());
    joinAlikeRuns(*m_copy);
    setSmallCapitals(*m_copy);
    setPageCharacters(*m_copy);
    guideBreaks();
    shrinkPictures(*m_copy, page / TwipsPerPixel);
    goOnBeyondMargins(range.rect.left());
    giveSlack();
    tell(0);
    layOut();
    if (rtf::fillsBrokenLines(rtf::keptParts(document).words))
        fillBrokenLines(*m_copy);
    collectLines();
}

/// Lays the copy out in dots of its own, or in the smallest larger ones that are few enough.
void RangeFormatter::layOut() {
    const double pixels = width() / TwipsPerPixel;
    const double narrow = pixels > 0 ? std::max(1.0, rtf::NarrowestBox / pixels) : 1;
    // In a narrower line the share that no word fills is larger.
    const double told = rtf::documentHeight(*m_copy) * narrow * narrow * WiderInFineDots *
                        LayoutDots / PixelsPerInch;
    if (told <= rtf::MostHeight) {
        layOut(LayoutDots, {0, 1});
        return;
    }
    // What is told is far more than most documents need, so a layout that is sure to be possible
    // tells how fine a one is.
    const int sure = scaledDown(rtf::MostHeight / told);
    constexpr double Half = 0.5;
    const double height = layOut(sure, {0, Half});
    const int finest = scaledDown(std::min(1.0, sure * MostDots / height / LayoutDots));
    if (finest > sure)
        layOut(finest, {Half, 1});
}

/// \param part of all the work that this is.
/// \returns the height, in these dots.
double RangeFormatter::layOut(int dots, std::pair<double, double> part) {
    m_counted = dots;
    countMargins(dots);
    auto ruler = std::make_unique<LayoutRuler>(dots);
    m_copy->documentLayout()->setPaintDevice(ruler.get());
    m_ruler = std::move(ruler);
    m_copy->setTextWidth((width() + Slack) * dots / TwipsPerInch);
    layOutToEnd(part);
    return m_copy->documentLayout()->documentSize().height();
}

/// All lines are longer by the slack, which those without letters of a fixed width do not need.
void RangeFormatter::giveSlack() {
    QHash<QString, bool> known;
    const auto isFixed = [&](const QTextFragment& fragment) {
        const QFont font = fragment.charFormat().font();
        const QString family = font.families().value(0);
        const auto it = known.constFind(family);
        return it != known.constEnd() ? *it : *known.insert(family, QFontInfo(font).fixedPitch());
    };
    changeParagraphs([&](const QTextBlock& block, QTextBlockFormat& paragraph) {
        for (auto it = block.begin(); !it.atEnd(); ++it)
            if (isFixed(it.fragment()))
                return;
        paragraph.setRightMargin(paragraph.rightMargin() + Slack / TwipsPerPixel);
    });
}

/// Makes the copy's lines break where word processors break them.
void RangeFormatter::guideBreaks() {
    constexpr size_t MostGuides = 20'000; // more than a text of addresses has
    std::vector<BreakGuide> guides;
    for (QTextBlock block = m_copy->begin(); block.isValid(); block = block.next())
        for (const BreakGuide& guide : breakGuides(block.text()))
            if (guides.size() < MostGuides)
                guides.push_back({block.position() + guide.position, guide.sign});
    m_guides.clear();
    for (const BreakGuide& guide : guides)
        m_guides.push_back(guide.position);
    QTextCursor edit(m_copy.get());
    edit.beginEditBlock();
    for (auto guide = guides.crbegin(); guide != guides.crend(); ++guide) {
        edit.setPosition(guide->position);
        edit.insertText(QString(QChar(guide->sign)));
    }
    edit.endEditBlock();
}

/// Lines that stand beyond the margins have room there on paper, where the layout gives them none:
/// the copy becomes as much wider as they need it, with that much more of a margin on each side.
/// \param room twips beyond each margin.
void RangeFormatter::goOnBeyondMargins(qreal room) {
    qreal left = 0; // pixels
    qreal right = 0;
    for (QTextBlock block = m_copy->begin(); block.isValid(); block = block.next()) {
        left = std::max(left, -block.blockFormat().leftMargin());
        right = std::max(right, -block.blockFormat().rightMargin());
    }
    left = std::min(left, room / TwipsPerPixel);
    right = std::min(right, room / TwipsPerPixel);
    m_leftBeyond = left * TwipsPerPixel;
    m_rightBeyond = right * TwipsPerPixel;
    if (left > 0 || right > 0)
        changeParagraphs([left, right](const QTextBlock&, QTextBlockFormat& paragraph) {
            paragraph.setLeftMargin(std::max(0.0, paragraph.leftMargin() + left));
            paragraph.setRightMargin(std::max(0.0, paragraph.rightMargin() + right));
        });
}

/// \returns how wide the copy is, in twips.
qreal RangeFormatter::width() const {
    return m_leftBeyond + m_page.width() + m_rightBeyond;
}

/// What has no room on the screen left of the margin has it on paper.
/// \param room twips left of the margin.
void RangeFormatter::standAcrossMargin(qreal room) {
    changeParagraphs([room](const QTextBlock&, QTextBlockFormat& paragraph) {
        if (rtf::overhangOf(paragraph) <= room)
            rtf::standAcrossMargin(paragraph);
    });
}

/// The layout counts most of what formats say in its dots by itself, but not these.
void RangeFormatter::countMargins(int dots) {
    const qreal times = dots / std::exchange(m_marginDots, dots);
    changeParagraphs([times](const QTextBlock&, QTextBlockFormat& paragraph) {
        for (const int length :
             {QTextFormat::BlockLeftMargin, QTextFormat::BlockRightMargin, QTextFormat::TextIndent})
            if (const qreal lengthNow = paragraph.doubleProperty(length); lengthNow != 0)
                paragraph.setProperty(length, lengthNow * times);
    });
}

void RangeFormatter::changeParagraphs(
    const std::function<void(const QTextBlock&, QTextBlockFormat&)>& change) {
    QTextCursor edit(m_copy.get());
    edit.beginEditBlock();
    for (QTextBlock block = m_copy->begin(); block.isValid(); block = block.next()) {
        QTextBlockFormat paragraph = block.blockFormat();
        change(block, paragraph);
        if (paragraph != block.blockFormat())
            QTextCursor(block).setBlockFormat(paragraph);
    }
    edit.endEditBlock();
}

void RangeFormatter::tell(double share) const {
    if (m_progress)
        m_progress(share);
}

/// Lays the copy out bit by bit, so that whoever waits hears of it.
void RangeFormatter::layOutToEnd(std::pair<double, double> part) {
    constexpr int ToldCharacters = 1 << 12;
    int tellAt = 0;
    for (QTextBlock block = m_copy->begin(); block.isValid(); block = block.next()) {
        if (block.position() < tellAt)
            continue;
        m_copy->documentLayout()->blockBoundingRect(block);
        const double share = double(block.position()) / m_copy->characterCount();
        tell(part.first + (part.second - part.first) * share);
        tellAt = block.position() + ToldCharacters;
    }
    m_copy->documentLayout()->documentSize();
}

void RangeFormatter::collectLines() {
    m_lines.clear();
    for (QTextBlock block = m_copy->begin(); block.isValid(); block = block.next()) {
        m_copy->documentLayout()->blockBoundingRect(block);
        const QTextLayout& layout = *block.layout();
        const bool newPage =
            block.blockFormat().pageBreakPolicy() & QTextFormat::PageBreak_AlwaysBefore;
        for (int i = 0; i < layout.lineCount(); ++i) {
            const QTextLine line = layout.lineAt(i);
            const qreal top = layout.position().y() + line.y();
            m_lines.push_back(
                {block.position() + line.textStart(), top, top + line.height(), newPage && i == 0});
        }
    }
}

/// Where the characters between two positions stand in a line of the copy: in one piece, or in
/// several where the line runs both ways. A label belongs to the first of them.
QRegion RangeFormatter::partOf(const Line& line, const QRectF& room, int from, int to) const {
    constexpr int Usual = 2000; // characters; of longer lines what stands between the two is taken
    const QTextBlock block = m_copy->findBlock(line.position);
    const QTextLayout& layout = *block.layout();
    const QTextLine shown = layout.lineForTextPosition(line.position - block.position());
    const int start = std::max(from - block.position(), shown.textStart());
    const int end = std::min(to - block.position(), shown.textStart() + shown.textLength());
    QRegion part;
    const auto add = [&](qreal one, qreal other) {
        const QRectF box(std::min(one, other), line.top, std::abs(other - one),
                         line.bottom - line.top);
        part += box.translated(layout.position().x(), 0).toAlignedRect();
    };
    if (end - start > Usual)
        add(shown.cursorToX(start), shown.cursorToX(end));
    else
        for (int at = start; at < end; ++at)
            add(shown.cursorToX(at), shown.cursorToX(at, QTextLine::Trailing));
    const QRectF text = shown.naturalTextRect();
    if (from <= block.position() && to > block.position() && start == 0)
        block.textDirection() == Qt::RightToLeft ? add(text.right(), room.right())
                                                 : add(room.left(), text.left());
    return part;
}

void RangeFormatter::draw(const FormatRange& range, const Line& first, const Line& last, int from,
                          int to) {
    QPainter& painter = *range.painter;
    const qreal units = m_counted / TwipsPerInch;
    const qreal left = (range.rect.left() - m_leftBeyond) * units;
    const QRectF band(-left, first.top, (range.rect.right() + range.rect.left()) * units,
                      last.bottom - first.top);
    painter.save();
    painter.scale(qreal(m_dots.width()) / m_counted, qreal(m_dots.height()) / m_counted);
    painter.translate(left, range.rect.top() * units - first.top);
    painter.setClipRect(band, Qt::IntersectClip);
    const bool cutsFirst = from > first.position;
    const bool cutsLast =
        &last != &m_lines.back() ? to < (&last + 1)->position : to < m_copy->characterCount() - 1;
    QRegion region = band.toAlignedRect();
    for (const Line* line : {cutsFirst ? &first : nullptr, cutsLast ? &last : nullptr})
        if (line) {
            const QRectF room(band.left(), line->top, band.width(), line->bottom - line->top);
            region -= room.toAlignedRect();
            region += partOf(*line, room, from, to);
        }
    if (cutsFirst || cutsLast)
        painter.setClipRegion(region, Qt::IntersectClip);
    QAbstractTextDocumentLayout::PaintContext context;
    // The lines that touch the band from outside would be drawn out of sight, and be words of the
    // page to whoever reads it as text.
    constexpr qreal Outside = 0.5;
    context.clip = band.adjusted(0, Outside, 0, -Outside);
    context.palette.setColor(QPalette::Text, Qt::black);
    m_copy->documentLayout()->draw(&painter, context);
    drawListNumbers(painter, *m_copy, context);
    drawTabLeaders(painter, *m_copy, context);
    painter.restore();
}

} // namespace orvalis
