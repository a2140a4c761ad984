// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/program.h"
#include "runtime/failure.h"
#include "support/answering_roles.h"

#include <memory>
#include <optional>
#include <vector>

namespace orvalis::test {

/// A window that is only what the others know it as.
template <class Role>
class PlainWindow : public Form, public Answering<Role> {
public:
    explicit PlainWindow(const QString& name)
        : Form(name) {}
    Form& form() override { return *this; }
};

/// `frmStart` as far as others ask anything of it.
class PlainStart final : public PlainWindow<StartWindow> {
public:
    PlainStart()
        : PlainWindow(QStringLiteral("frmStart")) {}
    void setTimer23Enabled(bool enabled) override { m_enabled = enabled; }
    bool timer23Enabled() const override { return m_enabled; }
    MSFlexGrid& MS2() override { qFatal("this test has no grid"); }

private:
    bool m_enabled = true;
};

/// `frmOptions` with its answers laid down.
class PlainOptions final : public PlainWindow<OptionsWindow> {
public:
    explicit PlainOptions(bool builtIn)
        : PlainWindow(QStringLiteral("frmOptions"))
        , m_builtIn(builtIn) {}
    bool builtInPlayer() const override { return m_builtIn; }
    bool sortByFirst() const override { return true; }

private:
    bool m_builtIn;
};

/// The owner of the popup menus, which only writes down what was asked for, and by a key where.
class MenuLog : public PlainWindow<PopupMenus> {
public:
    explicit MenuLog(QStringList& asked, std::optional<QPoint>* place = nullptr)
        : PlainWindow(QStringLiteral("frmdel1"))
        , m_asked(asked)
        , m_place(place) {}

protected:
    void popUpMenu(const QString& name, std::optional<QPoint> place) override {
        m_asked << name;
        if (m_place != nullptr)
            *m_place = place;
    }

private:
    QStringList& m_asked;
    std::optional<QPoint>* m_place;
};

/// Makes stickers that only count.
class PlainStickers final : public StickerMaker {
public:
    explicit PlainStickers(Program& program)
        : m_program(program) {
        program.stickers = this;
    }
    StickerWindow& newFrmstick() override { return make(); }
    StickerWindow& newXn() override { return make(); }
    StickerWindow& globalXn() override { return make(); }

    std::vector<std::unique_ptr<StickerWindow>> made;

private:
    class Sticker final : public PlainWindow<StickerWindow> {
    public:
        Sticker()
            : PlainWindow(QStringLiteral("frmstick")) {}
        RichTextBox& Text1() override { qFatal("this test writes on no sticker"); }
        void popUp() override { Show(); }
    };
    StickerWindow& make() {
        made.push_back(std::make_unique<Sticker>());
        made.back()->form().load();
        ++m_program.state.StickerCount;
        return *made.back();
    }

    Program& m_program;
};

/// A tick that counts its runs, and fails when told to.
class CountingTick final : public Tick {
public:
    void run(TickOwner& owner) override {
        ++runs;
        owner.showClock(QStringLiteral("10 : 24 : 36"));
        if (failure)
            throw RuntimeError(*failure);
        if (disarms)
            owner.disarm();
    }
    int runs = 0;
    bool disarms = false;
    std::optional<ErrorNumber> failure;
};

} // namespace orvalis::test
