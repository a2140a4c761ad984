// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "widgets/tool_tip_window.h"

#include <QCursor>
#include <QFontMetrics>
#include <QPainter>
#include <QPainterPath>
#include <QScreen>
#include <QToolTip>

#include <algorithm>
#include <chrono>

namespace orvalis {

namespace {

using namespace std::chrono_literals;

constexpr auto InitialDelay = 500ms;
constexpr auto TimeOnShow = 5s;
constexpr int MarginX = 7;
constexpr int MarginY = 4;
constexpr int IconSize = 16;
constexpr int Gap = 5;
constexpr int StemHeight = 11;
constexpr int StemWidth = 12;
constexpr qreal BalloonRadius = 6;

QFont titleFont(QFont font) {
    font.setBold(true);
    return font;
}

/// A disc or a triangle with its sign.
void paintIcon(QPainter& painter, const QRect& area, int icon) {
    const QRectF box(area);
    painter.setPen(Qt::NoPen);
    QString sign;
    if (icon == 2) {
        painter.setBrush(QColor(0xE0A100));
        painter.drawPolygon(QPolygonF({QPointF(box.center().x(), box.top() + 1),
                                       QPointF(box.right(), box.bottom() - 1),
                                       QPointF(box.left(), box.bottom() - 1)}));
        sign = QStringLiteral("!");
    } else {
        painter.setBrush(icon == 3 ? QColor(0xC0392B) : QColor(0x1F7A8C));
        painter.drawEllipse(box.adjusted(1, 1, -1, -1));
        sign = icon == 3 ? QStringLiteral("\u00D7") : QStringLiteral("i");
    }
    QFont font = painter.font();
    font.setBold(true);
    font.setPixelSize(11);
    painter.setFont(font);
    painter.setPen(Qt::white);
    painter.drawText(icon == 2 ? box.adjusted(0, 3, 0, 0) : box, Qt::AlignCenter, sign);
}

} // namespace

ToolTipWindow::ToolTipWindow(QWidget& tool, const Content& content)
    : QWidget(tool.window(), Qt::ToolTip | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint |
                                 Qt::WindowTransparentForInput | Qt::WindowDoesNotAcceptFocus)
    , m_tool(tool)
    , m_content(content) {
    setObjectName(tool.objectName() + QStringLiteral(".ToolTip"));
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFont(QToolTip::font());
    setAccessibleName(content.text);
    m_comes.setSingleShot(true);
    m_goes.setSingleShot(true);
    connect(&m_comes, &QTimer::timeout, this, &ToolTipWindow::popUp);
    connect(&m_goes, &QTimer::timeout, this, &ToolTipWindow::dismiss);
    m_comes.start(InitialDelay);
}

void ToolTipWindow::updateText(const QString& text) {
    m_content.text = text;
    setAccessibleName(text);
    if (text.isEmpty()) {
        hide();
    } else if (isVisible()) {
        popUp();
        update();
    }
}

void ToolTipWindow::pointerMoved() {
    if (!isVisible() && !m_done)
        m_comes.start(InitialDelay);
}

void ToolTipWindow::dismiss() {
    m_done = true;
    m_comes.stop();
    m_goes.stop();
    hide();
}

QSize ToolTipWindow::bodySize() const {
    const int widest = std::max(screen()->availableGeometry().width() - 4 * MarginX, 1);
    const QRect limits(0, 0, widest, QWIDGETSIZE_MAX);
    const QSize text =
        QFontMetrics(font()).boundingRect(limits, Qt::TextWordWrap, m_content.text).size();
    QSize heading;
    if (hasHeading()) {
        const QFontMetrics metrics(titleFont(font()));
        heading = {metrics.horizontalAdvance(m_content.title), metrics.height()};
        if (m_content.icon != 0) {
            heading.rwidth() += IconSize + Gap;
            heading.setHeight(std::max(heading.height(), IconSize));
        }
        heading.rheight() += Gap;
    }
    return {std::max(text.width(), std::min(heading.width(), widest)) + 2 * MarginX,
            text.height() + heading.height() + 2 * MarginY};
}

void ToolTipWindow::popUp() {
    if (m_content.text.isEmpty())
        return;
    ToolTipRequest request;
    request.size = bodySize() + QSize(0, m_content.balloon ? StemHeight : 0);
    request.balloon = m_content.balloon;
    request.centered = m_content.centered;
    request.pointer = QCursor::pos();
    request.tool = QRect(m_tool.mapToGlobal(QPoint()), m_tool.size());
    request.screen = m_tool.screen()->availableGeometry();
    m_place = placeToolTip(request);
    setGeometry(QRect(m_place.position, request.size));
    if (m_content.balloon)
        setMask(QRegion(outline().toFillPolygon().toPolygon()));
    show();
    m_goes.start(TimeOnShow);
}

QRect ToolTipWindow::bodyRect() const {
    if (!m_content.balloon)
        return rect();
    return m_place.above ? rect().adjusted(0, 0, 0, -StemHeight)
                         : rect().adjusted(0, StemHeight, 0, 0);
}

QPainterPath ToolTipWindow::outline() const {
    const QRectF body(bodyRect());
    QPainterPath path;
    path.addRoundedRect(body, BalloonRadius, BalloonRadius);
    const qreal base = m_place.above ? body.bottom() - 1 : body.top() + 1;
    const qreal tip = m_place.above ? height() : 0;
    // The stem leans: one side stands upright over the spot it points at.
    const qreal lean = m_place.stemX + StemWidth > width() - BalloonRadius ? -StemWidth : StemWidth;
    QPainterPath stem;
    stem.addPolygon(QPolygonF({QPointF(m_place.stemX, base), QPointF(m_place.stemX, tip),
                               QPointF(m_place.stemX + lean, base)}));
    stem.closeSubpath();
    return path.united(stem);
}

void ToolTipWindow::paintEvent(QPaintEvent*) {
    const QColor fore = toQColor(m_content.foreColor);
    const QColor back = toQColor(m_content.backColor);
    QPainter painter(this);
    painter.fillRect(rect(), back);
    QColor line = fore;
    line.setAlphaF(0.5F);
    painter.setPen(line);
    if (m_content.balloon) {
        painter.setRenderHint(QPainter::Antialiasing);
        // Half of a line of two pixels is cut off by the window's own shape.
        painter.setPen(QPen(line, 2));
        painter.drawPath(outline());
    } else {
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }
    painter.setRenderHint(QPainter::Antialiasing);
    QRect inside = bodyRect().adjusted(MarginX, MarginY, -MarginX, -MarginY);
    if (hasHeading()) {
        const int height =
            std::max(QFontMetrics(titleFont(font())).height(), m_content.icon != 0 ? IconSize : 0);
        QRect heading(inside.topLeft(), QSize(inside.width(), height));
        inside.setTop(inside.top() + height + Gap);
        if (m_content.icon != 0) {
            painter.save();
            paintIcon(
                painter,
                QRect(heading.left(), heading.top() + (height - IconSize) / 2, IconSize, IconSize),
                m_content.icon);
            painter.restore();
            heading.setLeft(heading.left() + IconSize + Gap);
        }
        painter.setFont(titleFont(font()));
        painter.setPen(fore);
        painter.drawText(heading, Qt::AlignLeft | Qt::AlignVCenter, m_content.title);
    }
    painter.setFont(font());
    painter.setPen(fore);
    painter.drawText(inside, Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap, m_content.text);
}

} // namespace orvalis
