// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/selection_format.h"

#include "rtf/formats/block_formats.h"
#include "rtf/formats/format_properties.h"
#include "rtf/formats/format_readers.h"
#include "rtf/formats/list_formats.h"
#include "rtf/formats/paragraph_place.h"
#include "rtf/room/document_room.h"
#include "runtime/colour.h"
#include "runtime/twips.h"

#include <QFont>
#include <QTextDocument>
#include <QTextList>

#include <vector>

namespace orvalis {
namespace {

/// An indent that the paragraph's margin does not follow.
constexpr int RequestedIndent = QTextFormat::UserProperty + 0x5190;
/// How far a bullet hangs left of its text.
constexpr int BulletTwips = 360;
/// The furthest that an indent shows, far outside any window and any page.
constexpr int MostShownIndent = 1'000'000;

int shownIndent(int twips) {
    return qBound(0, twips, MostShownIndent);
}

constexpr Qt::Alignment Alignments[] = {Qt::AlignLeft, Qt::AlignRight | Qt::AlignAbsolute,
                                        Qt::AlignHCenter, Qt::AlignJustify};

struct Run {
    int from;
    int to;
    QTextCharFormat format;
};

/// The runs of a selection with pictures among them only where there is nothing else.
void walkRuns(const QTextCursor& selection, bool pictures,
              const std::function<bool(const Run&)>& visit) {
    const int from = selection.selectionStart();
    const int to = selection.selectionEnd();
    QTextBlock block = selection.document()->findBlock(from);
    for (; block.isValid() && block.position() < to; block = block.next()) {
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            const QTextFragment fragment = it.fragment();
            const Run run{qMax(fragment.position(), from),
                          qMin(fragment.position() + fragment.length(), to), fragment.charFormat()};
            if (run.from >= run.to || (!pictures && run.format.isImageFormat()))
                continue;
            if (!visit(run))
                return;
        }
    }
}

QTextCharFormat formatOfFirst(const QTextCursor& selection) {
    if (!selection.hasSelection())
        return selection.charFormat();
    QTextCursor first(selection);
    first.setPosition(selection.selectionStart());
    // A step by a character would look for its end all through the paragraph.
    if (!first.atBlockEnd())
        first.setPosition(selection.selectionStart() + 1);
    return first.charFormat();
}

rtf::Indents indentsOf(const QTextBlock& block) {
    return rtf::indentsOf(block.blockFormat(), block.textList(), block.document()->indentWidth());
}

int tabTwips(const QTextBlock& block) {
    const qreal distance = block.document()->defaultTextOption().tabStopDistance();
    return qMax(1, pixelsToTwips(distance));
}

void changeParagraphs(QTextCursor& selection,
                      const std::function<void(const QTextBlock&, QTextBlockFormat&)>& change) {
    std::vector<QTextBlock> blocks;
    visitParagraphs(selection, [&](const QTextBlock& block) {
        blocks.push_back(block);
        return true;
    });
    selection.beginEditBlock();
    for (const QTextBlock& block : blocks) {
        QTextBlockFormat format = block.blockFormat();
        change(block, format);
        if (format != block.blockFormat()) // a step of undo that changes nothing would puzzle
            QTextCursor(block).setBlockFormat(format);
    }
    selection.endEditBlock();
}

} // namespace

QTextCharFormat formatAtStart(const QTextCursor& selection) {
    QTextCharFormat format = formatOfFirst(selection);
    for (const int property :
         {int(QTextFormat::ObjectType), int(QTextFormat::ObjectIndex), int(QTextFormat::ImageName),
          int(QTextFormat::ImageWidth), int(QTextFormat::ImageHeight), int(QTextFormat::ImageTitle),
          int(QTextFormat::ImageAltText), int(QTextFormat::IsAnchor), int(QTextFormat::AnchorHref),
          int(QTextFormat::AnchorName), int(rtf::LinkSwitches), int(rtf::PictureSource),
          int(rtf::PictureSourceKind), int(rtf::PictureSourceSize), int(rtf::PictureIsBox),
          int(rtf::PictureFallback), int(rtf::HiddenPictureSize), int(rtf::KeptAnchors),
          int(rtf::CellShape)})
        format.clearProperty(property);
    return format;
}

QTextCharFormat anchorsAtEnd(const QTextCursor& selection) {
    QTextCharFormat anchors;
    if (!selection.hasSelection())
        return anchors;
    QTextCursor last(selection);
    last.setPosition(selection.selectionEnd());
    const QTextCharFormat format = last.charFormat();
    if (!last.atBlockStart() && format.hasProperty(rtf::KeptAnchors))
        anchors.setProperty(rtf::KeptAnchors, format.stringProperty(rtf::KeptAnchors));
    return anchors;
}

QTextBlockFormat followingParagraph(QTextBlockFormat format) {
    format.clearProperty(QTextFormat::PageBreakPolicy);
    format.clearProperty(rtf::KeptOfSection);
    format.clearProperty(rtf::KeptAtStart);
    format.clearProperty(rtf::RowBegins);
    return format;
}

