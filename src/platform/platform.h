// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QSizeF>
#include <QStringView>

#include <memory>
#include <optional>

namespace orvalis {

class LogonEntry;
class Mail;
class Shell;
class TrayIcon;
class WindowCutter;

/// The system that the program runs on, as far as one differs from another. It is made before the
/// application object, and owns what it hands out.
class Platform {
public:
    virtual ~Platform() = default;

    /// The size of the primary screen in the units that windows would be measured in if nobody
    /// scaled further. To be asked before the application object is made; empty where nobody knows.
    virtual std::optional<QSizeF> primaryScreenSize() = 0;
    /// To be called right ahead of the application object.
    virtual void applicationBegins() = 0;
    /// To be called right behind the application object.
    virtual void applicationStands() = 0;

    /// Removes what a run that was killed while it wrote has left behind.
    virtual void removeLeftovers() = 0;

    virtual LogonEntry& logonEntry() = 0;
    virtual Shell& shell() = 0;
    virtual Mail& mail() = 0;
    virtual WindowCutter& windowCutter() = 0;
    virtual std::unique_ptr<TrayIcon> makeTray() = 0;

    /// Whether the program that the clipboard's content comes from is at work: one that isn't
    /// would hold whoever asks it. A tenth of a second at most.
    virtual bool clipboardAnswers() = 0;
    /// Whether the toolkit's connection to the display has broken, as it is about to find.
    /// \param warning what the toolkit says of it.
    virtual bool displayIsLost(QStringView warning) const = 0;
};

/// The platform of the system that this program was built for.
std::unique_ptr<Platform> makePlatform();

} // namespace orvalis
