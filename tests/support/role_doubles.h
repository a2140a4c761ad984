// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "controls/ms_flex_grid.h"
#include "controls/rich_text_box.h"
#include "core/chrome_window.h"
#include "core/program.h"
#include "core/roles.h"
#include "support/answering_roles.h"

#include <QStringList>

#include <functional>
#include <memory>
#include <vector>

namespace orvalis::test {

/// A window that does nothing but write its life into a log: "load", "show", "hide", "unload" and
/// its name.
template <class Role>
class LoggedWindow : public Form, public Answering<Role> {
public:
    LoggedWindow(const QString& name, QStringList& log)
        : Form(name)
        , m_log(log) {
        setFixedSize(200, 100);
    }
    Form& form() override { return *this; }

protected:
    void onLoad() override { m_log << QStringLiteral("load ") + objectName(); }
    void onUnload() override { m_log << QStringLiteral("unload ") + objectName(); }
    void showEvent(QShowEvent* event) override {
        m_log << QStringLiteral("show ") + objectName();
        Form::showEvent(event);
    }
    void hideEvent(QHideEvent* event) override {
        if (isLoaded())
            m_log << QStringLiteral("hide ") + objectName();
        Form::hideEvent(event);
    }

private:
    QStringList& m_log;
};

/// Lets a role that asks no more of its window than Answering knows be a LoggedWindow.
template <class Role>
void registerLogged(Program& program, const QString& name, QStringList& log) {
    program.windows.registerMaker<Role>(
        [name, &log] { return std::make_unique<LoggedWindow<Role>>(name, log); });
}

/// A window with the chrome and nothing else, which logs when it shows and hides.
template <class Role>
class LoggedPanel : public ChromePanel<Answering<Role>> {
public:
    LoggedPanel(Program& program, ChromeKind kind, QStringList& log)
        : ChromePanel<Answering<Role>>(program, chromeRow(kind))
        , m_log(log) {}

protected:
    void onLoad() override { this->takeSizeOfBackground(); }
    void onUnload() override { m_log << QStringLiteral("unload ") + this->objectName(); }
    void showEvent(QShowEvent* event) override {
        m_log << QStringLiteral("show ") + this->objectName();
        ChromeWindow::showEvent(event);
    }
    void hideEvent(QHideEvent* event) override {
        if (this->isLoaded())
            m_log << QStringLiteral("hide ") + this->objectName();
        ChromeWindow::hideEvent(event);
    }

private:
    QStringList& m_log;
};

/// The Reminder panel as far as others ask of it.
class FakeReminderPanel : public LoggedPanel<ReminderPanel> {
public:
    FakeReminderPanel(Program& program, QStringList& log)
        : LoggedPanel(program, ChromeKind::Reminder, log)
        , m_log(log)
        , m_MS3(new MSFlexGrid(this)) {}

    MSFlexGrid& MS3() override { return *m_MS3; }
    void sv1() override { m_log << QStringLiteral("sv1"); }
    void sv3() override {
        m_log << QStringLiteral("sv3");
        if (whileSaving)
            whileSaving();
    }
    void Sacremi() override { m_log << QStringLiteral("Sacremi"); }

    std::function<void()> whileSaving; ///< Runs in the place of a save by `sv3`.

private:
    QStringList& m_log;
    MSFlexGrid* m_MS3;
};

/// The options as far as others ask of them.
class FakeOptions : public LoggedWindow<OptionsWindow> {
public:
    FakeOptions(QStringList& log, const bool& builtIn)
        : LoggedWindow(QStringLiteral("frmOptions"), log)
        , m_builtIn(builtIn) {}

    bool builtInPlayer() const override { return m_builtIn; }
    bool sortByFirst() const override { return true; }

private:
    const bool& m_builtIn;
};

/// Writes down what is asked of the tray.
class RecordingTrayOwner final : public TrayOwner {
public:
    RecordingTrayOwner(ChromeWindow& window, QStringList& log)
        : m_window(window)
        , m_log(log) {}

    void TrayBuild() override {
        m_log << QStringLiteral("TrayBuild");
        m_window.Hide();
    }
    void TrayReset() override { m_log << QStringLiteral("TrayReset"); }

private:
    ChromeWindow& m_window;
    QStringList& m_log;
};

} // namespace orvalis::test
