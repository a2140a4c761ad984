// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "core/help_page_view.h"

#include "core/help_search.h"
#include "platform/chm_file.h"
#include "skin/palette.h"
#include "skin/type.h"

#include <QScrollBar>

#include <algorithm>
#include <utility>

namespace orvalis {

namespace {

using namespace Qt::StringLiterals;

const QString Scheme = u"help"_s;
constexpr int PageMargin = 18;
/// Pictures of a page are drawn at twice the size that they are shown at.
constexpr qreal DrawnRatio = 2;
/// Where a word that was looked for comes to stand, from the window's upper edge.
constexpr int MarkTop = 60;

QString pageOf(const QUrl& address) {
    return address.path().mid(1);
}

QString message(const QString& heading, const QString& text) {
    return u"<h1>%1</h1><p>%2</p>"_s.arg(heading.toHtmlEscaped(), text.toHtmlEscaped());
}

/// A paragraph of this browser has no room between its ground and its words; a table's cell has.
QString withPaddedNotes(QString html) {
    static const QRegularExpression note(uR"(<p class="note">(.*?)</p>)"_s,
                                         QRegularExpression::DotMatchesEverythingOption);
    return html.replace(note, uR"(<table class="note" width="100%" cellspacing="0">)"
                              uR"(<tr><td style="padding:8px">\1</td></tr></table>)"_s);
}

} // namespace

QUrl helpAddress(const QString& file) {
    const qsizetype anchor = file.indexOf(u'#');
    QUrl url;
    url.setScheme(Scheme);
    url.setPath(u'/' + (anchor < 0 ? file : file.left(anchor)));
    if (anchor >= 0)
        url.setFragment(file.mid(anchor + 1));
    return url;
}

bool isHelpAddress(const QUrl& address) {
    return address.scheme() == Scheme;
}

HelpPageView::HelpPageView(QWidget* parent)
    : QTextBrowser(parent) {
    setObjectName(u"helpPage"_s);
    setOpenLinks(false);
    setFrameShape(QFrame::NoFrame);
    document()->setDocumentMargin(PageMargin);
    document()->setDefaultFont(skin::font(skin::points::Reading));
    connect(this, &QTextBrowser::sourceChanged, this, &HelpPageView::markWords);
}

void HelpPageView::setFile(const ChmFile* file) {
    m_file = file;
}

void HelpPageView::go(const QString& page) {
    setSource(helpAddress(page), QTextDocument::HtmlResource);
}

QImage HelpPageView::picture(const QByteArray& content) const {
    const QImage drawn = QImage::fromData(content);
    if (drawn.isNull())
        return {};
    const qreal ratio = devicePixelRatioF();
    QImage shown = drawn.scaled((QSizeF(drawn.size()) * ratio / DrawnRatio).toSize(),
                                Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    shown.setDevicePixelRatio(ratio);
    return shown;
}

QVariant HelpPageView::loadResource(int type, const QUrl& name) {
    if (m_file == nullptr)
        return message(tr("The help cannot be shown"),
                       tr("The help file is damaged, or it is not a help file."));
    const QUrl address = name.isRelative() ? source().resolved(name) : name;
    const QByteArray content =
        isHelpAddress(address) ? m_file->read(pageOf(address)) : QByteArray();
    if (type == QTextDocument::ImageResource)
        return picture(content);
    if (type != QTextDocument::HtmlResource)
        return content;
    if (content.isNull())
        return message(tr("This page is not in the help"), pageOf(address));
    return withPaddedNotes(QString::fromUtf8(content));
}

void HelpPageView::setMarkedWords(const QList<QRegularExpression>& words) {
    m_markedWords = words;
    markWords();
}

void HelpPageView::markWords() {
    QList<ExtraSelection> marks;
    for (const QRegularExpression& word : std::as_const(m_markedWords)) {
        for (QTextCursor hit = document()->find(word); !hit.isNull();
             hit = document()->find(word, hit)) {
            ExtraSelection mark;
            mark.cursor = hit;
            mark.format.setBackground(QColor(skin::colour::Found));
            marks.append(mark);
        }
    }
    setExtraSelections(marks);
}

void HelpPageView::goToFirstMark() {
    const QList<ExtraSelection> marks = extraSelections();
    const auto first = std::min_element(
        marks.begin(), marks.end(), [](const ExtraSelection& one, const ExtraSelection& other) {
            return one.cursor.selectionStart() < other.cursor.selectionStart();
        });
    if (first == marks.end())
        return;
    // The title of a page says what it is about: a word in there needs no way to it.
    const QRect place = cursorRect(first->cursor);
    if (!viewport()->rect().contains(place))
        verticalScrollBar()->setValue(verticalScrollBar()->value() + place.top() - MarkTop);
}

} // namespace orvalis
