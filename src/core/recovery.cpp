// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "core/recovery.h"

#include "controls/document_reading.h"
#include "rtf/writer.h"
#include "runtime/app.h"
#include "runtime/clock.h"
#include "runtime/failure.h"
#include "runtime/file_saving.h"
#include "runtime/format.h"

#include <QTextBlockFormat>
#include <QTextCharFormat>
#include <QTextCursor>
#include <QTextDocument>

#include <algorithm>
#include <utility>

namespace orvalis {

using namespace Qt::StringLiterals;

namespace {

/// How many files of former ends are left beside one another.
constexpr int MostRecovered = 9999;
constexpr qreal TitleFontSize = 10;

QString recoveredName(int number) {
    return number == 1 ? u"recovered.rtf"_s : u"recovered %1.rtf"_s.arg(number);
}

QTextCharFormat titleFormat() {
    QTextCharFormat format;
    format.setFontFamilies({u"Arial"_s});
    format.setFontPointSize(TitleFontSize);
    format.setFontWeight(QFont::Bold);
    return format;
}

} // namespace

Recovery::Registration Recovery::add(Source source) {
    m_sources.erase(std::remove_if(m_sources.begin(), m_sources.end(),
                                   [](const auto& old) { return old.expired(); }),
                    m_sources.end());
    auto registration = std::make_shared<const Source>(std::move(source));
    m_sources.push_back(registration);
    return registration;
}

std::vector<UnsavedText> Recovery::unsavedTexts() const {
    std::vector<UnsavedText> texts;
    for (const auto& known : m_sources) {
        const Registration source = known.lock();
        if (source == nullptr)
            continue;
        // One window's trouble takes nothing from the others.
        endSilently([&] {
            for (UnsavedText& text : (*source)())
                texts.push_back(std::move(text));
        });
    }
    return texts;
}

QByteArray Recovery::documentOf(const std::vector<UnsavedText>& texts) const {
    const QString moment = Format(m_clock.now(), u"dddd, MMMM dd, yyyy") + u", "_s +
                           Format(m_clock.now(), u"hh:mm:ss");
    QTextDocument document;
    QTextCursor cursor(&document);
    for (const UnsavedText& text : texts) {
        if (!document.isEmpty()) {
            cursor.insertBlock(QTextBlockFormat(), titleFormat());
            cursor.insertBlock(QTextBlockFormat(), titleFormat());
        }
        cursor.insertText(text.title + u", "_s + moment, titleFormat());
        cursor.insertBlock(QTextBlockFormat(), QTextCharFormat());
        rtf::insertRtf(text.rtf, cursor, readOptions());
        cursor.movePosition(QTextCursor::End);
    }
    return rtf::writeRtf(document);
}

void Recovery::keep() {
    std::vector<UnsavedText> texts = unsavedTexts();
    if (texts.empty() || texts == m_kept)
        return;
    const bool written = endSilently([&] {
        const QByteArray document = documentOf(texts);
        for (int number = 1; number <= MostRecovered; ++number)
            if (saveNew(m_app.file(recoveredName(number)), document))
                return;
        throw RuntimeError(ErrorNumber::PathFileAccessError);
    });
    if (written)
        m_kept = std::move(texts);
}

} // namespace orvalis
