// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "runtime/format.h"

#include "runtime/failure.h"

#include <QLocale>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace orvalis {

namespace {

/// The locale's full time pattern without its zone, which no text of the program tells.
QString longTimePattern(const QLocale& locale) {
    const QString full = locale.timeFormat(QLocale::LongFormat);
    QString pattern;
    bool quoted = false;
    for (const QChar c : full) {
        if (c == u'\'')
            quoted = !quoted;
        if (quoted || c != u't')
            pattern += c;
    }
    pattern.remove(u"()"_s).remove(u"[]"_s);
    pattern = pattern.simplified();
    return pattern.contains(u's') ? pattern : u"HH:mm:ss"_s;
}

QString longTime(QTime time) {
    const QLocale locale;
    return locale.toString(time, longTimePattern(locale));
}

/// The locale's short time pattern; the one locale whose pattern has seconds is nobody's language.
QString shortTimePattern(const QLocale& locale) {
    const QString pattern = locale.timeFormat(QLocale::ShortFormat);
    return pattern.contains(u's') ? u"HH:mm"_s : pattern;
}

QString shortTime(QTime time) {
    const QLocale locale;
    return locale.toString(time, shortTimePattern(locale));
}

QString padded(int number, int width) {
    return QString::number(number).rightJustified(width, u'0');
}

/// Reads a pattern from left to right and writes the texts of its tokens.
class PatternWriter {
public:
    PatternWriter(const QDateTime& value, QStringView pattern)
        : m_date(value.date())
        , m_time(value.time())
        , m_pattern(pattern)
        , m_twelveHours(hasDayHalf(pattern)) {}

    QString written() {
        while (m_position < m_pattern.size()) {
            const QChar c = m_pattern[m_position];
            if (c == u'"')
                takeQuoted();
            else if (c == u'\\')
                takeLiteral(1);
            else if (isDayHalf(m_pattern.mid(m_position)))
                takeDayHalf();
            else if (!takeToken(c.toLower().unicode()))
                takeLiteral(0);
        }
        return m_text;
    }

private:
    static bool isDayHalf(QStringView rest) {
        return rest.startsWith(u"AMPM", Qt::CaseInsensitive);
    }

    static bool hasDayHalf(QStringView pattern) {
        bool quoted = false;
        for (qsizetype i = 0; i < pattern.size(); ++i)
            if (pattern[i] == u'"')
                quoted = !quoted;
            else if (pattern[i] == u'\\' && !quoted)
                ++i;
            else if (!quoted && isDayHalf(pattern.mid(i)))
                return true;
        return false;
    }

    void takeQuoted() {
        const qsizetype close = m_pattern.indexOf(u'"', m_position + 1);
        const qsizetype end = close < 0 ? m_pattern.size() : close;
        m_text += m_pattern.mid(m_position + 1, end - m_position - 1);
        m_position = end + 1;
    }

    void takeLiteral(qsizetype skipped) {
        m_position += skipped;
        if (m_position < m_pattern.size())
            m_text += m_pattern[m_position++];
    }

    void takeDayHalf() {
        const QLocale locale;
        m_text += m_time.hour() < 12 ? locale.amText() : locale.pmText();
        m_position += 4;
        m_behindHours = false;
    }

    /// Takes up to \a longest of the same letter; tells how many.
    int run(char16_t letter, int longest) {
        int count = 0;
        while (count < longest && m_position < m_pattern.size() &&
               m_pattern[m_position].toLower() == letter) {
            ++count;
            ++m_position;
        }
        return count;
    }

    bool takeToken(char16_t letter) {
        const bool behindHours = m_behindHours;
        switch (letter) {
        case u'd':
            writeDay(run(letter, 4));
            break;
        case u'm': {
            const int count = run(letter, 4);
            if (behindHours && count <= 2)
                m_text += padded(m_time.minute(), count);
            else
                writeMonth(count);
            break;
        }
        case u'y': {
            if (!m_pattern.mid(m_position).startsWith(u"yy", Qt::CaseInsensitive))
                return false;
            const bool whole = m_pattern.mid(m_position).startsWith(u"yyyy", Qt::CaseInsensitive);
            run(letter, whole ? 4 : 2);
            m_text += whole ? padded(m_date.year(), 4) : padded(m_date.year() % 100, 2);
            break;
        }
        case u'h': {
            const int hour = m_twelveHours ? (m_time.hour() + 11) % 12 + 1 : m_time.hour();
            m_text += padded(hour, run(letter, 2));
            m_behindHours = true;
            return true;
        }
        case u'n':
            m_text += padded(m_time.minute(), run(letter, 2));
            break;
        case u's':
            m_text += padded(m_time.second(), run(letter, 2));
            break;
        default:
            return false;
        }
        m_behindHours = false;
        return true;
    }

    void writeDay(int count) {
        if (count <= 2)
            m_text += padded(m_date.day(), count);
        else
            m_text += QLocale().dayName(m_date.dayOfWeek(),
                                        count == 3 ? QLocale::ShortFormat : QLocale::LongFormat);
    }

    void writeMonth(int count) {
        if (count <= 2)
            m_text += padded(m_date.month(), count);
        else
            m_text += QLocale().monthName(m_date.month(),
                                          count == 3 ? QLocale::ShortFormat : QLocale::LongFormat);
    }

    QDate m_date;
    QTime m_time;
    QStringView m_pattern;
    bool m_twelveHours;
    bool m_behindHours = false; // the last token told hours, so that "mm" means minutes
    qsizetype m_position = 0;
    QString m_text;
};

bool names(QStringView pattern, QStringView named) {
    return pattern.compare(named, Qt::CaseInsensitive) == 0;
}

int timePart(QStringView part, int limit) {
    const QStringView digits = part.trimmed();
    const bool plain =
        !digits.isEmpty() && digits.size() <= 2 &&
        std::all_of(digits.begin(), digits.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
    const int number = plain ? digits.toInt() : limit + 1;
    if (number > limit)
        throw RuntimeError(ErrorNumber::TypeMismatch);
    return number;
}

} // namespace

QString Format(const QDateTime& value, QStringView pattern) {
    if (!value.date().isValid() || !value.time().isValid())
        throw RuntimeError(ErrorNumber::TypeMismatch);
    if (names(pattern, u"Long Time"))
        return longTime(value.time());
    if (names(pattern, u"Short Time"))
        return shortTime(value.time());
    if (names(pattern, u"Short Date"))
        return shortDate(value.date());
    return PatternWriter(value, pattern).written();
}

QString Format(QDate value, QStringView pattern) {
    return Format(QDateTime(value, QTime(0, 0), Qt::UTC), pattern);
}

QString Format(QTime value, QStringView pattern) {
    if (!value.isValid())
        throw RuntimeError(ErrorNumber::TypeMismatch);
    return Format(QDateTime(QDate(1899, 12, 30), value, Qt::UTC), pattern);
}

QString generalDate(const QDateTime& value) {
    return shortDate(value.date()) + u' ' + longTime(value.time());
}

QString shortDate(QDate value) {
    return QLocale().toString(value, QLocale::ShortFormat);
}

QTime TimeValue(QStringView text) {
    const QList<QStringView> parts = text.split(u':');
    if (parts.size() < 2 || parts.size() > 3)
        throw RuntimeError(ErrorNumber::TypeMismatch);
    const int hour = timePart(parts[0], 23);
    const int minute = timePart(parts[1], 59);
    const int second = parts.size() == 3 ? timePart(parts[2], 59) : 0;
    return QTime(hour, minute, second);
}

} // namespace orvalis
