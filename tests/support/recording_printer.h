// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/printer.h"
#include "runtime/failure.h"

#include <QImage>
#include <QPainter>
#include <QStringList>

#include <memory>
#include <vector>

namespace orvalis::test {

/// Prints on pictures of its pages, and keeps in order what it was asked to do: "Print", "NewPage",
/// "EndDoc". The sheet is eight by eleven inches, of which it reaches all but a quarter of an inch
/// at the left and right and half an inch at the top and bottom.
class RecordingPrinter final : public Printer {
public:
    QStringList calls;
    QStringList printed;       ///< what Print() was given
    std::vector<QImage> pages; ///< the printable area of each, all jobs together
    int jobs = 0;              ///< ended with EndDoc()
    /// No printer is there; false again makes one appear.
    bool missing = false;
    /// Fails at this page of a job, counted from 1; 0 never.
    int failsAtPage = 0;
    Sheet paper{.paper = QSize(8 * Resolution, 11 * Resolution),
                .margins = QMargins(Resolution / 4, Resolution / 2, Resolution / 4, Resolution / 2),
                .resolution = QSize(Resolution, Resolution)};

    static constexpr int Resolution = 96; ///< pixels to the inch

    ~RecordingPrinter() override { m_painter.reset(); }

    void Print(const QString& text) override {
        calls << QStringLiteral("Print");
        printed << text;
        if (!m_painter)
            turnPage();
        m_painter->drawText(QPointF(0, m_painter->fontMetrics().ascent()), text);
    }
    QPainter* hDC() override { return m_painter.get(); }
    void NewPage() override {
        calls << QStringLiteral("NewPage");
        turnPage();
    }
    void EndDoc() override {
        calls << QStringLiteral("EndDoc");
        jobs += m_painter != nullptr;
        m_painter.reset();
        m_pagesOfJob = 0;
    }
    Sheet sheet() const override { return paper; }

private:
    void turnPage() {
        if (missing || m_pagesOfJob + 1 == failsAtPage)
            throw RuntimeError(ErrorNumber::PrinterError);
        ++m_pagesOfJob;
        m_painter.reset();
        QImage page(paper.paper.shrunkBy(paper.margins), QImage::Format_RGB32);
        constexpr double MetersPerInch = 0.0254;
        page.setDotsPerMeterX(qRound(paper.resolution.width() / MetersPerInch));
        page.setDotsPerMeterY(qRound(paper.resolution.height() / MetersPerInch));
        page.fill(Qt::white);
        pages.push_back(std::move(page));
        m_painter = std::make_unique<QPainter>(&pages.back());
    }

    std::unique_ptr<QPainter> m_painter;
    int m_pagesOfJob = 0;
};

} // namespace orvalis::test
