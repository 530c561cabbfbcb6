// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/firmware/checksums.h"
#include "tests/support/datatable.h"
#include "tests/support/testcase.h"

#include <QRandomGenerator>
#include <QtTest>

class TestChecksums : public TestCase
{
    Q_OBJECT

private slots:
    void checkValues_data();
    void checkValues();
    void crc32MatchesBitwise_data();
    void crc32MatchesBitwise();
};

void TestChecksums::checkValues_data()
{
    columns<QByteArray, quint32, quint32>("data", "crc16", "crc8");

    row("catalogue", QByteArray("123456789"), 0x906Eu, 0xA1u);
    row("empty", QByteArray(), 0u, 0u);
    // A 1-Wire ROM code: family 0x02, serial, then its CRC byte, after which the CRC is 0.
    row("rom code", QByteArray::fromHex("021CB801000000A2"), 0xE239u, 0u);
}

void TestChecksums::checkValues()
{
    auto [data, crc16] = fetch<QByteArray, quint32>("data", "crc16");
    QCOMPARE(::crc16(data), crc16);
    QCOMPARE(::crc16(data), crc16); // the array form always starts afresh
    QTEST(quint32(crc8(data)), "crc8");

    // The running form, fed in two calls; a negative length leaves the value alone.
    quint16 running = 0;
    ::crc16(&running, data.data(), data.size() / 3);
    ::crc16(&running, data.data() + data.size() / 3, data.size() - data.size() / 3);
    ::crc16(&running, data.data(), -1);
    QCOMPARE(quint32(running), crc16);
}

namespace {
// The CRC-32 one bit at a time straight from its definition, continued like crc32next.
quint32 bitwiseCrc32(quint32 crc, const unsigned char *data, int length)
{
    quint32 state = ~crc;
    for (int i = 0; i < length; ++i) {
        state ^= data[i];
        for (int bit = 0; bit < 8; ++bit)
            state = (state >> 1) ^ (0xEDB88320u & (0u - (state & 1)));
    }
    return ~state;
}
} // namespace

void TestChecksums::crc32MatchesBitwise_data()
{
    QTest::addColumn<int>("offset");
    // Every length from 0 to 1100, from an aligned and from misaligned starts.
    for (int offset : {0, 1, 3, 7})
        QTest::addRow("start + %d", offset) << offset;
}

void TestChecksums::crc32MatchesBitwise()
{
    QFETCH(int, offset);
    QByteArray buffer(1100 + offset, '\0');
    QRandomGenerator random(7);
    for (char &c : buffer)
        c = char(random.bounded(256));
    auto *d = reinterpret_cast<unsigned char *>(buffer.data()) + offset;
    for (int length = 0; length <= 1100; ++length) {
        const quint32 expected = bitwiseCrc32(0, d, length);
        QCOMPARE(crc32next(0, d, quint64(length)), expected);
        QCOMPARE(docrc32(d, length), expected);
        for (int pageSize : {-7, 0, 1, 24, 1000})
            QCOMPARE(get_whole_crc(d, length, pageSize), expected);
        // Continued across three pieces, whatever the cuts, and from any earlier value.
        const int cut1 = length / 3;
        const int cut2 = length - length / 7;
        quint32 running = crc32next(0, d, quint64(cut1));
        running = crc32next(running, d + cut1, quint64(cut2 - cut1));
        QCOMPARE(crc32next(running, d + cut2, quint64(length - cut2)), expected);
        QCOMPARE(crc32next(0xA5A5A5A5u, d, quint64(length)), bitwiseCrc32(0xA5A5A5A5u, d, length));
    }
    QCOMPARE(docrc32(d, -1), 0u);
    QCOMPARE(crc32next(0x1234u, nullptr, 5), 0x1234u);
}

QTEST_APPLESS_MAIN(TestChecksums)
#include "tst_checksums.moc"
