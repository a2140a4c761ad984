// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QElapsedTimer>
#include <QProgressBar>

namespace orvalis {

/// A progress bar that a long handler drives: its value is a fraction of a percent if need be, may
/// be set as often as there is something to tell, and is painted directly, no more than some ten
/// times a second, while the handler holds the thread.
class ProgressBar : public QProgressBar {
    Q_OBJECT
public:
    explicit ProgressBar(const QString& name, QWidget* parent = nullptr);

    int Min() const { return minimum(); }
    int Max() const { return maximum(); }
    float Value() const { return m_value; }
    /// \throws RuntimeError InvalidPropertyValue outside Min() to Max(); nothing changes then.
    void SetValue(float value);
    /// Sets it and paints it at once, whenever it was painted last.
    void PaintValue(float value);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    using QProgressBar::setValue;
    using QProgressBar::value;

    void takeValue(float value);

    float m_value = 0;
    QElapsedTimer m_painted;
};

} // namespace orvalis
