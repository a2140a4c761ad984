// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "skin/faces.h"

#include "skin/palette.h"

#include <QPainterPath>
#include <QStyleOption>

namespace orvalis::skin::faces {

namespace {

/// Saves the painter and draws smooth edges until the end of the block.
class Smooth {
public:
    explicit Smooth(QPainter& painter)
        : m_painter(painter) {
        m_painter.save();
        m_painter.setRenderHint(QPainter::Antialiasing);
    }
    ~Smooth() { m_painter.restore(); }
    Q_DISABLE_COPY_MOVE(Smooth)

private:
    QPainter& m_painter;
};

bool enabled(QStyle::State state) {
    return state.testFlag(QStyle::State_Enabled);
}
bool hovered(QStyle::State state) {
    return enabled(state) && state.testFlag(QStyle::State_MouseOver);
}

// A one-pixel outline lies on the middle of the pixels.
QRectF outline(const QRect& rect) {
    return QRectF(rect).adjusted(0.5, 0.5, -0.5, -0.5);
}

QLinearGradient downward(const QRectF& rect, QRgb top, QRgb bottom) {
    QLinearGradient gradient(rect.topLeft(), rect.bottomLeft());
    gradient.setColorAt(0, QColor::fromRgba(top));
    gradient.setColorAt(1, QColor::fromRgba(bottom));
    return gradient;
}

QColor edge(QStyle::State state) {
    if (!enabled(state))
        return QColor::fromRgba(colour::LineSoft);
    if (state.testFlag(QStyle::State_HasFocus))
        return QColor::fromRgba(colour::Teal);
    return QColor::fromRgba(hovered(state) ? colour::TealSoft : colour::Line);
}

/// The pen of an edge. Where the keys go is told more strongly than where the pointer is.
QPen edgePen(QStyle::State state) {
    const bool focused = enabled(state) && state.testFlag(QStyle::State_HasFocus);
    return QPen(edge(state), focused ? 2 : 1);
}

QColor ink(QStyle::State state) {
    if (!enabled(state))
        return QColor::fromRgba(colour::DisabledText);
    return QColor::fromRgba(hovered(state) ? colour::Teal : colour::TitleInk);
}

// The square of a check box or option inside the rectangle that it is given.
QRectF square(const QRect& rect) {
    const qreal side = qMin(rect.width(), rect.height()) - 1;
    QRectF square(0, 0, side, side);
    square.moveCenter(QRectF(rect).center());
    return square;
}

QBrush boxFill(const QRectF& rect, QStyle::State state) {
    if (!enabled(state))
        return QColor(0xF1, 0xF3, 0xEF);
    if (state.testFlag(QStyle::State_Sunken))
        return QColor::fromRgba(colour::TealMist);
    return downward(rect, 0xFFFFFFFF, 0xFFE9F3F6);
}

} // namespace

void field(QPainter& painter, const QRect& rect, const QBrush& fill, QStyle::State state) {
    const Smooth smooth(painter);
    const QPen pen = edgePen(state);
    const qreal middle = pen.widthF() / 2;
    painter.setPen(pen);
    painter.setBrush(fill);
    painter.drawRoundedRect(QRectF(rect).adjusted(middle, middle, -middle, -middle), 3.5, 3.5);
}

void button(QPainter& painter, const QRect& rect, QStyle::State state, bool isDefault) {
    const Smooth smooth(painter);
    const QRectF face = outline(rect).adjusted(0, 0, 0, -1);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(11, 46, 54, enabled(state) ? 26 : 0));
    painter.drawRoundedRect(face.translated(0.3, 1), 5, 5);
    painter.setPen(QPen(isDefault && enabled(state) ? QColor::fromRgba(colour::LabelInk)
                                                    : edge(state & ~QStyle::State_HasFocus),
                        1));
    if (!enabled(state))
        painter.setBrush(QColor(0xF1, 0xF5, 0xF5));
    else if (state.testFlag(QStyle::State_Sunken))
        painter.setBrush(downward(face, 0xFFB4D3DC, 0xFFDCECF1));
    else if (hovered(state))
        painter.setBrush(downward(face, 0xFFFFFFFF, 0xFFAFDCDD));
    else
        painter.setBrush(downward(face, 0xFFFFFFFF, 0xFFC9E0E7));
    painter.drawRoundedRect(face, 5, 5);
    if (state.testFlag(QStyle::State_HasFocus))
        focus(painter, rect.adjusted(3, 3, -3, -4));
}

