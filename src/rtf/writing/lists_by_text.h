// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>

class QTextList;

namespace orvalis::rtf {

/// Remembers of which lists the text of the labels says what each of them is; of any other the list
/// tables must tell.
class ListsByText {
public:
    bool tells(const QTextList& list);

private:
    QHash<const QTextList*, bool> m_known;
};

} // namespace orvalis::rtf