QTextBlockFormat paragraphBehind(const QTextCursor& cursor) {
    QTextBlockFormat format = followingParagraph(cursor.blockFormat());
    const QTextBlockFormat next = cursor.block().next().blockFormat();
    const bool rowGoesOn = next.hasProperty(rtf::TableRow) && !next.boolProperty(rtf::RowBegins);
    if (!cursor.hasSelection() && cursor.atBlockEnd() && !rowGoesOn)
        format.clearProperty(rtf::TableRow);
    return format;
}

void visitRuns(const QTextCursor& selection,
               const std::function<bool(const QTextCharFormat&)>& visit) {
    bool any = false;
    for (const bool pictures : {false, true}) {
        if (any || !selection.hasSelection())
            break;
        walkRuns(selection, pictures, [&](const Run& run) {
            any = true;
            return visit(run.format);
        });
    }
    if (!any)
        visit(formatOfFirst(selection));
}

void changeRuns(QTextCursor& selection, const std::function<void(QTextCharFormat&)>& change) {
    if (!selection.hasSelection()) {
        QTextCharFormat format = selection.charFormat();
        change(format);
        selection.setCharFormat(format);
        return;
    }
    std::vector<Run> runs;
    walkRuns(selection, true, [&](const Run& run) {
        runs.push_back(run);
        return true;
    });
    selection.beginEditBlock();
    for (Run& run : runs) {
        change(run.format);
        QTextCursor cursor(selection);
        cursor.setPosition(run.from);
        cursor.setPosition(run.to, QTextCursor::KeepAnchor);
        cursor.setCharFormat(run.format);
    }
    selection.endEditBlock();
}

void visitParagraphs(const QTextCursor& selection,
                     const std::function<bool(const QTextBlock&)>& visit) {
    const int from = selection.selectionStart();
    const int to = selection.selectionEnd();
    QTextBlock block = selection.document()->findBlock(from);
    do {
        if (!visit(block))
            return;
        block = block.next();
    } while (block.isValid() && block.position() < to);
}

quint32 colorOf(const QTextCharFormat& format) {
    const QRgb color = rtf::colorOf(format);
    return color == rtf::AutomaticColor ? 0 : fromQColor(QColor::fromRgb(color));
}

int alignmentOf(const QTextBlock& block) {
    return int(rtf::alignmentOf(block.blockFormat()));
}

void alignParagraphs(QTextCursor& selection, int alignment) {
    changeParagraphs(
        selection,
        [&](const QTextBlock& block, QTextBlockFormat& format) {
            if (alignmentOf(block) != alignment)
                format.setAlignment(Alignments[alignment]);
        });
}

int indentOf(const QTextBlock& block) {
    const QTextBlockFormat format = block.blockFormat();
    if (format.hasProperty(RequestedIndent))
        return format.intProperty(RequestedIndent);
    const rtf::Indents indents = indentsOf(block);
    return indents.left + indents.first;
}

void indentParagraphs(QTextCursor& selection, int twips) {
    changeParagraphs(
        selection,
        [&](const QTextBlock& block, QTextBlockFormat& format) {
            if (indentOf(block) == twips)
                return;
            if (twips != shownIndent(twips))
                format.setProperty(RequestedIndent, twips);
            else
                format.clearProperty(RequestedIndent);
            const qreal step = block.document()->indentWidth();
            rtf::Names names; // which place nothing
            rtf::ParagraphFormat place =
                rtf::paragraphFormat(format, block.textList(), step, names);
            place.left = shownIndent(twips) - place.first;
            rtf::placeParagraph(format, place, tabTwips(block));
            format.setLeftMargin(format.leftMargin() -
                                 rtf::steppedMargin(format, block.textList(), step));
        });
}

bool hasBullet(const QTextBlock& block) {
    const QTextList* list = block.textList();
    // The styles that are no numbering come first and count down from -1.
    return list && list->format().style() >= QTextListFormat::ListSquare &&
           list->format().style() <= QTextListFormat::ListDisc;
}

void bulletParagraphs(QTextCursor& selection, bool on) {
    if (on && !rtf::fitsNarrower(selection, BulletTwips / rtf::TwipsPerPixel))
        return;
    QTextList* list = nullptr;
    changeParagraphs(selection, [&](const QTextBlock& block, QTextBlockFormat& format) {
        if (hasBullet(block) == on)
            return;
        const int indent = indentOf(block);
        rtf::Names names; // which place nothing
        rtf::ParagraphFormat place =
            rtf::paragraphFormat(format, block.textList(), block.document()->indentWidth(), names);
        place.list = {};
        place.left = shownIndent(indent);
        place.first = 0;
        format.setIndent(0);
        if (on) {
            if (!list) {
                QTextListFormat bullets;
                bullets.setStyle(QTextListFormat::ListDisc);
                bullets.setIndent(0);
                list = qobject_cast<QTextList*>(QTextCursor(block).createList(bullets));
            }
            rtf::hideLabel(format); // which the box draws
            format.setObjectIndex(list->objectIndex());
            place.list.kind = rtf::ListKind::Bullet;
            place.left += BulletTwips;
            place.first = -BulletTwips;
        } else {
            rtf::showLabel(format);
            format.setObjectIndex(-1);
        }
        rtf::placeParagraph(format, place, tabTwips(block));
    });
}

} // namespace orvalis