void toolButton(QPainter& painter, const QRect& rect, QStyle::State state) {
    const bool held = state.testFlag(QStyle::State_Sunken) || state.testFlag(QStyle::State_On);
    if (!enabled(state) || (!held && !hovered(state)))
        return;
    const Smooth smooth(painter);
    painter.setPen(QPen(QColor::fromRgba(colour::Teal), 1));
    if (held)
        painter.setBrush(downward(rect, colour::Sage, colour::SageLight));
    else
        painter.setBrush(downward(rect, 0xFFFFFFFF, 0xFFC6E6E5));
    painter.drawRoundedRect(outline(rect), 4, 4);
}

void checkBox(QPainter& painter, const QRect& rect, QStyle::State state) {
    const Smooth smooth(painter);
    const QRectF box = square(rect);
    painter.setPen(edgePen(state));
    painter.setBrush(boxFill(box, state));
    painter.drawRoundedRect(box, 3, 3);
    if (state.testFlag(QStyle::State_Off))
        return;
    const qreal unit = box.width() / 12;
    painter.translate(box.topLeft());
    painter.scale(unit, unit);
    painter.setBrush(Qt::NoBrush);
    QPainterPath mark(QPointF(2.7, 6.3));
    if (state.testFlag(QStyle::State_NoChange)) {
        mark = QPainterPath(QPointF(3.2, 6));
        mark.lineTo(8.8, 6);
    } else {
        mark.lineTo(5.1, 8.8);
        mark.lineTo(9.6, 3.3);
    }
    painter.setPen(QPen(enabled(state) ? QColor::fromRgba(colour::Green) : ink(state), 2.1,
                        Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(mark);
}

void option(QPainter& painter, const QRect& rect, QStyle::State state) {
    const Smooth smooth(painter);
    const QRectF circle = square(rect);
    painter.setPen(edgePen(state));
    painter.setBrush(boxFill(circle, state));
    painter.drawEllipse(circle);
    if (!state.testFlag(QStyle::State_On))
        return;
    painter.setPen(Qt::NoPen);
    painter.setBrush(enabled(state) ? QColor::fromRgba(colour::Green) : ink(state));
    const qreal inset = circle.width() * 0.27;
    painter.drawEllipse(circle.adjusted(inset, inset, -inset, -inset));
}

void arrow(QPainter& painter, const QRect& rect, Qt::ArrowType direction, QStyle::State state) {
    const Smooth smooth(painter);
    painter.translate(QRectF(rect).center());
    switch (direction) {
    case Qt::UpArrow:
        painter.rotate(180);
        break;
    case Qt::LeftArrow:
        painter.rotate(90);
        break;
    case Qt::RightArrow:
        painter.rotate(-90);
        break;
    default:
        break;
    }
    const qreal half = qBound(2.0, qMin(rect.width(), rect.height()) * 0.3, 4.0);
    painter.setPen(QPen(ink(state), 1.7, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawPolyline(
        QPolygonF{QPointF(-half, -half / 2), QPointF(0, half / 2), QPointF(half, -half / 2)});
}

void combo(QPainter& painter, const QStyleOptionComboBox& combo, const QRect& arrowRect) {
    const QStyle::State state = combo.state;
    const QBrush fill =
        enabled(state) ? combo.palette.brush(QPalette::Base) : QBrush(QColor(0xF1, 0xF3, 0xEF));
    if (combo.frame)
        field(painter, combo.rect, fill, state);
    {
        const Smooth smooth(painter);
        QPainterPath face;
        const QPen pen = edgePen(state);
        const qreal middle = pen.widthF() / 2;
        const QRectF whole = QRectF(combo.rect).adjusted(middle, middle, -middle, -middle);
        face.addRoundedRect(whole, 3.5, 3.5);
        painter.setClipRect(arrowRect.adjusted(0, 0, 2, 0));
        painter.setPen(pen);
        painter.setBrush(enabled(state) ? QBrush(downward(whole, 0xFFFAFDFF, 0xFFCFE3EA))
                                        : QBrush(QColor(0xEC, 0xF0, 0xEF)));
        painter.drawPath(face);
        painter.setPen(QPen(QColor::fromRgba(colour::LineSoft), 1));
        painter.drawLine(QPointF(arrowRect.left() + 0.5, whole.top() + 1),
                         QPointF(arrowRect.left() + 0.5, whole.bottom() - 1));
    }
    arrow(painter, arrowRect.adjusted(1, 0, 0, 0), Qt::DownArrow, state);
}

void group(QPainter& painter, const QStyleOptionGroupBox& group, const QRect& captionRect) {
    const Smooth smooth(painter);
    const int top = group.text.isEmpty() ? 0 : captionRect.center().y();
    const QRectF frame = outline(group.rect.adjusted(0, top, 0, 0));
    const QRect titleRoom = captionRect.adjusted(-4, 0, 4, 0);
    QPainterPath ground;
    ground.addRoundedRect(frame, 5, 5);
    QRegion around(group.rect);
    if (!group.text.isEmpty()) {
        // The title lies on the frame's own ground, which rises round it above the line.
        QPainterPath title;
        title.addRoundedRect(titleRoom, 4, 4);
        ground = ground.united(title);
        around -= titleRoom;
    }
    painter.setBrush(QColor(255, 255, 255, 90));
    painter.setPen(Qt::NoPen);
    painter.drawPath(ground);
    painter.setClipRegion(around);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor(255, 255, 255, 200), 1));
    painter.drawRoundedRect(frame.adjusted(1, 1, -1, -1), 4, 4);
    painter.setPen(QPen(QColor(0x8D, 0xB9, 0xC4, 190), 1));
    painter.drawRoundedRect(frame, 5, 5);
    painter.setClipping(false);
    if (group.text.isEmpty())
        return;
    painter.setPen(QColor::fromRgba(enabled(group.state) ? colour::Ink : colour::DisabledText));
    painter.drawText(captionRect, Qt::AlignCenter | Qt::TextShowMnemonic, group.text);
}

void scrollBar(QPainter& painter, const QStyleOptionSlider& bar, const QRect& slider) {
    const Smooth smooth(painter);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0x86, 0xBD, 0xCB, 40));
    painter.drawRect(bar.rect);
    if (!slider.isValid() || bar.maximum <= bar.minimum)
        return;
    const bool upright = bar.orientation == Qt::Vertical;
    const QRectF handle = upright ? QRectF(slider).adjusted(2.5, 1, -2.5, -1)
                                  : QRectF(slider).adjusted(1, 2.5, -1, -2.5);
    const bool held =
        bar.activeSubControls.testFlag(QStyle::SC_ScrollBarSlider) && enabled(bar.state);
    const bool pressed = held && bar.state.testFlag(QStyle::State_Sunken);
    QColor fill = QColor::fromRgba(held ? colour::Teal : colour::IceDeep);
    if (pressed)
        fill = QColor::fromRgba(colour::TitleInk);
    painter.setBrush(fill);
    const qreal radius = (upright ? handle.width() : handle.height()) / 2;
    painter.drawRoundedRect(handle, radius, radius);
}

