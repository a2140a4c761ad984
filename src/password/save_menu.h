// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

class QMenu;
class QWidget;

namespace orvalis {

class Dialogs;
class RichTextBox;

/// The two texts of the Password panel.
class PasswordTexts {
public:
    virtual ~PasswordTexts() = default;
    /// The left text, as it was written or loaded.
    virtual RichTextBox& txtrt1() = 0;
    /// The right text, the working copy.
    virtual RichTextBox& txtText() = 0;
};

/// Makes the menu `mnusave`, which saves either text as plain text under a name that is asked for.
/// \param texts asked for anew at each entry chosen, as their window comes and goes.
QMenu* makeSaveMenu(QWidget* parent, Dialogs& dialogs,
                    const std::function<PasswordTexts&()>& texts);

} // namespace orvalis
