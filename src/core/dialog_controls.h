// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QFont>
#include <QRect>
#include <QString>

class QGroupBox;
class QRadioButton;
class QWidget;

namespace orvalis {

class GGCommand;

/// The type of the small dialogs.
QFont dialogFont();

// The controls of the small dialogs, made ready with name, caption and place (in the parent, in
// pixels at scale 1). The parent owns them.
QGroupBox* dialogFrame(QWidget& parent, const QString& name, const QString& caption,
                       const QRect& place);
QRadioButton* dialogOption(QWidget& parent, const QString& name, const QString& caption,
                           const QRect& place);
/// \param picture of the skin, small, at the caption's left.
GGCommand* dialogButton(QWidget& parent, const QString& name, const QString& caption,
                        const QString& picture, const QRect& place);

} // namespace orvalis
