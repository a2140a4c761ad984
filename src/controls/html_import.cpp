// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/html_import.h"

#include "controls/control_marks.h"
#include "controls/document_reading.h"
#include "controls/html_bound.h"
#include "controls/selection_format.h"
#include "rtf/formats/list_formats.h"
#include "rtf/pictures/picture_format.h"
#include "rtf/room/document_room.h"
#include "rtf/room/intake.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextList>
#include <QTextTable>
#include <QUrl>

#include <algorithm>

namespace orvalis {
namespace {

/// A document that shows the pictures it carries itself and asks for no others.
class PageDocument final : public QTextDocument {
public:
    /// The bytes of a picture that the page carries, empty for any other.
    static QByteArray carriedBytes(const QUrl& name) {
        if (name.scheme() != QStringLiteral("data"))
            return {};
        const QByteArray path = name.path(QUrl::FullyEncoded).toLatin1();
        const qsizetype comma = path.indexOf(',');
        if (comma < 0 || !path.left(comma).endsWith(";base64"))
            return {};
        return QByteArray::fromBase64(QByteArray::fromPercentEncoding(path.mid(comma + 1)));
    }

protected:
    QVariant loadResource(int type, const QUrl& name) override {
        return type == ImageResource ? QVariant(carriedBytes(name)) : QVariant(QByteArray());
    }
};

/// How much larger than ordinary text a step of HTML's sizes is, from -2 to 4.
qreal stepFactor(int step) {
    constexpr qreal Factors[] = {0.7, 0.8, 1.0, 1.2, 1.5, 2.0, 2.4};
    return Factors[qBound(-2, step, 4) + 2];
}

class HtmlInserter {
public:
    HtmlInserter(QTextCursor& target, const QTextDocument& page, const QTextCharFormat& base)
        : m_target(target)
        , m_page(page)
        , m_base(base) {}

    void insert() {
        m_target.beginEditBlock();
        m_target.removeSelectedText();
        m_ownParagraph = m_target.blockFormat();
        for (QTextBlock block = m_page.begin(); block.isValid() && !m_full; block = block.next())
            if (!isFiller(block))
                insertBlock(block);
        m_target.endEditBlock();
    }

private:
    static QTextTable* tableOf(const QTextBlock& block) {
        return block.isValid() ? QTextCursor(block).currentTable() : nullptr;
    }

    /// A table at either end of a page has an empty paragraph beside it that nobody wrote.
    static bool isFiller(const QTextBlock& block) {
        return block.length() == 1 && !tableOf(block) &&
               ((!block.previous().isValid() && tableOf(block.next())) ||
                (!block.next().isValid() && tableOf(block.previous())));
    }

    void insertBlock(const QTextBlock& block) {
        QTextTable* const table = tableOf(block);
        const int row = table ? table->cellAt(QTextCursor(block)).row() : -1;
        if (m_any) {
            if (table && table == m_table && row == m_row)
                m_full = !insertPlain(m_target, u"\t", m_base);
            else if (beginsParagraph(block))
                m_target.insertBlock(paragraphOf(block), markOf(block));
        } else if (m_target.block().length() == 1) {
            m_target.setBlockFormat(paragraphOf(block));
            m_target.setBlockCharFormat(markOf(block));
        }
        m_any = true;
        m_ownParagraph = followingParagraph(m_ownParagraph);
        m_table = table;
        m_row = row;
        if (const QTextList* list = block.textList()) {
            if (!table)
                joinList(*list);
        } else {
            m_sourceList = nullptr;
        }
        for (auto it = block.begin(); !it.atEnd() && !m_full; ++it)
            insertRun(it.fragment());
    }

    bool beginsParagraph(const QTextBlock& block) {
        const QFont font = m_target.document()->defaultFont();
        m_full = !rtf::Intake(m_target).takesParagraph(rtf::measuredHeight(markOf(block), font),
                                                       rtf::paragraphShape(paragraphOf(block)));
        return !m_full;
    }

    /// The paragraph itself, and with it the label of a list's item, looks as its text begins.
    QTextCharFormat markOf(const QTextBlock& block) const {
        const bool begins =
            !block.begin().atEnd() && !block.begin().fragment().charFormat().isImageFormat();
        return begins ? formatOf(block.begin().fragment().charFormat()) : m_base;
    }

