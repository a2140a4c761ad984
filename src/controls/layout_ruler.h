// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QPaintDevice>

namespace orvalis {

/// What a layout is measured by, whose dots are no device's.
class LayoutRuler final : public QPaintDevice {
public:
    /// \param dots to the inch
    explicit LayoutRuler(int dots)
        : m_dots(dots) {}

    QPaintEngine* paintEngine() const override { return nullptr; }

protected:
    int metric(PaintDeviceMetric which) const override {
        switch (which) {
        case PdmDpiX:
        case PdmPhysicalDpiX:
        case PdmDpiY:
        case PdmPhysicalDpiY:
            return m_dots;
        case PdmDevicePixelRatio:
            return 1;
        case PdmDevicePixelRatioScaled:
            return int(devicePixelRatioFScale());
        default:
            return 0;
        }
    }

private:
    int m_dots;
};

} // namespace orvalis
