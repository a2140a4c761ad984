// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "address/contact_block.h"

#include "address/address_record.h"
#include "controls/rich_text_box.h"

namespace orvalis {

using namespace Qt::StringLiterals;

namespace {

constexpr quint32 Black = 0;
constexpr quint32 Blue = 0xFF0000; // 0xBBGGRR

struct BlockLine {
    const char16_t* label;
    QString AddressRecord::*value;
    bool isLink = false;
};

constexpr std::array BlockLines{BlockLine{u"First Name ", &AddressRecord::First},
                                BlockLine{u"Second Name ", &AddressRecord::Second},
                                BlockLine{u"Group ", &AddressRecord::Area},
                                BlockLine{u"Address ", &AddressRecord::Address},
                                BlockLine{u"Phone ", &AddressRecord::Tel},
                                BlockLine{u"FAX ", &AddressRecord::Fax},
                                BlockLine{u"Email ", &AddressRecord::Email, true},
                                BlockLine{u"URL ", &AddressRecord::Web, true},
                                BlockLine{u"Comments ", &AddressRecord::Notes}};

} // namespace

void insertContact(RichTextBox& page, const AddressRecord& contact, BoldLines bold) {
    const RichTextBox::Batch batch(page);
    page.SetSelText(u"\r\n"_s);
    for (const BlockLine& line : BlockLines) {
        page.SetSelBold(bold == BoldLines::Labels);
        page.SetSelText(QString::fromUtf16(line.label) + u"\r\n"_s);
        page.SetSelBold(bold == BoldLines::Values);
        if (line.isLink)
            page.SetSelColor(Blue);
        page.SetSelText(u"     "_s + contact.*line.value + u"\r\n"_s);
        if (line.isLink)
            page.SetSelColor(Black);
    }
}

} // namespace orvalis