    QTextBlockFormat paragraphOf(const QTextBlock& block) const {
        QTextBlockFormat format = m_ownParagraph;
        format.setObjectIndex(-1);
        rtf::showLabel(format);
        if (block.blockFormat().hasProperty(QTextFormat::BlockAlignment))
            format.setAlignment(block.blockFormat().alignment());
        return format;
    }

    void joinList(const QTextList& list) {
        if (m_sourceList != &list) {
            QTextListFormat format = list.format();
            format.setIndent(0);
            m_list = m_target.createList(format);
            m_sourceList = &list;
        } else {
            m_list->add(m_target.block());
        }
        constexpr qreal Room = 24;
        constexpr int DeepestShown = 32;
        QTextBlockFormat paragraph = m_target.blockFormat();
        paragraph.setLeftMargin(Room * std::min(list.format().indent(), DeepestShown));
        m_target.setBlockFormat(paragraph);
    }

    void insertRun(const QTextFragment& fragment) {
        const QTextCharFormat source = fragment.charFormat();
        if (source.isImageFormat()) {
            const QByteArray bytes =
                PageDocument::carriedBytes(QUrl(source.toImageFormat().name()));
            for (int i = 0; !bytes.isEmpty() && i < fragment.length(); ++i)
                rtf::insertPicture(m_target, bytes, readOptions().metafiles, m_pictures);
            return;
        }
        m_full = !insertPlain(m_target, fragment.text(), formatOf(source));
    }

    /// What HTML says of a run, in the terms that our documents keep: sizes are points, and the
    /// background of a page is not the background of its letters.
    QTextCharFormat formatOf(const QTextCharFormat& source) const {
        QTextCharFormat format = m_base;
        const QFont defaultFont = m_page.defaultFont();
        if (source.hasProperty(QTextFormat::FontFamilies))
            format.setFontFamilies({familyOf(source, defaultFont)});
        if (source.hasProperty(QTextFormat::FontPointSize) ||
            source.hasProperty(QTextFormat::FontPixelSize))
            format.setFontPointSize(std::min(pointsOf(source, defaultFont), rtf::LargestPoints));
        else if (source.hasProperty(QTextFormat::FontSizeAdjustment))
            format.setFontPointSize(
                pointsOf(m_base, defaultFont) *
                stepFactor(source.intProperty(QTextFormat::FontSizeAdjustment)));
        format.setFontWeight(source.fontWeight() >= QFont::DemiBold ? QFont::Bold : QFont::Normal);
        format.setFontItalic(source.fontItalic());
        format.setFontUnderline(source.fontUnderline());
        format.setFontStrikeOut(source.fontStrikeOut());
        if (source.hasProperty(QTextFormat::ForegroundBrush))
            format.setForeground(source.foreground());
        if (source.hasProperty(QTextFormat::TextVerticalAlignment))
            format.setVerticalAlignment(source.verticalAlignment());
        if (source.isAnchor() && !source.anchorHref().isEmpty()) {
            format.setAnchor(true);
            format.setAnchorHref(source.anchorHref());
        }
        if (!rtf::DocumentRoom::of(*m_target.document()).takesFont(format)) {
            format.setFontFamilies(m_base.fontFamilies().toStringList());
            format.setFontPointSize(pointsOf(m_base, defaultFont));
        }
        return format;
    }

    QTextCursor& m_target;
    const QTextDocument& m_page;
    const QTextCharFormat m_base;
    QTextBlockFormat m_ownParagraph;
    rtf::PictureBounds m_pictures;
    bool m_any = false;
    bool m_full = false; ///< what is left has no room
    int m_row = -1;
    QTextTable* m_table = nullptr;
    const QTextList* m_sourceList = nullptr;
    QTextList* m_list = nullptr;
};

} // namespace

bool insertHtml(QTextCursor& selection, const QString& html, const QTextCharFormat& base) {
    PageDocument page;
    page.setUndoRedoEnabled(false);
    page.setHtml(htmlWithinBounds(html).toString());
    if (page.isEmpty())
        return false;
    HtmlInserter(selection, page, base).insert();
    return true;
}

} // namespace orvalis
