// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

class QTextDocument;

namespace orvalis {

/// Makes one run of adjoining ones that look alike. What a file says of them beyond their looks
/// parts them for whoever writes it again; on a page it would only keep letters from joining.
/// What is kept of such runs is lost, so this is for a copy.
void joinAlikeRuns(QTextDocument& document);

} // namespace orvalis
