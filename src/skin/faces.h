// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QPainter>
#include <QStyle>

class QStyleOptionComboBox;
class QStyleOptionGroupBox;
class QStyleOptionProgressBar;
class QStyleOptionSlider;

/// The faces that the style puts on controls: each function draws one part of a control, in the
/// state that is told, and knows nothing of widgets.
namespace orvalis::skin::faces {

/// The edge of a field (line, list, rich text box) with rounded corners, filled with the brush.
void field(QPainter& painter, const QRect& rect, const QBrush& fill, QStyle::State state);

/// A push button of a message box or dialog.
void button(QPainter& painter, const QRect& rect, QStyle::State state, bool isDefault);

/// A button of a tool bar or of the calendar's head: nothing until the pointer is over it.
void toolButton(QPainter& painter, const QRect& rect, QStyle::State state);

void checkBox(QPainter& painter, const QRect& rect, QStyle::State state);
void option(QPainter& painter, const QRect& rect, QStyle::State state);

/// An arrow head without a stem, as combos and scroll areas have it.
void arrow(QPainter& painter, const QRect& rect, Qt::ArrowType direction, QStyle::State state);

/// A combo's field with its arrow; the text is drawn by others.
void combo(QPainter& painter, const QStyleOptionComboBox& combo, const QRect& arrowRect);

/// A frame with its caption set into the upper edge.
void group(QPainter& painter, const QStyleOptionGroupBox& group, const QRect& captionRect);

void scrollBar(QPainter& painter, const QStyleOptionSlider& bar, const QRect& slider);

void progressGroove(QPainter& painter, const QRect& rect);
void progressFill(QPainter& painter, const QStyleOptionProgressBar& bar);

/// What is under the pointer or selected in a list or tree.
void item(QPainter& painter, const QRect& rect, QStyle::State state);

/// Where the keyboard is.
void focus(QPainter& painter, const QRect& rect);

} // namespace orvalis::skin::faces
