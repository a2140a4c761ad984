// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "driver/display.h"
#include "driver/waiting.h"

#include <QProcess>
#include <QProcessEnvironment>
#include <QSize>
#include <QString>

#include <memory>
#include <vector>

namespace orvalis::driver {

/// A virtual desktop to drive the program on: a display of its own, and as asked for a window
/// manager, a tray and a session bus. Everything ends with the stage.
class Stage {
public:
    struct Plan {
        QSize screen{1280, 1024}; ///< device pixels
        bool windowManager = true;
        bool tray = false;
        bool sessionBus = false;
    };

    explicit Stage(const Plan& plan);
    ~Stage();
    Stage(const Stage&) = delete;
    Stage& operator=(const Stage&) = delete;

    /// Empty when everything came up, otherwise what did not.
    const QString& trouble() const { return m_trouble; }
    /// The environment of a program on this stage.
    const QProcessEnvironment& environment() const { return m_environment; }

    const Display& display() const { return m_display; }

    /// The display goes away under everybody who uses it.
    void killDisplay();
    /// The session bus stays and says no word from now on, until the stage ends.
    void freezeSessionBus();
    void startTray();
    void stopTray();

private:
    QProcess* start(const QString& program, const QStringList& arguments);
    bool startDisplay(QSize screen);
    void startSessionBus();
    void startWindowManager();

    Display m_display;
    QProcessEnvironment m_environment;
    std::vector<std::unique_ptr<QProcess>> m_processes;
    QProcess* m_server = nullptr;
    QProcess* m_tray = nullptr;
    QProcess* m_bus = nullptr;
    QString m_trouble;
};

} // namespace orvalis::driver
