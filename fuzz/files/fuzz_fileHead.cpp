// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/failure.h"
#include "files/fileHead.h"
#include "support/demand.h"
#include "support/quietSill.h"

#include <cstddef>
#include <cstdint>
#include <sstream>

using namespace boulix;
using fuzzing::demand;

namespace {

bool same(const fileHead &a, const fileHead &b) {
    return a.software() == b.software() && a.version() == b.version() && a.typ() == b.typ() &&
           a.createDate() == b.createDate() && a.modifydate() == b.modifydate() &&
           a.fileLen() == b.fileLen();
}

void readAsRecord(const std::string &bytes) {
    fileHead head;
    head.fromRecord(bytes);
    demand(head.toRecord().size() == fileHead::recordSize, "a record has its length");
    fileHead back;
    back.fromRecord(head.toRecord());
    demand(same(back, head), "a header survives its record form");
}

void readAsText(const std::string &bytes) {
    fileHead head;
    std::istringstream file(bytes);
    head.loadBinary(file);
    std::ostringstream written;
    head.saveBinary(written);
    demand(written.str().size() == fileHead::textSize, "a text has its length");
    fileHead back;
    std::istringstream again(written.str());
    back.loadBinary(again);
    demand(same(back, head), "a header survives its text form");
}

} // namespace

// The input is the start of a data file, read as a header in both stored forms.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    static bench_support::QuietDesktop desktop;
    setDesktop(&desktop);
    const std::string bytes(reinterpret_cast<const char *>(data), size);
    readAsRecord(bytes);
    try {
        readAsText(bytes);
    } catch (const RuntimeFailure &failure) {
        demand(failure.number() == static_cast<int>(Failure::overflow),
               "only a number that is too large fails");
    }
    return 0;
}
