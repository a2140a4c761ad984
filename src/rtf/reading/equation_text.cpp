// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/reading/equation_text.h"

#include <QStringList>

#include <vector>

using namespace Qt::StringLiterals;

namespace orvalis::rtf {

namespace {

constexpr size_t DeepestNesting = 32;

/// A part of an equation: what a switch sets, or a list of its arguments as far as it was read.
struct Part {
    char16_t kind = 0; ///< letter of the switch, 0 for plain parentheses
    QStringList arguments{QString()};
    QList<bool> raised{false}; ///< of the arguments: whether they are nothing but scripts
};

QString fenced(const Part& part) {
    return u'(' + part.arguments.join(u", "_s) + u')';
}

// Of what is set one over the other the base stays, unless there is nothing else.
QString base(const Part& part) {
    QString text;
    for (qsizetype i = 0; i < part.arguments.size(); ++i)
        if (!part.raised[i])
            text += part.arguments[i];
    return text.isEmpty() ? part.arguments.join(QString()) : text;
}

QString textOf(const Part& part) {
    switch (part.kind) {
    case u'f':
        return part.arguments.join(u'/');
    case u'r':
        return part.arguments.size() > 1 ? part.arguments[0] + u'\u221a' + part.arguments[1]
                                         : u'\u221a' + part.arguments[0];
    case u'i':
        return u'\u222b' + part.arguments.join(u' ');
    case u'l':
        return part.arguments.join(u", "_s);
    case u'a':
        return part.arguments.join(u' ');
    case u'o':
        return base(part);
    case 0:
    case u'b':
        return fenced(part);
    default:
        return part.arguments.join(QString());
    }
}

/// Reads an equation from its beginning to its end; what is open is kept on a stack of its own.
class EquationReader {
public:
    explicit EquationReader(QStringView text)
        : m_text(text) {}

    QString read() {
        m_parts.push_back({});
        while (m_at < m_text.size())
            step(m_text[m_at++]);
        while (m_parts.size() > 1)
            close();
        return m_parts.front().arguments.join(u',').simplified();
    }

private:
    void step(QChar c) {
        if (c == u'\\')
            escape();
        else if (c == u'(')
            open();
        else if (c == u')' && m_parts.size() > 1)
            close();
        else if ((c == u',' || c == u';') && m_parts.size() > 1)
            nextArgument();
        else if (m_kind == 0)
            add(QString(c), false);
    }

    // A switch is a letter; the words behind it only say how it is set.
    void escape() {
        if (m_at == m_text.size())
            return;
        const QChar c = m_text[m_at];
        if (c == u'*') {
            generalSwitch();
            return;
        }
        if (!c.isLetter()) {
            ++m_at;
            if (m_kind == 0) // or it is the bracket that a switch is to set
                add(QString(c), false);
            return;
        }
        const qsizetype start = m_at;
        while (m_at < m_text.size() && m_text[m_at].isLetter())
            ++m_at;
        if (m_kind == 0 && m_at - start == 1)
            m_kind = c.toLower().unicode();
    }

    // "\* jc2", '\* "Font:Arial"'
    void generalSwitch() {
        ++m_at;
        while (m_at < m_text.size() && m_text[m_at] == u' ')
            ++m_at;
        const bool quoted = m_at < m_text.size() && m_text[m_at] == u'"';
        m_at += quoted;
        while (m_at < m_text.size() && m_text[m_at] != (quoted ? u'"' : u' '))
            ++m_at;
        ++m_at;
    }

    void open() {
        if (m_parts.size() < DeepestNesting) {
            m_parts.push_back({});
            m_parts.back().kind = m_kind;
        }
        m_kind = 0;
    }

    void close() {
        m_kind = 0;
        const Part part = std::move(m_parts.back());
        m_parts.pop_back();
        add(textOf(part), part.kind == u's');
    }

    void nextArgument() {
        m_kind = 0;
        m_parts.back().arguments.append(QString());
        m_parts.back().raised.append(false);
    }

    void add(const QString& text, bool raised) {
        Part& part = m_parts.back();
        if (part.arguments.last().isEmpty())
            part.raised.last() = raised;
        else if (!raised)
            part.raised.last() = false;
        part.arguments.last() += text;
    }

    QStringView m_text;
    qsizetype m_at = 0;
    char16_t m_kind = 0; ///< of a switch that waits for its parenthesis
    std::vector<Part> m_parts;
};

} // namespace

QString equationText(const QString& instruction) {
    const QString trimmed = instruction.trimmed();
    const QStringView name = QStringView(trimmed).first(std::min<qsizetype>(2, trimmed.size()));
    const bool isEquation = name.compare("EQ"_L1, Qt::CaseInsensitive) == 0 &&
                            (trimmed.size() == 2 || !trimmed[2].isLetterOrNumber());
    return isEquation ? EquationReader(QStringView(trimmed).sliced(2)).read() : QString();
}

} // namespace orvalis::rtf
