// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/document_reading.h"

namespace orvalis {

namespace {

rtf::MetafileConverter* metafiles = nullptr;

} // namespace

void setMetafileConverter(rtf::MetafileConverter* converter) {
    metafiles = converter;
}

rtf::ReadOptions readOptions() {
    rtf::ReadOptions options;
    options.metafiles = metafiles;
    return options;
}

} // namespace orvalis
