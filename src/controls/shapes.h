// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QFrame>
#include <QLineF>

namespace orvalis {

/// A box drawn on a form: a plain frame without a caption.
class Shape : public QFrame {
    Q_OBJECT
public:
    explicit Shape(const QString& name, QWidget* parent = nullptr);
};

/// A straight line drawn on a form, from (`X1`, `Y1`) to (`X2`, `Y2`) in twips of its container, in
/// the colour of its text.
class Line : public QWidget {
    Q_OBJECT
public:
    explicit Line(const QString& name, QWidget* parent = nullptr);

    const QLineF& ends() const { return m_ends; }
    void setEnds(const QLineF& twips);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QLineF m_ends;
};

} // namespace orvalis
