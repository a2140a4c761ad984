// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "platform/ini_document.h"

#include <QStringList>

#include <cstdint>
#include <cstdlib>

using namespace orvalis;
using namespace Qt::StringLiterals;

namespace {

void require(bool held) {
    if (!held)
        std::abort();
}

IniDocument writtenAndRead(const IniDocument& document) {
    const std::optional<IniDocument> again = IniDocument::parse(document.bytes());
    require(again.has_value());
    return *again;
}

/// What was read is written so that it reads back the same.
void requireStable(const IniDocument& document) {
    const IniDocument again = writtenAndRead(document);
    require(again.sections() == document.sections());
    for (const QString& section : document.sections())
        for (const auto& name : {u"Start"_s, u"1st"_s, u"FN"_s, QString()})
            require(again.value(section, name) == document.value(section, name));
}

/// Any section, name and text can be set in any document, read back and removed.
void requireSettable(IniDocument document, const QString& rubbish) {
    const qsizetype third = rubbish.size() / 3;
    const QString section = rubbish.first(third);
    const QString name = rubbish.sliced(third, third);
    const StoredValue value = StoredValue::string(rubbish.sliced(2 * third));
    document.setValue(section, name, value);
    require(document.value(section, name) == value);
    IniDocument again = writtenAndRead(document);
    require(again.value(section, name) == value);
    again.removeValue(section, name);
    require(!again.value(section, name).has_value());
}

} // namespace

/// Any bytes are settings or none; a change to them never harms them.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArrayView bytes(data, static_cast<qsizetype>(size));
    if (const std::optional<IniDocument> document = IniDocument::parse(bytes)) {
        requireStable(*document);
        requireSettable(*document, QString::fromUtf8(bytes));
    }
    const auto* units = reinterpret_cast<const char16_t*>(data);
    if (size > 0 && reinterpret_cast<std::uintptr_t>(data) % alignof(char16_t) == 0)
        requireSettable(IniDocument(),
                        QStringView(units, static_cast<qsizetype>(size / 2)).toString());
    return 0;
}
