// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QIconEngine>

namespace orvalis::skin {

/// An icon that replays a recorded picture, so that it is sharp at every size. Where a picture of
/// the same name with "_tiny" added exists, it stands in up to 20 device pixels: a drawing with
/// less in it, laid on the pixels of a 16 pixel tray.
class PictureIconEngine : public QIconEngine {
public:
    explicit PictureIconEngine(QString name);

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override;
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override;
    /// What the desktop is handed where it wants pixels rather than a drawing.
    QList<QSize> availableSizes(QIcon::Mode mode, QIcon::State state) override;
    QIconEngine* clone() const override;
    QString key() const override;
    bool isNull() override { return false; }

private:
    QString nameFor(int devicePixels) const;

    QString m_name;
};

} // namespace orvalis::skin
