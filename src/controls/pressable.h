// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QWidget;

namespace orvalis {

/// What a control offers that looks like a picture or a text and can be pressed like a button. It
/// makes such a control reachable for people who don't point: screen readers and switch devices
/// find it as a button with a name and a press action.
class Pressable {
public:
    virtual ~Pressable() = default;

    /// Does what pressing and releasing the left button in the control's middle does.
    virtual void press() = 0;
    /// Whether a press leads anywhere; a picture that nobody listens to is no button.
    virtual bool isPressable() const = 0;
    /// The control's name for those who don't see it.
    virtual QString spokenName() const = 0;

    Pressable(const Pressable&) = delete;
    Pressable& operator=(const Pressable&) = delete;

protected:
    /// The first one built makes the accessibility layer know the class.
    Pressable();
};

} // namespace orvalis
