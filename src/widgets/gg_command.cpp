// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "widgets/gg_command.h"

#include "controls/image.h"
#include "widgets/gg_layout.h"
#include "widgets/tool_tip_window.h"

#include <QEvent>
#include <QFontMetrics>
#include <QPainter>

#include <utility>

namespace orvalis {

using namespace Qt::StringLiterals;

GGCommand::GGCommand(QWidget* parent)
    : GGCommand(QString(), parent) {}

GGCommand::GGCommand(const QString& name, QWidget* parent)
    : QWidget(parent)
    , m_imgPicture(new Image(u"imgPicture"_s, this)) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    // It answers no key; whoever comes by keyboard is served by the keys of its window.
    setFocusPolicy(Qt::ClickFocus);
    setMouseTracking(true);
    m_imgPicture->hide();
    m_imgPicture->installEventFilter(this);
    connect(this, &QObject::objectNameChanged, this, [this] {
        nameForAssistivePrograms();
        repaintLook();
    });
    setObjectName(name);
    CalcLayout(false);
    PaintFace(0, false, false);
}

GGCommand::~GGCommand() {
    endToolTip();
}

QFont GGCommand::lookFont(bool hoverLook) const {
    QFont look = font();
    if (hoverLook)
        look.setBold(m_fontBoldOnHover);
    return look;
}

void GGCommand::applyBorder3DStyle() {
    switch (m_border3DStyle) {
    case 0:
        m_exStyle = 0;
        break;
    case 1:
        m_exStyle = ClientEdgeStyle;
        break;
    case 2:
        m_exStyle = DialogFrameStyle;
        break;
    case 3:
        m_exStyle = StaticEdgeStyle;
        break;
    case 4:
        m_exStyle = ClientEdgeStyle | DialogFrameStyle;
        break;
    default: // any other leaves the frame that is there
        break;
    }
}

void GGCommand::CalcLayout(bool hoverLook) {
    applyBorder3DStyle();
    const QSize face(ScaleWidth(), ScaleHeight());
    const QSize text = QFontMetrics(lookFont(hoverLook)).size(0, Caption());
    m_captionAt = alignedPosition(Placed::Caption, m_captionAlignment, face, text.width(),
                                  text.height(), m_captionXOffset, m_captionYOffset);
    m_pictureAt = alignedPosition(
        Placed::Picture, m_pictureAlignment, face, pictureExtent(m_picture.size().width()),
        pictureExtent(m_picture.size().height()), m_pictureXOffset, m_pictureYOffset);
}

void GGCommand::PaintFace(int Offset, bool Inverse, bool hoverLook) {
    const QPoint shift(Offset, Offset);
    m_face.size = {ScaleWidth(), ScaleHeight()};
    m_face.backColor = m_backColor;
    m_face.gradient = m_useGradientFill;
    m_face.orientation = m_gradientOrientation;
    m_face.from = m_gradientFromColor;
    m_face.to = m_gradientToColor;
    if (Inverse)
        std::swap(m_face.from, m_face.to);
    m_imgPicture->setVisible(!m_picture.isNull());
    if (!m_picture.isNull()) {
        const QPoint frame(frameWidth(), frameWidth());
        m_imgPicture->move(m_pictureAt + shift + frame);
        m_imgPicture->resize(m_picture.size());
        m_imgPicture->setPicture(m_picture);
    }
    m_face.captionAt = m_captionAt + shift;
    m_face.caption = Caption();
    m_face.foreColor = hoverLook ? m_fontColorOnHover : m_foreColor;
    m_face.font = lookFont(hoverLook);
    m_face.enabled = isEnabled();
    m_Offset = static_cast<quint8>(Offset);
    m_inverse = Inverse;
    m_hoverLook = hoverLook;
    m_edge.reset();
    if (m_alwaysShowBorder)
        PaintBorder(1);
    m_ownPaint = true;
    update();
}

void GGCommand::PaintBorder(int State) {
    m_edge = edgeOfState(State, m_backColor, m_alwaysShowBorder);
    m_BorderState = State;
    m_ownPaint = true;
    update();
}

void GGCommand::repaintLook() {
    const int state = m_BorderState;
    CalcLayout(m_hoverLook);
    PaintFace(m_Offset, m_inverse, m_hoverLook);
    if (state != 0)
        PaintBorder(state);
}

void GGCommand::paintEvent(QPaintEvent*) {
    if (!std::exchange(m_ownPaint, false) && m_BorderState != 0)
        m_edge = edgeOfState(m_BorderState, m_backColor, m_alwaysShowBorder);
    QPainter painter(this);
    paintFrame(painter, size(), m_exStyle);
    painter.translate(frameWidth(), frameWidth());
    painter.setClipRect(QRect(QPoint(), m_face.size));
    paintFace(painter, m_face);
    if (m_edge)
        paintEdge(painter, m_face.size, *m_edge, palette());
}

void GGCommand::resizeEvent(QResizeEvent*) {
    // A button that was never shown is told its size again and again, which is no resize.
    if (m_face.size != QSize(ScaleWidth(), ScaleHeight()))
        repaintLook();
}

void GGCommand::showEvent(QShowEvent*) {
    repaintLook();
}

void GGCommand::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    switch (event->type()) {
    case QEvent::EnabledChange:
        if (!isEnabled()) {
            m_MouseDown = false;
            pointerLeft();
        }
        repaintLook();
        break;
    case QEvent::FontChange:
        repaintLook();
        break;
    case QEvent::PaletteChange:
    case QEvent::StyleChange:
        update();
        break;
    default:
        break;
    }
}

QSize GGCommand::sizeHint() const {
    constexpr QSize Room(16, 8);
    const QSize text = QFontMetrics(font()).size(0, Caption());
    return text.expandedTo(m_picture.size()) + Room + 2 * QSize(frameWidth(), frameWidth());
}

QString GGCommand::spokenName() const {
    return accessibleName();
}

void GGCommand::nameForAssistivePrograms() {
    const QString tip = toolTip().trimmed();
    setAccessibleName(tip.isEmpty() ? Caption() : tip);
}

} // namespace orvalis
