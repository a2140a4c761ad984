// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "controls/label.h"
#include "controls/rich_text_box.h"
#include "core/roles.h"

#include <QList>
#include <QStringList>

namespace orvalis::test {

/// A role with plain answers to what is asked of it beyond its form. What a test asks for is kept.
template <class Role>
class Answering : public Role {};

template <>
class Answering<NotesPanel> : public NotesPanel {
public:
    RichTextBox& rt1() override { return m_rt1; }
    const Label& lblNot() const override { return m_lblNot; }
    void PrintRTF(RichTextBox& RTF, int LeftMarginWidth, int TopMarginHeight, int RightMarginWidth,
                  int BottomMarginHeight) override {
        printed << QStringLiteral("%1 %2 %3 %4 %5")
                       .arg(RTF.Text())
                       .arg(LeftMarginWidth)
                       .arg(TopMarginHeight)
                       .arg(RightMarginWidth)
                       .arg(BottomMarginHeight);
    }
    void Sad(int Kind) override { inserted << Kind; }
    void FindNext() override { ++found; }

    QStringList printed; ///< the text of each print and its four margins
    QList<int> inserted; ///< the kinds that Sad() was called with
    int found = 0;       ///< how often FindNext() was called

private:
    RichTextBox m_rt1;
    Label m_lblNot;
};

template <>
class Answering<PrintWindow> : public PrintWindow {
public:
    RichTextBox& rtb() override { return m_rtb; }
    void stampa() override { calls << QStringLiteral("stampa"); }
    void stampaAll() override { calls << QStringLiteral("stampaAll"); }

    QStringList calls;

private:
    RichTextBox m_rtb;
};

template <>
class Answering<FindWindow> : public FindWindow {
public:
    void FindNext() override { ++found; }

    int found = 0; ///< how often FindNext() was called
};

} // namespace orvalis::test
