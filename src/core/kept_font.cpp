// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "core/kept_font.h"

#include "controls/rich_text_box.h"
#include "core/layout_rule.h"
#include "platform/registry.h"
#include "platform/screen.h"
#include "runtime/failure.h"
#include "runtime/numeric_text.h"

namespace orvalis {

using namespace Qt::StringLiterals;

namespace {

constexpr double LargestFontSize = 2160;

} // namespace

KeptFont::KeptFont(Registry& settings, const QString& section, const Screen& screen)
    : m_settings(settings)
    , m_section(section)
    , m_screen(screen) {}

void KeptFont::load(RichTextBox& box) {
    resumeNext(
        [&] { box.SetFontName(m_settings.setting(m_section, u"FN"_s, u"Arial"_s).toString()); },
        [&] {
            const auto size =
                numericValue(m_settings.setting(m_section, u"FS"_s, u"8"_s).toString());
            if (!size)
                throw RuntimeError(ErrorNumber::TypeMismatch);
            if (*size > LargestFontSize)
                throw RuntimeError(ErrorNumber::InvalidPropertyValue);
            box.SetFontSize(*size);
            m_size = *size;
        });
}

void KeptFont::store(const RichTextBox& box) {
    if (const auto name = box.SelFontName())
        m_settings.putSetting(m_section, u"FN"_s, *name);
    if (const auto size = box.SelFontSize())
        m_settings.putSetting(m_section, u"FS"_s, QString::number(sizeToKeep(*size)));
}

int KeptFont::sizeToKeep(double pointSize) const {
    const double factor = fontFactor(m_screen.GetSystemMetrics(0));
    // Some sizes share one scaled size: the one that was read is kept while nobody changed it.
    if (scaledFontSize(m_size, factor) == roundHalfEven(pointSize))
        return static_cast<int>(roundHalfEven(m_size));
    return unscaledFontSize(pointSize, factor);
}

} // namespace orvalis
