// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/kept/kept_text.h"

#include "rtf/writing/rtf_output.h"
#include "rtf/writing/writer_tables.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace orvalis::rtf {

namespace {

// What is kept has no characters of its own below a blank.
constexpr QChar PlaceStart(0x1);
constexpr QChar PlaceEnd(0x2);
constexpr QChar FontPlace = u'f';
constexpr QChar ColorPlace = u'c';
constexpr QChar ListPlace = u'l';
// In the place of a list, for the places in what is kept of it.
constexpr QChar InnerStart(0x4);
constexpr QChar InnerEnd(0x5);
constexpr QChar OverrideStart(0x6);

const QString ListOfCell = u"\\ls"_s + PlaceStart + ListPlace;

QString place(QChar kind, const QString& what) {
    return QString(PlaceStart) + kind + what + PlaceEnd;
}

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

/// The colour whose place follows a word.
QRgb colorBehind(QStringView kept, QStringView word, QRgb otherwise) {
    const qsizetype at = kept.indexOf(word);
    if (at < 0)
        return otherwise;
    const QStringView rest = kept.sliced(at + word.size());
    return QRgb(rest.first(std::max<qsizetype>(rest.indexOf(PlaceEnd), 0)).toUInt(nullptr, 16));
}

/// The number of a kept word, 0 where it is not there.
int numberBehind(QStringView kept, QStringView word) {
    const qsizetype at = kept.indexOf(word);
    if (at < 0)
        return 0;
    const qsizetype start = at + word.size();
    qsizetype end = start;
    while (end < kept.size() && kept[end].isDigit())
        ++end;
    return kept.sliced(start, end - start).toInt();
}

} // namespace

QString keptFont(const QString& family) {
    return place(FontPlace, family);
}

QString keptColor(QRgb color) {
    return place(ColorPlace, QString::number(color, 16));
}

QString keptList(const QString& list, const QString& listOverride) {
    QString lists = list + OverrideStart + listOverride;
    return place(ListPlace, lists.replace(PlaceStart, InnerStart).replace(PlaceEnd, InnerEnd));
}

QString listOfCell(const ListLabel& label) {
    return u"\\ls"_s + keptList(label.keptList, label.keptOverride) + u"\\ilvl"_s +
           QString::number(label.level);
}

bool isInList(const QString& kept) {
    return kept.contains(ListOfCell);
}

QString withoutListOfCell(const QString& kept) {
    return isInList(kept) ? kept.first(kept.indexOf(ListOfCell)) : kept;
}

void writeKept(RtfOutput& out, WriterTables& tables, QStringView kept) {
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

QByteArray keptWithoutPlaces(QStringView kept) {
    QByteArray rest;
    while (!kept.isEmpty()) {
        const qsizetype start = kept.indexOf(PlaceStart);
        rest += kept.first(start < 0 ? kept.size() : start).toLatin1();
        const qsizetype end = start < 0 ? start : kept.indexOf(PlaceEnd, start);
        kept = end < 0 ? QStringView() : kept.sliced(end + 1);
    }
    return rest;
}

int stretchOf(QStringView kept) {
    constexpr int Usual = 100;
    constexpr int Widest = 600; // that word processors know
    const int share = numberBehind(kept, u"\\charscalex");
    return share > 0 && share <= Widest ? share : Usual;
}

bool fillsBrokenLines(QStringView kept) {
    return kept.contains(u"\\expshrtn");
}

QRgb shadeOf(QStringView kept) {
    static const QString Ground = u"\\cbpat"_s + PlaceStart + ColorPlace;
    static const QString Pattern = u"\\cfpat"_s + PlaceStart + ColorPlace;
    static constexpr QStringView Share = u"\\shading";
    const QRgb ground = colorBehind(kept, Ground, AutomaticColor);
    constexpr int Whole = 10000;
    const int share = numberBehind(kept, Share);
    if (share <= 0 || share > Whole)
        return ground;
    const QRgb below = ground == AutomaticColor ? qRgb(255, 255, 255) : ground;
    const QRgb above = colorBehind(kept, Pattern, qRgb(0, 0, 0));
    const auto mixed = [&](int one, int other) {
        return (one * share + other * (Whole - share)) / Whole;
    };
    return qRgb(mixed(qRed(above), qRed(below)), mixed(qGreen(above), qGreen(below)),
                mixed(qBlue(above), qBlue(below)));
}

} // namespace orvalis::rtf
