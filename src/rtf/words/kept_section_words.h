// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "rtf/words/kept_entry.h"

namespace orvalis::rtf::detail {

/// What is kept of sections.
constexpr auto keptSectionWords() {
    using enum KeptLevel;
    using enum KeptKind;
    return std::to_array<KeptEntry>({
        {"ds", Section, Style},
        {"sbknone", Section, Switch, SectionBreak},
        {"sbkcol", Section, Switch, SectionBreak},
        {"sbkpage", Section, Switch, SectionBreak},
        {"sbkeven", Section, Switch, SectionBreak},
        {"sbkodd", Section, Switch, SectionBreak},
        {"endnhere", Section, Switch},
        {"pgwsxn", Section, Number},
        {"pghsxn", Section, Number},
        {"marglsxn", Section, Number},
        {"margrsxn", Section, Number},
        {"margtsxn", Section, Number},
        {"margbsxn", Section, Number},
        {"guttersxn", Section, Number},
        {"margmirsxn", Section, Switch},
        {"lndscpsxn", Section, Switch},
        {"binfsxn", Section, Number},
        {"binsxn", Section, Number},
        {"headery", Section, Number},
        {"footery", Section, Number},
        {"titlepg", Section, Switch},
        {"cols", Section, Number},
        {"colsx", Section, Number},
        {"linebetcol", Section, Switch},
        {"vertalt", Section, Switch, VerticalAlign},
        {"vertalb", Section, Switch, VerticalAlign},
        {"vertalc", Section, Switch, VerticalAlign},
        {"vertalj", Section, Switch, VerticalAlign},
        {"linemod", Section, Number},
        {"linex", Section, Number},
        {"linestarts", Section, Number},
        {"linerestart", Section, Switch, LineNumber},
        {"lineppage", Section, Switch, LineNumber},
        {"linecont", Section, Switch, LineNumber},
        {"pgnstarts", Section, Number},
        {"pgncont", Section, Switch, PageCount},
        {"pgnrestart", Section, Switch, PageCount},
        {"pgnx", Section, Number},
        {"pgny", Section, Number},
        {"pgndec", Section, Switch, PageNumber},
        {"pgnucrm", Section, Switch, PageNumber},
        {"pgnlcrm", Section, Switch, PageNumber},
        {"pgnucltr", Section, Switch, PageNumber},
        {"pgnlcltr", Section, Switch, PageNumber},
        {"ltrsect", Section, Switch, SectionDirection},
        {"rtlsect", Section, Switch, SectionDirection},
        {"sectlinegrid", Section, Number},
        {"sectdefaultcl", Section, Switch},
        {"sectexpand", Section, Number},
        {"sftnbj", Section, Switch},
        {"sftntj", Section, Switch},
        {"sftnstart", Section, Number},
        {"sectunlocked", Section, Switch},
        {"sectspecifyl", Section, Switch},
        {"sectspecifycl", Section, Switch},
        {"sectspecifygen", Section, Number},
        {"pgbrdropt", Section, Number},
        {"pgbrdrhead", Section, Switch},
        {"pgbrdrfoot", Section, Switch},
        {"pgbrdrsnap", Section, Switch},
        {"pgbrdrt", Section, Side},
        {"pgbrdrl", Section, Side},
        {"pgbrdrb", Section, Side},
        {"pgbrdrr", Section, Side},
    });
}

} // namespace orvalis::rtf::detail
