// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "driver/driven_program.h"

#include <QDateTime>
#include <QObject>
#include <QTest>

#include <memory>

namespace orvalis::test {

/// The whole program without a pointer, which lies in a corner: only keys are pressed. What every
/// such walk does stands here.
class KeyboardWalk : public QObject {
protected:
    using Keys = QString;

    /// Each walk begins on a fresh desktop, in front of the main window.
    void begin() {
        m_stage = std::make_unique<driver::Stage>(driver::Stage::Plan{.tray = true});
        QVERIFY2(m_stage->trouble().isEmpty(), qPrintable(m_stage->trouble()));
        m_program =
            std::make_unique<driver::DrivenProgram>(*m_stage, QStringLiteral(ORVALIS_EXECUTABLE));
        m_program->setClock({QDate(2026, 3, 14), QTime(10, 24, 5), Qt::UTC});
        QVERIFY(m_program->clickAt({2, 2}));
        QVERIFY(m_program->start());
        QVERIFY(m_program->waitVisible(QStringLiteral("frmnotes")));
        QVERIFY(waitFocus(QStringLiteral("frmnotes/imgopen1")));
        key(QStringLiteral("Tab")); // which marks the first picture
    }
    void end() {
        m_program.reset();
        m_stage.reset();
    }

    driver::DrivenProgram& program() { return *m_program; }
    driver::Control control(const QString& name) { return m_program->control(name); }
    void key(const Keys& keys) { m_program->key(keys); }
    void type(const QString& text) { m_program->type(text); }

    bool waitFocus(const QString& name) {
        return driver::waitUntil([&] { return control(name).focused; }, Patience);
    }
    bool waitGone(const QString& name) {
        return driver::waitUntil([&] { return !control(name).visible; }, Patience);
    }
    bool waitText(const QString& name, const QString& text) {
        return m_program->waitText(name, text);
    }
    bool waitFile(const QString& name, const QByteArray& part) {
        return driver::waitUntil([&] { return m_program->fileBytes(name).contains(part); },
                                 Patience);
    }

    /// Goes to a control by Tab and presses it.
    bool press(const QString& name, const Keys& keys = QStringLiteral("space")) {
        if (!m_program->tabTo(name))
            return false;
        key(keys);
        return true;
    }
    /// Goes to a text by Tab and writes over what it holds.
    bool write(const QString& name, const QString& text) {
        if (!press(name, QStringLiteral("ctrl+a")))
            return false;
        type(text);
        return true;
    }
    /// Opens a panel by its picture on the main window, and waits for the control that has the
    /// keyboard there.
    bool openPanel(const QString& picture, const QString& first) {
        return press(QStringLiteral("frmnotes/") + picture) && waitFocus(first);
    }
    /// Chooses from the help menu by the letter that is underlined.
    bool chooseHelp(const Keys& letter) {
        if (!press(QStringLiteral("frmnotes/imgHelp")) ||
            !m_program->waitVisible(QStringLiteral("mnuhelp")))
            return false;
        key(letter);
        return true;
    }
    bool cancel(const QString& window) {
        if (!driver::waitUntil([&] { return control(window).active; }, Patience))
            return false;
        key(QStringLiteral("Escape"));
        return waitGone(window);
    }
    /// Waits for a box with these words and answers it.
    bool answerBox(const QString& words, const Keys& keys = QStringLiteral("Return")) {
        const bool asks = driver::waitUntil(
            [&] {
                const driver::Control box = m_program->messageBox();
                return box.text == words && box.active;
            },
            Patience);
        if (!asks)
            return false;
        key(keys);
        return driver::waitUntil([&] { return m_program->messageBox().text != words; }, Patience);
    }
    bool answerFileDialog(const QString& path) {
        if (!m_program->waitAtRest(QStringLiteral("FileDialog")).visible)
            return false;
        type(path);
        key(QStringLiteral("Return"));
        return waitGone(QStringLiteral("FileDialog"));
    }

private:
    static constexpr int Patience = 8000; ///< milliseconds

    std::unique_ptr<driver::Stage> m_stage;
    std::unique_ptr<driver::DrivenProgram> m_program;
};

} // namespace orvalis::test
