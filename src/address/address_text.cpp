// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "address/address_text.h"

#include "address/address_record.h"

namespace orvalis {

using namespace Qt::StringLiterals;

QString contactAsText(const AddressRecord& contact) {
    const QStringList lines{QString(),
                            u" First Name: "_s + contact.First,
                            u" Second name: "_s + contact.Second,
                            u" Group: "_s + contact.Area,
                            u" Address: "_s + contact.Address,
                            u" Phone: "_s + contact.Tel,
                            u" Fax: "_s + contact.Fax,
                            u" Email: "_s + contact.Email,
                            u" URL: "_s + contact.Web,
                            u" Comments: "_s + contact.Notes,
                            u" _________________________________"_s};
    return lines.join(u"\r\n"_s) + u"\r\n"_s;
}

} // namespace orvalis
