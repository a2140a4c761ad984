// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "notes/find_commands.h"

#include "controls/rich_text_box.h"

namespace orvalis {

void FindCommands::step(RichTextBox& box, const FindRequest& request) {
    m_FoundPos = box.Find(request.text, m_FoundPos + 1, -1, request.options());
}

bool FindCommands::find(RichTextBox& box, const FindRequest& request) {
    m_FoundPos = 0;
    step(box, request);
    return m_FoundPos >= 0;
}

bool FindCommands::findNext(RichTextBox& box, const FindRequest& request) {
    step(box, request);
    return m_FoundPos >= 1;
}

bool FindCommands::replace(RichTextBox& box, const FindRequest& request) {
    box.SetSelText(request.replacement);
    return findNext(box, request);
}

void FindCommands::replaceAll(RichTextBox& box, const FindRequest& request) {
    const RichTextBox::Batch batch(box);
    m_FoundPos = 0;
    bool hit = replace(box, request);
    while (hit)
        hit = replace(box, request);
}

} // namespace orvalis
