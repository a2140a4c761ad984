// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

class QMimeData;

namespace orvalis {

/// Says how the program learns whether the owner of the clipboard is at work. The toolkit waits
/// five seconds for one that is not, and with it the tick, so it is asked for no content of such an
/// owner. Without a question every owner counts as at work.
void setClipboardQuestion(std::function<bool()> ownerAnswers);

/// What the clipboard offers; null for nothing, or where its owner does not answer.
const QMimeData* clipboardContent();

/// Keeps the program's one-line fields from asking an owner that does not answer: their paste does
/// nothing then. To be called once, with the application object there.
void guardLineFields();

} // namespace orvalis
