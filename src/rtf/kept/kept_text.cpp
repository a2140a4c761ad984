// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/kept/kept_text.h"

#include "rtf/formats/formats.h"
#include "rtf/kept/number_place.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace orvalis::rtf {

namespace {

/// What stands between what is kept of a shape and its frame.
constexpr QChar FrameStart(0x7);

const QString ListOfCell = u"\\ls"_s + PlaceStart + ListPlace;

QString place(QChar kind, const QString& what) {
    return QString(PlaceStart) + kind + what + PlaceEnd;
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

/// What words that tell of a tracked change begin with.
constexpr std::array<QStringView, 4> WordsOfChanges = {u"\\rev", u"\\crauth", u"\\crdate", u"\\mv"};

/// What is kept of a field, without its number.
QStringView headOf(QStringView kept) {
    return kept.sliced(kept.indexOf(NumberEnd) + 1);
}

bool isEntry(QStringView head) {
    return head.startsWith(u"{\\xe") || head.startsWith(u"{\\tc");
}

bool isObject(QStringView head) {
    return head.startsWith(u"{\\object");
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

bool isOfField(QStringView group) {
    return group.startsWith(u"{\\*\\fldinst") || group.startsWith(u"\\fld");
}

bool isTracked(QStringView kept) {
    return std::any_of(
        WordsOfChanges.begin(), WordsOfChanges.end(),
        [kept](QStringView word) { return kept.contains(word); });
}

QString withoutTracked(const QString& kept) {
    QString rest;
    for (QStringView words = kept; !words.isEmpty();) {
        const qsizetype next = words.indexOf(u'\\', 1);
        const QStringView word = words.first(next < 0 ? words.size() : next);
        if (!isTracked(word))
            rest += word;
        words = words.sliced(word.size());
    }
    return rest;
}

FieldGroups fieldGroups(QStringView kept) {
    const QString head = headOf(kept).toString();
    if (isEntry(head))
        return {head, "}"};
    if (isObject(head))
        return {head, "}}"};
    return {u"{\\field"_s + head + u"{\\fldrslt"_s, "}}"};
}

bool holdsTextAlone(QStringView kept) {
    const QStringView head = headOf(kept);
    return isEntry(head) || isObject(head);
}

std::optional<KeptShown> shownBy(QStringView kept) {
    const qsizetype start = kept.indexOf(NumberEnd) + 1;
    const qsizetype end = kept.indexOf(NumberEnd, start);
    if (end < 0)
        return std::nullopt;
    const QStringView group = kept.sliced(start, end - start);
    const qsizetype frame = group.indexOf(FrameStart);
    return frame < 0 ? KeptShown{group, {}, kept.sliced(end + 1)}
                     : KeptShown{group.first(frame), group.sliced(frame + 1), kept.sliced(end + 1)};
}

QString keptOf(const KeptShown& shown) {
    QString kept = shown.group.toString();
    if (!shown.frame.isEmpty())
        kept.append(FrameStart).append(shown.frame);
    return kept.append(NumberEnd).append(shown.text);
}

} // namespace orvalis::rtf
