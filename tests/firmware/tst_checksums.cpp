// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/firmware/checksums.h"
#include "tests/support/testcase.h"

#include <QRandomGenerator>
#include <QtTest>
#include <zlib.h>

class TestChecksums : public TestCase
{
    Q_OBJECT

private slots:
    void checkValues_data();
    void checkValues();
    void crc32AgreesWithZlib();
};

void TestChecksums::checkValues_data()
{
    QTest::addColumn<QByteArray>("data");
    QTest::addColumn<quint32>("crc16");
    QTest::addColumn<quint32>("crc8");

    QTest::newRow("catalogue") << QByteArray("123456789") << 0x906Eu << 0xA1u;
    QTest::newRow("empty") << QByteArray() << 0u << 0u;
    // A 1-Wire ROM code: family 0x02, serial, then its CRC byte, after which the CRC is 0.
    QTest::newRow("rom code") << QByteArray::fromHex("021CB801000000A2") << 0xE239u << 0u;
}

void TestChecksums::checkValues()
{
    QFETCH(QByteArray, data);
    QFETCH(quint32, crc16);
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

void TestChecksums::crc32AgreesWithZlib()
{
    QByteArray data(1100, '\0');
    QRandomGenerator random(7);
    for (char &c : data)
        c = char(random.bounded(256));
    auto *d = reinterpret_cast<unsigned char *>(data.data());
    for (int length = 0; length <= data.size(); ++length) {
        const quint32 expected = quint32(crc32(0, d, uInt(length)));
        QCOMPARE(docrc32(d, length), expected);
        // Continued from any cut, the result is the same.
        const quint32 first = crc32next(0, d, quint64(length / 3));
        QCOMPARE(crc32next(first, d + length / 3, quint64(length - length / 3)), expected);
        for (int pageSize : {-7, 0, 1, 24, 1000})
            QCOMPARE(get_whole_crc(d, length, pageSize), expected);
    }
}

QTEST_APPLESS_MAIN(TestChecksums)
#include "tst_checksums.moc"
