// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <functional>
#include <memory>
#include <vector>

namespace orvalis {

class App;
class Clock;

/// A text that somebody typed and that lies in no file.
struct UnsavedText {
    QString title;  ///< what it is, for the line above it, as in `Sticker "Milk"`
    QByteArray rtf; ///< the text itself

    bool operator==(const UnsavedText&) const = default;
};

/// Keeps what was typed and not saved when the program ends otherwise than by its own commands: by
/// a failure that no handler met, at the session's end, or with its display. Windows tell it how to
/// ask for such texts; it writes them to `recovered.rtf` in the data folder, or to
/// `recovered 2.rtf` and on where there is one already.
class Recovery {
public:
    /// What a window holds that no file has, at the moment of the question; nothing when all is
    /// saved.
    using Source = std::function<std::vector<UnsavedText>()>;

    /// To be held by the window whose texts a source tells, and by nobody else: the source is asked
    /// as long as this lives.
    using Registration = std::shared_ptr<const Source>;

    Recovery(const App& app, const Clock& clock)
        : m_app(app)
        , m_clock(clock) {}
    Recovery(const Recovery&) = delete;
    Recovery& operator=(const Recovery&) = delete;

    [[nodiscard]] Registration add(Source source);

    /// Writes what the sources tell, in the order in which they were added, each under a line that
    /// says what it was and when. Nothing is written where there is nothing to keep, or where the
    /// last call has kept the same. A failure is silent: nobody is there to hear of it.
    void keep();

private:
    std::vector<UnsavedText> unsavedTexts() const;
    QByteArray documentOf(const std::vector<UnsavedText>& texts) const;

    const App& m_app;
    const Clock& m_clock;
    std::vector<std::weak_ptr<const Source>> m_sources;
    std::vector<UnsavedText> m_kept;
};

} // namespace orvalis
