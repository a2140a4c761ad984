// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "rtf/progress.h"

#include <QRectF>
#include <QRegion>
#include <QSize>
#include <QTextDocument>

#include <functional>
#include <memory>
#include <utility>
#include <vector>

class QPainter;
class QPaintDevice;
class QTextBlock;
class QTextBlockFormat;

namespace orvalis {

class RichTextBox;

/// One page to be formatted.
struct FormatRange {
    QPainter* painter = nullptr;    ///< draws the page; none: it is only measured
    QPaintDevice* device = nullptr; ///< what is measured by; none: what the painter draws on
    QRectF rect;                    ///< where the text goes, in twips from the painter's origin
    int first = 0;                  ///< the first character, a position in the plain text
    int last = -1;                  ///< where to stop; -1: the end of the text
};

/// Breaks the document of a box into pages: lays a copy of it out once, for as long as the document
/// stays as it is, in dots that are no device's, so that every printer breaks its lines alike, and
/// hands the lines out page by page. No line is cut in two, and
/// a picture larger than the page shrinks to it. Of a line that a range only touches, its own
/// characters alone are drawn.
class RangeFormatter {
public:
    /// \param progress hears how much of the document is laid out.
    explicit RangeFormatter(const RichTextBox& box, rtf::Progress progress = {})
        : m_box(box)
        , m_progress(std::move(progress)) {}

    /// Formats one page's worth of text and renders it where a painter is given.
    /// \returns the position of the first character that did not fit; it always advances, for a
    /// page takes at least one line, whatever its height, and is the length of Text() (or the
    /// range's end) behind the last page. \throws RuntimeError InvalidProcedureCall without a
    /// painter and without a device.
    int FormatPage(const FormatRange& range);

private:
    struct Line {
        int position; ///< of its first character in the document
        qreal top;
        qreal bottom;
        bool startsPage;
    };

    void prepare(const FormatRange& range);
    void layOut();
    double layOut(int dots, std::pair<double, double> part);
    void standAcrossMargin(qreal room);
    void giveSlack();
    void guideBreaks();
    void goOnBeyondMargins(qreal room);
    qreal width() const;
    int inCopy(int position) const;
    int inDocument(int position) const;
    void countMargins(int dots);
    void changeParagraphs(const std::function<void(const QTextBlock&, QTextBlockFormat&)>& change);
    void tell(double share) const;
    void layOutToEnd(std::pair<double, double> part);
    void collectLines();
    void draw(const FormatRange& range, const Line& first, const Line& last, int from, int to);
    QRegion partOf(const Line& line, const QRectF& room, int from, int to) const;

    const RichTextBox& m_box;
    rtf::Progress m_progress;
    std::unique_ptr<QTextDocument> m_copy;
    std::vector<Line> m_lines;
    std::vector<int> m_guides; ///< positions of the document at which the copy has a sign more
    int m_revision = 0;
    QSize m_dots;      ///< of the device to the inch
    int m_counted = 0; ///< dots of the layout to the inch
    std::unique_ptr<QPaintDevice> m_ruler;
    QSizeF m_page; ///< twips
    qreal m_left = 0;
    qreal m_leftBeyond = 0; ///< twips that the copy is wider than the page
    qreal m_rightBeyond = 0;
    qreal m_marginDots = 0; ///< to the inch, in which the copy's margins are counted
};

} // namespace orvalis
