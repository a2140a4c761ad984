// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/writing/kept_writer.h"

#include "rtf/kept/number_place.h"
#include "rtf/words/rtf_output.h"
#include "rtf/writing/writer_tables.h"

#include <algorithm>

namespace orvalis::rtf {

namespace {

ParagraphFormat keptItem(QString lists) {
    lists.replace(InnerStart, PlaceStart).replace(InnerEnd, PlaceEnd);
    ParagraphFormat item;
    item.list.source = ListSource::Tables;
    const qsizetype at = std::max<qsizetype>(lists.indexOf(OverrideStart), 0);
    item.list.keptList = lists.first(at);
    item.list.keptOverride = lists.sliced(std::min(at + 1, lists.size()));
    return item;
}

int number(QStringView place, WriterTables& tables) {
    const QString what = place.sliced(1).toString();
    if (place.front() == ListPlace)
        return tables.list(keptItem(what));
    if (place.front() == FontPlace && what.isEmpty())
        return 0;
    if (place.front() == FontPlace)
        return tables.font(tables.names().family(what));
    return tables.color(QRgb(what.toUInt(nullptr, 16)));
}

bool endsWord(QStringView text) {
    const QChar last = text.back();
    return (last >= u'a' && last <= u'z') || (last >= u'A' && last <= u'Z') ||
           (last >= u'0' && last <= u'9');
}

} // namespace

void writeKept(RtfOutput& out, WriterTables& tables, QStringView kept) {
    if (!kept.isEmpty())
        out.endWordAhead(kept.front());
    while (!kept.isEmpty()) {
        const qsizetype at = kept.indexOf(PlaceStart);
        const QStringView ahead = at < 0 ? kept : kept.first(at);
        if (!ahead.isEmpty()) {
            if (endsWord(ahead))
                out.word(ahead.toLatin1());
            else
                out.structure(ahead.toLatin1());
        }
        if (at < 0)
            return;
        const qsizetype end = kept.indexOf(PlaceEnd, at);
        if (end < at + 2)
            return;
        out.word({}, number(kept.sliced(at + 1, end - at - 1), tables));
        kept = kept.sliced(end + 1);
    }
}

} // namespace orvalis::rtf
