// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "core/help_page_view.h"

#include "platform/chm_file.h"
#include "skin/type.h"

namespace orvalis {

namespace {

using namespace Qt::StringLiterals;

const QString Scheme = u"help"_s;
constexpr int PageMargin = 18;
/// Pictures of a page are drawn at twice the size that they are shown at.
constexpr qreal DrawnRatio = 2;

QString pageOf(const QUrl& address) {
    return address.path().mid(1);
}

QString message(const QString& heading, const QString& text) {
    return u"<h1>%1</h1><p>%2</p>"_s.arg(heading.toHtmlEscaped(), text.toHtmlEscaped());
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
    return QString::fromUtf8(content);
}

} // namespace orvalis
