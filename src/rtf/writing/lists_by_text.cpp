// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/writing/lists_by_text.h"

#include "rtf/formats/label_text.h"
#include "rtf/formats/list_formats.h"

#include <QTextBlock>
#include <QTextList>

namespace orvalis::rtf {

bool ListsByText::tells(const QTextList& list) {
    const auto known = m_known.constFind(&list);
    if (known != m_known.constEnd())
        return *known;
    const ListLabel label = labelOf(list);
    bool told = true;
    for (int item = 0; told && item < list.count(); ++item) {
        const QTextList* ahead = list.item(item).previous().textList();
        const ListKind kindAhead = ahead ? labelOf(*ahead).kind : ListKind::None;
        told = isToldByText(label, label.start + item, kindAhead);
    }
    m_known.insert(&list, told);
    return told;
}

} // namespace orvalis::rtf
