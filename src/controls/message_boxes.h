// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QWidget;

namespace orvalis {

/// What a message box was answered with.
enum class Answer { Ok, Cancel, Yes, No };

/// Flags of a message box: buttons, icon and default button added up, by their usual numbers.
namespace MsgFlags {
inline constexpr int OkOnly = 0;
inline constexpr int OkCancel = 1;
inline constexpr int YesNo = 4;
inline constexpr int StopIcon = 16;
inline constexpr int QuestionIcon = 32;
inline constexpr int ExclamationIcon = 48;
inline constexpr int InformationIcon = 64;
inline constexpr int SecondButtonIsDefault = 256;
} // namespace MsgFlags

/// Asks and tells the user. The program shows real boxes, a test answers them from a script.
class MessageBoxes {
public:
    virtual ~MessageBoxes() = default;

    /// Shows a box and holds the caller until it is answered; timers go on meanwhile.
    /// \param flags the sum of the numbers in MsgFlags.
    /// \param title "Orvalis" when empty.
    virtual Answer MsgBox(const QString& text, int flags = 0, const QString& title = {}) = 0;
};

} // namespace orvalis
