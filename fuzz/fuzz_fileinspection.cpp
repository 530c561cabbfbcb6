// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
// The file inspection behind telecfg-fw info and verify: the report of every checksum, its
// JSON, the summary and page table, the payload and the verdict, on any bytes.
#include "telecfg/firmware/firmware.h"
#include "tools/telecfg-fw/filereport.h"
#include "tools/telecfg-fw/fwtool.h"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    firmware(); // page size 2048, as the tool starts
    const FileReport report(QByteArray(reinterpret_cast<const char *>(data), int(size)));
    report.toJson();
    FwTool::summary(QStringLiteral("fuzz.fw"), report);
    FwTool::pageTable(report);
    const QByteArray payload = report.pagePayload();
    const FwTool::Verdict own = FwTool::verdict(QStringLiteral("fuzz.fw"), report, -1);
    const FwTool::Verdict other = FwTool::verdict(QStringLiteral("fuzz.fw"), report, 0x1234);
    // Sound means every checksum holds and the configurator's reader takes the file.
    const bool sound = report.allHold() && report.readAsHost(-1) == 0;
    if ((own.status == FwTool::Success) != sound || (other.status == FwTool::Success && !sound) ||
        payload.size() != report.pages.size() * FileReport::pageSize)
        __builtin_trap();
    return 0;
}
