// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringView>

namespace orvalis::rtf {

class RtfOutput;
class WriterTables;

/// Writes what is kept, its fonts and colours by the numbers of these tables.
void writeKept(RtfOutput& out, WriterTables& tables, QStringView kept);

} // namespace orvalis::rtf
