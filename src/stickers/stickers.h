// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/roles.h"

#include <QObject>

#include <memory>
#include <vector>

namespace orvalis {

class Program;
class StickerForm;
class xn;

/// Makes the stickers of the program and owns those that are open.
class Stickers final : public QObject, public StickerMaker {
    Q_OBJECT
public:
    explicit Stickers(Program& program);
    ~Stickers() override;

    // Each sticker comes loaded and hidden.
    StickerWindow& newFrmstick() override;
    StickerWindow& newXn() override;
    StickerWindow& globalXn() override;

private:
    template <class Sticker>
    Sticker& make();
    void close(StickerForm* sticker);

    Program& m_program;
    std::vector<std::unique_ptr<StickerForm>> m_open;
    xn* m_globalXn = nullptr;
};

} // namespace orvalis
