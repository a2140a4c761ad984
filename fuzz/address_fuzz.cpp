// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "address/address_file.h"

#include <cstdint>
#include <cstdlib>
#include <vector>

using namespace orvalis;

namespace {

void require(bool held) {
    if (!held)
        std::abort();
}

std::vector<AddressRecord> recordsOf(const QByteArray& bytes, const AnsiPage& page, bool& exact) {
    std::vector<AddressRecord> records;
    AddressFileReader file(bytes, page);
    bool whole = true;
    while (!file.atEnd()) {
        records.emplace_back();
        whole = file.read(records.back());
    }
    exact = whole && !file.hasDropped();
    return records;
}

bool holdQuote(const std::vector<AddressRecord>& records) {
    for (const AddressRecord& record : records)
        for (const auto field : AddressFields)
            if ((record.*field).contains(u'"'))
                return true;
    return false;
}

} // namespace

/// Any bytes are records; no item is longer than the file, and what holds no quote is written so
/// that it reads back the same.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    for (const int number : {1252, 1250, 874}) {
        const AnsiPage& page = AnsiPage::of(number);
        bool exact = false;
        const std::vector<AddressRecord> records = recordsOf(bytes, page, exact);
        qsizetype characters = 0;
        for (const AddressRecord& record : records)
            for (const auto field : AddressFields)
                characters += (record.*field).size();
        require(characters <= bytes.size());
        const QByteArray written = addressFileBytes(records, page);
        if (holdQuote(records))
            continue;
        require(recordsOf(written, page, exact) == records);
        require(exact);
        require(addressFileBytes(records, page) == written);
    }
    return 0;
}
