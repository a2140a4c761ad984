// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

namespace orvalis {

/// Which of the three frames of the entry area shows. They share one place: each can be called up
/// and sent away by itself, and of those that are up one is seen, the find frame before the
/// reminder frame before the message frame. So the way back from a search ends where it began.
class EntryArea {
public:
    enum class Frame { Message, Reminder, Find };

    bool message = true;   ///< `Frame2` is up
    bool reminder = false; ///< `Frame3` is up
    bool find = false;     ///< `Frame1` is up

    Frame shown() const {
        if (find)
            return Frame::Find;
        return reminder ? Frame::Reminder : Frame::Message;
    }
};

} // namespace orvalis