void progressGroove(QPainter& painter, const QRect& rect) {
    const Smooth smooth(painter);
    painter.setPen(QPen(QColor::fromRgba(colour::Line), 1));
    painter.setBrush(downward(rect, 0xFFE2ECEE, 0xFFFAFDFF));
    painter.drawRoundedRect(outline(rect), 4, 4);
}

void progressFill(QPainter& painter, const QStyleOptionProgressBar& bar) {
    const Smooth smooth(painter);
    const QRectF groove = outline(bar.rect).adjusted(1.5, 1.5, -1.5, -1.5);
    const qint64 span = qint64(bar.maximum) - bar.minimum;
    const qreal part = span > 0 ? qreal(qint64(bar.progress) - bar.minimum) / qreal(span) : 1;
    const bool upright = !bar.state.testFlag(QStyle::State_Horizontal);
    QRectF done = groove;
    if (upright)
        done.setTop(groove.bottom() - groove.height() * qBound(0.0, part, 1.0));
    else
        done.setWidth(groove.width() * qBound(0.0, part, 1.0));
    if (done.width() < 1 || done.height() < 1)
        return;
    QPainterPath shape;
    shape.addRoundedRect(groove, 2.5, 2.5);
    painter.setClipPath(shape);
    painter.fillRect(done, downward(groove, 0xFFC7DDB8, 0xFF8FB47B));
}

void item(QPainter& painter, const QRect& rect, QStyle::State state) {
    if (state.testFlag(QStyle::State_Selected))
        painter.fillRect(rect, QColor::fromRgba(colour::Sage));
    else if (hovered(state))
        painter.fillRect(rect, QColor::fromRgba(colour::TealMist));
}

void focus(QPainter& painter, const QRect& rect) {
    const Smooth smooth(painter);
    const QRectF ring = QRectF(rect).adjusted(1.5, 1.5, -1.5, -1.5);
    painter.setBrush(Qt::NoBrush);
    // Light below dark: one of the two stands out from paper, pictures and dark glass alike.
    painter.setPen(QPen(QColor(255, 255, 255, 220), 3));
    painter.drawRoundedRect(ring, 3, 3);
    painter.setPen(QPen(QColor::fromRgba(colour::Teal), 1.6));
    painter.drawRoundedRect(ring, 3, 3);
}

} // namespace orvalis::skin::faces
