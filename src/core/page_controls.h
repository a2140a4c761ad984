// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "skin/palette.h"

#include <QList>
#include <QRect>
#include <QString>

class QCheckBox;
class QGroupBox;
class QLineEdit;
class QWidget;

namespace orvalis {

class ComboBox;
class GGCommand;
class Label;
class RichTextBox;

// The controls of the pages of the panels, made ready with name, place (in the parent, in pixels at
// scale 1; an empty one is set later) and the pages' type. The parent owns them.
Label* pageLabel(QWidget& parent, const QString& name, const QRect& place, const QString& caption);
/// A line of text with its editing menu.
QLineEdit* pageLine(QWidget& parent, const QString& name, const QRect& place,
                    const QString& accessibleName);
QCheckBox* pageCheck(QWidget& parent, const QString& name, const QRect& place,
                     const QString& caption);
ComboBox* pageCombo(QWidget& parent, const QString& name, const QRect& place,
                    const QString& accessibleName);
QGroupBox* pageFrame(QWidget& parent, const QString& name, const QRect& place,
                     const QString& caption);
GGCommand* pageButton(QWidget& parent, const QString& name, const QRect& place,
                      const QString& caption, const skin::ButtonLook& look = skin::PageButton);
/// Gives a text, of whatever kind, the same. Tab leaves it, and Ctrl+Tab writes one.
void makePageText(RichTextBox& text, const QString& name, const QRect& place,
                  const QString& accessibleName);

/// Lets Tab go from each control to the next of the list.
void setTabOrder(const QList<QWidget*>& order);

} // namespace orvalis
