// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "controls/dialogs.h"

#include <QList>
#include <QTest>

#include <functional>

namespace orvalis::test {

/// Answers file, font, colour and print dialogs from scripts, one for each kind, and records what
/// was asked. A dialog that nobody scripted fails the test at once; an answer that was never asked
/// for fails it at the end. std::nullopt is Cancel.
class ScriptedDialogs final : public Dialogs {
public:
    ScriptedDialogs() = default;
    ScriptedDialogs(const ScriptedDialogs&) = delete;
    ScriptedDialogs& operator=(const ScriptedDialogs&) = delete;
    ~ScriptedDialogs() override { verifyAllAsked(); }

    void answerOpen(const std::optional<QString>& file) { m_open.append(file); }
    void answerSave(const std::optional<QString>& file) { m_save.append(file); }
    void answerFont(const std::optional<FontChoice>& choice) { m_font.append(choice); }
    void answerColour(const std::optional<quint32>& colour) { m_colour.append(colour); }

    /// false is Cancel.
    void answerPrinter(bool accepted) { m_printer.append(accepted); }

    /// Fails the test for answers that nobody asked for, and forgets them.
    void verifyAllAsked() {
        const auto left =
            m_open.size() + m_save.size() + m_font.size() + m_colour.size() + m_printer.size();
        if (left > 0)
            fail(QStringLiteral("Dialogs never asked for: %1").arg(left));
        m_open.clear();
        m_save.clear();
        m_font.clear();
        m_colour.clear();
        m_printer.clear();
    }

    std::optional<QString> openFile(const FileRequest& request) override {
        opened.append(request);
        if (whileOpen)
            whileOpen();
        return next(m_open, QStringLiteral("open dialog, filter ") + request.filter);
    }
    std::optional<QString> saveFile(const FileRequest& request) override {
        saved.append(request);
        return next(m_save, QStringLiteral("save dialog, filter ") + request.filter);
    }
    std::optional<FontChoice> chooseFont(const FontChoice& present) override {
        fonts.append(present);
        return next(m_font, QStringLiteral("font dialog, font ") + present.name);
    }
    std::optional<quint32> chooseColour(quint32 present) override {
        colours.append(present);
        return next(m_colour, QStringLiteral("colour dialog"));
    }
    bool choosePrinter() override {
        ++printersChosen;
        return next(m_printer, QStringLiteral("print dialog")).value_or(false);
    }

    // All dialogs so far, as they were asked for.
    QList<FileRequest> opened;
    QList<FileRequest> saved;
    QList<FontChoice> fonts;
    QList<quint32> colours;
    int printersChosen = 0;
    /// Runs while an open dialog is up.
    std::function<void()> whileOpen;

private:
    static void fail(const QString& words) { QTest::qFail(qPrintable(words), __FILE__, __LINE__); }

    template <class T>
    static std::optional<T> next(QList<std::optional<T>>& script, const QString& words) {
        if (script.isEmpty()) {
            fail(QStringLiteral("Unscripted ") + words);
            return std::nullopt;
        }
        return script.takeFirst();
    }

    QList<std::optional<QString>> m_open;
    QList<std::optional<QString>> m_save;
    QList<std::optional<FontChoice>> m_font;
    QList<std::optional<quint32>> m_colour;
    QList<std::optional<bool>> m_printer;
};

} // namespace orvalis::test
