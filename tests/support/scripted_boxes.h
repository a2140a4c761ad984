// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "controls/message_boxes.h"

#include <QList>
#include <QTest>

#include <functional>
#include <optional>

namespace orvalis::test {

/// Answers message boxes from a script and records them. A question that nobody scripted fails the
/// test at once and prints its words; an answer that was never asked for fails it at the end.
class ScriptedBoxes final : public MessageBoxes {
public:
    struct Asked {
        QString text;
        int flags;
        QString title;
        bool operator==(const Asked&) const = default;
    };

    ScriptedBoxes() = default;
    ScriptedBoxes(const ScriptedBoxes&) = delete;
    ScriptedBoxes& operator=(const ScriptedBoxes&) = delete;
    ~ScriptedBoxes() override { verifyAllAsked(); }

    /// The next box, whatever its words; `asked` has them.
    void answer(Answer answer) { m_script.append({std::nullopt, answer, {}}); }
    /// The next box must be this one. The title is the empty text where the program's own is meant.
    void expect(const QString& text, int flags, Answer answer, const QString& title = {}) {
        m_script.append({Asked{text, flags, title}, answer, {}});
    }
    /// Runs while the next scripted box stands open, as a timer would.
    void meanwhile(std::function<void()> work) { m_script.last().meanwhile = std::move(work); }

    /// Fails the test for answers that nobody asked for, and forgets them.
    void verifyAllAsked() {
        for (const Step& step : std::as_const(m_script)) {
            const QString words =
                step.box ? step.box->text : QStringLiteral("(a box with any words)");
            QTest::qFail(qPrintable(QStringLiteral("Never asked: ") + words), __FILE__, __LINE__);
        }
        m_script.clear();
    }

    /// Drops the answers that are left, where it is in doubt whether anybody asks.
    void forget() { m_script.clear(); }

    Answer MsgBox(const QString& text, int flags, const QString& title) override {
        const Asked box{text, flags, title};
        asked.append(box);
        if (m_script.isEmpty()) {
            fail(QStringLiteral("Unscripted box: ") + words(box));
            return fallback(flags);
        }
        const Step step = m_script.takeFirst();
        if (step.box && *step.box != box)
            fail(QStringLiteral("Box: ") + words(box) + QStringLiteral("\n   expected: ") +
                 words(*step.box));
        if (!offers(flags, step.answer))
            fail(QStringLiteral("Answer that the box does not offer: ") + words(box));
        if (step.meanwhile)
            step.meanwhile();
        return step.answer;
    }

    /// All boxes so far, in their order.
    QList<Asked> asked;

private:
    struct Step {
        std::optional<Asked> box;
        Answer answer;
        std::function<void()> meanwhile;
    };

    static void fail(const QString& words) { QTest::qFail(qPrintable(words), __FILE__, __LINE__); }
    static QString words(const Asked& box) {
        return QStringLiteral("\"%1\", flags %2, title \"%3\"")
            .arg(box.text)
            .arg(box.flags)
            .arg(box.title);
    }
    static bool offers(int flags, Answer answer) {
        switch (flags & 0x0f) {
        case MsgFlags::OkCancel:
            return answer == Answer::Ok || answer == Answer::Cancel;
        case MsgFlags::YesNo:
            return answer == Answer::Yes || answer == Answer::No;
        default:
            return answer == Answer::Ok;
        }
    }
    static Answer fallback(int flags) {
        switch (flags & 0x0f) {
        case MsgFlags::OkCancel:
            return Answer::Cancel;
        case MsgFlags::YesNo:
            return Answer::No;
        default:
            return Answer::Ok;
        }
    }

    QList<Step> m_script;
};

} // namespace orvalis::test
