// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "password/text_cipher.h"

#include "runtime/ansi_page.h"
#include "runtime/failure.h"
#include "runtime/integer16.h"
#include "runtime/numeric_text.h"

#include <cmath>

namespace orvalis {

namespace {

constexpr int HighestCode = 255;

/// The password's codes, one after the other and again from the first. It moves once for each
/// character of the plain text, so that both directions stay in step.
class KeyCodes {
public:
    KeyCodes(const QString& password, const AnsiPage& page)
        : m_codes(page.encode(password)) {}

    int next() {
        if (++m_position > m_codes.size())
            m_position = 1;
        return static_cast<quint8>(m_codes[m_position - 1]);
    }

private:
    QByteArray m_codes;
    qsizetype m_position = 0;
};

/// One run over a text.
class Run {
public:
    Run(const QString& text, const QString& password, int method, const CipherGround& ground,
        CipherProgress& progress)
        : m_text(text)
        , m_key(password, ground.page)
        , m_method(method)
        , m_ground(ground)
        , m_progress(progress) {}

    QString encrypt() {
        QString output;
        const Integer16 length(m_text.size());
        output.reserve(2 * m_text.size());
        for (Integer16 position = 1; position <= length; ++position) {
            advance(1);
            const int code = Asc(characterAt(position), m_ground.page);
            appendPair(output, code, m_key.next());
        }
        return output;
    }

    QString decrypt() {
        QString output;
        const Integer16 length(m_text.size());
        output.reserve(m_text.size() / 2 + 1);
        for (Integer16 position = 1; position <= length; position += 2) {
            advance(2);
            const QStringView first = characterAt(position);
            int code = Asc(first, m_ground.page) - m_key.next();
            if (m_method == 2)
                code += Asc(characterAt(position + 1), m_ground.page);
            if (code < 0)
                code += HighestCode;
            appendCode(output, code);
        }
        return output;
    }

private:
    QStringView characterAt(int position) const { return QStringView(m_text).mid(position - 1, 1); }

    void advance(int characters) {
        m_consumed += characters;
        m_progress.setValue(
            static_cast<float>(static_cast<double>(m_consumed) * 100 / m_text.size()));
    }

    void appendPair(QString& output, int code, int key) const {
        if (m_method == 1) {
            const int shifted = shift(code + key);
            appendCode(output, shifted);
            appendCode(output, shifted / 2.0);
            return;
        }
        double low = code / 2.0;
        double high = low;
        // The text of half an odd code has decimals, and is cut at the sign ahead of them.
        if (code % 2 != 0 && m_ground.decimalSign == u'.') {
            low = std::floor(low);
            high = low + 1;
        }
        appendCode(output, shift(low + key));
        appendCode(output, high);
    }

    template <class Number>
    static Number shift(Number code) {
        return code > HighestCode ? code - HighestCode : code;
    }

    void appendCode(QString& output, double code) const {
        const double rounded = roundHalfEven(code);
        if (rounded > HighestCode)
            throw RuntimeError(ErrorNumber::InvalidProcedureCall);
        output += m_ground.page.character(static_cast<quint8>(rounded));
    }

    const QString& m_text;
    KeyCodes m_key;
    int m_method;
    const CipherGround& m_ground;
    CipherProgress& m_progress;
    qint64 m_consumed = 0;
};

} // namespace

QString EncryptString(const QString& text, const QString& password, bool encrypt, int method,
                      const CipherGround& ground, CipherProgress& progress) {
    if (password.isEmpty())
        return text;
    progress.show();
    Run run(text, password, method, ground, progress);
    const QString output = encrypt ? run.encrypt() : run.decrypt();
    progress.hide();
    return output;
}

} // namespace orvalis
