// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "controls/rich_text_box.h"
#include "core/program.h"
#include "core/roles.h"

#include <QStringList>

#include <memory>
#include <vector>

namespace orvalis::test {

/// A sticker that is nothing but its text.
class FakeSticker final : public Form, public StickerWindow {
public:
    FakeSticker(const QString& name, QStringList& log)
        : Form(name)
        , m_log(log)
        , m_Text1(new RichTextBox(this)) {}

    Form& form() override { return *this; }
    RichTextBox& Text1() override { return *m_Text1; }
    void popUp() override { m_log << QStringLiteral("popUp ") + objectName(); }

private:
    QStringList& m_log;
    RichTextBox* m_Text1;
};

/// Makes stickers that are nothing but their text, and counts them.
class FakeStickers final : public StickerMaker {
public:
    explicit FakeStickers(QStringList& log)
        : m_log(log) {}

    StickerWindow& newFrmstick() override { return add(QStringLiteral("frmstick")); }
    StickerWindow& newXn() override { return add(QStringLiteral("xn")); }
    StickerWindow& globalXn() override {
        if (m_global == nullptr)
            m_global = &add(QStringLiteral("global xn"));
        return *m_global;
    }

    /// All stickers made, the latest last.
    std::vector<std::unique_ptr<FakeSticker>> made;

private:
    FakeSticker& add(const QString& name) {
        m_log << QStringLiteral("new ") + name;
        made.push_back(std::make_unique<FakeSticker>(name, m_log));
        return *made.back();
    }

    QStringList& m_log;
    FakeSticker* m_global = nullptr;
};

} // namespace orvalis::test
