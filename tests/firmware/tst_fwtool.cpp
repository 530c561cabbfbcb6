// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
// telecfg-fw's file inspection on damaged files: what info's summary and verify's verdict
// make of every checksum, and which of several files verify reports as the worst.
#include "telecfg/firmware/checksums.h"
#include "telecfg/firmware/firmware.h"
#include "tests/firmware/payloads.h"
#include "tests/support/datatable.h"
#include "tests/support/testcase.h"
#include "tools/telecfg-fw/filereport.h"
#include "tools/telecfg-fw/fwtool.h"

#include <QtTest>

namespace {

// An uncompressed file of three pages, hw1 0x1234, hw2 7, as pack writes it, or with the
// pages and size block left plain, as the library's writer can make them.
QByteArray packedFile(bool plainPages = false)
{
    firmware fw;
    fw.setHW(0x1234, 7);
    fw.setNameDate(QStringLiteral("demo"), QStringLiteral("2026-01-02"));
    fw.setUserName(QStringLiteral("serwis"));
    fw.SetMark(0, 0, false, 0xFF);
    fw.setCompress(0);
    const QByteArray payload = makePayload(PayloadKind::FirmwareLike, 5100);
    QByteArray file;
    if (plainPages) {
        file = fw.encode(payload, true);
        firmware::crypt(file, 0x1234, 7, nullptr, 0);
    } else {
        fw.addDecodedFirmware(payload);
        fw.saveEncodedFile(file, QString());
    }

    return file;
}

// Damage as a faulty writer would: the image trailer (unless the damage is in it) and the
// outer checksum made to hold again, so that only the checksum of the part damaged can tell.
QByteArray damaged(int at)
{
    QByteArray file = packedFile();
    file[at] = char(file[at] ^ 0x5A);
    auto *bytes = reinterpret_cast<unsigned char *>(file.data());
    const auto put = [&](int offset, quint32 value) {
        for (int i = 0; i < 4; ++i)
            file[offset + i] = char(value >> (8 * i));
    };
    const int imageSize = int(bytes[8] | bytes[9] << 8 | bytes[10] << 16);
    const int trailer = 128 + imageSize - 8;
    if (at < trailer)
        put(trailer, crc32next(0, bytes + 128, quint64(imageSize - 8)));
    put(4, docrc32(bytes + 128, file.size() - 128));
    return file;
}

constexpr int image = 128;         // where the image starts in an uncompressed file
constexpr int record = 2048 + 8;   // a page record
constexpr int pages = image + 128; // the first page record

} // namespace

class TestFwTool : public TestCase
{
    Q_OBJECT

private slots:
    void damagedFile_data()
    {
        // failing: what the summary's verdict names
        columns<QByteArray, int, int, QString>("file", "expectedHw1", "status", "failing");

        row("sound", packedFile(), -1, 0, QString());
        row("sound, its hardware", packedFile(), 0x1234, 0, QString());
        row("sound, plain pages", packedFile(true), -1, 0, QString());
        row("other hardware", packedFile(), 0x99, 15, QString());
        row("name block", damaged(image + 20), -1, 6, "the name block");
        row("size block", damaged(image + 100), -1, 6, "the size block");
        row("page 2", damaged(pages + record + 5), -1, 6, "page 2");
        row("page 3's label", damaged(pages + 2 * record + 2048 + 4), -1, 6, "page 3");
        row("trailer", damaged(pages + 3 * record + 1), -1, 6, "the trailer");
        QByteArray header = packedFile();
        header[5] = char(header[5] ^ 1);
        row("header", header, -1, 14, "the header");
        row("cut short", packedFile().left(2000), -1, 13, "the header");
        row("no firmware", QByteArray(40, 'x'), -1, 11, "the header");
    }

    void damagedFile()
    {
        auto [file, expectedHw1, status, failing] =
            fetch<QByteArray, int, int, QString>("file", "expectedHw1", "status", "failing");

        const FileReport report(file);
        const FwTool::Verdict verdict =
            FwTool::verdict(QStringLiteral("x.fw"), report, expectedHw1);
        QCOMPARE(verdict.status, status);
        QVERIFY2(verdict.text.startsWith(QLatin1String("x.fw: ")), qPrintable(verdict.text));
        QCOMPARE(report.allHold(), failing.isEmpty());
        if (!report.headerRead)
            return;
        const QString summary = FwTool::summary(QStringLiteral("x.fw"), report);
        const QString verdictLine = summary.section(QLatin1Char('\n'), -2, -2);
        if (failing.isEmpty()) {
            QVERIFY2(verdictLine.endsWith(QLatin1String("every checksum holds")),
                     qPrintable(summary));
            QVERIFY(summary.contains(QLatin1String("pages 3 of 3 hold")));
        } else {
            QVERIFY2(verdictLine.contains(failing) &&
                         !summary.contains(QLatin1String("every checksum")),
                     qPrintable(summary));
            if (status == FwTool::NotVerified)
                QVERIFY2(verdict.text.contains(failing), qPrintable(verdict.text));
        }
    }

    void worstFile()
    {
        const int sound = FwTool::Success;
        const int other = FwTool::FileCode + 5;
        const int refused = FwTool::FileCode + 2;
        QCOMPARE(FwTool::worse(sound, other), other);
        QCOMPARE(FwTool::worse(other, FwTool::NotVerified), int(FwTool::NotVerified));
        QCOMPARE(FwTool::worse(refused, FwTool::NotVerified), refused);
        QCOMPARE(FwTool::worse(FwTool::Unreadable, refused), int(FwTool::Unreadable));
        QCOMPARE(FwTool::worse(FwTool::FileCode + 1, FwTool::FileCode + 4), FwTool::FileCode + 4);
    }
};

QTEST_GUILESS_MAIN(TestFwTool)
#include "tst_fwtool.moc"
