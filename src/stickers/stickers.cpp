// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "stickers/stickers.h"

#include "core/program.h"
#include "runtime/at_rest.h"
#include "stickers/sticker_form.h"

#include <algorithm>

namespace orvalis {

Stickers::Stickers(Program& program)
    : m_program(program) {}

Stickers::~Stickers() = default;

template <class Sticker>
Sticker& Stickers::make() {
    auto made = std::make_unique<Sticker>(m_program);
    Sticker& sticker = *made;
    m_open.push_back(std::move(made));
    connect(&sticker, &Form::unloadRequested, this, [this, &sticker] { close(&sticker); });
    sticker.load();
    return sticker;
}

StickerWindow& Stickers::newFrmstick() {
    return make<frmstick>();
}

StickerWindow& Stickers::newXn() {
    return make<xn>();
}

StickerWindow& Stickers::globalXn() {
    if (m_globalXn == nullptr)
        m_globalXn = &make<xn>();
    return *m_globalXn;
}

void Stickers::close(StickerForm* sticker) {
    // Its own unload handler asks once more, which changes nothing.
    if (!sticker->isLoaded())
        return;
    sticker->unload();
    if (sticker == m_globalXn)
        m_globalXn = nullptr;
    const auto place = std::find_if(m_open.begin(), m_open.end(),
                                    [&](const auto& open) { return open.get() == sticker; });
    std::shared_ptr<void> remains = std::move(*place);
    m_open.erase(place);
    // Its close button, a menu of its text or a drag out of it may be on the stack.
    deleteAtRest(std::move(remains), *this);
}

} // namespace orvalis
