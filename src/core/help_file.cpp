// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "core/help_file.h"

#include "runtime/files.h"

namespace orvalis {

bool ShowHelpFile(HelpDisplay& display, const QString& path, WId windowHandle, quint32 contextId) {
    if (Dir(path).isEmpty())
        return false;
    const WId shown =
        contextId != 0 ? display.HtmlHelpA(windowHandle, path, HelpDisplay::HelpContext, contextId)
                       : display.HtmlHelpA(windowHandle, path, HelpDisplay::DisplayTopic, 0);
    return shown != 0;
}

} // namespace orvalis
