#include "telecfg/firmware/checksums.h"

#include <QRandomGenerator>
#include <QtTest>
#include <zlib.h>

namespace {
const unsigned char *u(const QByteArray &a)
{
    return reinterpret_cast<const unsigned char *>(a.constData());
}

QByteArray randomBytes(int size, quint32 seed)
{
    QRandomGenerator random(seed);
    QByteArray data(size, '\0');
    for (char &c : data)
        c = char(random.bounded(256));
    return data;
}

quint32 zlibCrc(const QByteArray &a)
{
    return quint32(crc32(0, u(a), uInt(a.size())));
}
} // namespace

class TestChecksums : public QObject
{
    Q_OBJECT

private slots:
    void checkValues_data();
    void checkValues();
    void crc32AgreesWithZlibAtEveryLength();
    void crc32Continues();
    void crc16RunningForm_data();
    void crc16RunningForm();
    void crc8OfRomCode();
};

void TestChecksums::checkValues_data()
{
    QTest::addColumn<QByteArray>("data");
    QTest::addColumn<quint32>("crc16");
    QTest::addColumn<quint32>("crc32");
    QTest::addColumn<quint32>("crc8");

    QTest::newRow("catalogue") << QByteArray("123456789") << 0x906Eu << 0xCBF43926u << 0xA1u;
    QTest::newRow("empty") << QByteArray() << 0u << 0u << 0u;
    QTest::newRow("one zero") << QByteArray(1, '\0') << 0xF078u << 0xD202EF8Du << 0u;
}

void TestChecksums::checkValues()
{
    QFETCH(QByteArray, data);
    QFETCH(quint32, crc32);
    QTEST(crc16(data), "crc16");
    QTEST(quint32(crc8(data)), "crc8");
    QCOMPARE(crc32next(0, u(data), quint64(data.size())), crc32);
    QCOMPARE(docrc32(u(data), data.size()), crc32);
    if (data.size() >= 8) {
        for (int pageSize : {-7, 0, 1, 2048})
            QCOMPARE(get_whole_crc(reinterpret_cast<unsigned char *>(data.data()), data.size(),
                                   pageSize),
                     crc32);
    }
}

void TestChecksums::crc32AgreesWithZlibAtEveryLength()
{
    const QByteArray data = randomBytes(1100, 7);
    for (int length = 0; length <= data.size(); ++length) {
        QByteArray part = data.left(length);
        const quint32 expected = zlibCrc(part);
        QCOMPARE(crc32next(0, u(part), quint64(length)), expected);
        QCOMPARE(docrc32(u(part), length), expected);
        if (length >= 8) {
            for (int pageSize : {8, 24, 1000})
                QCOMPARE(
                    get_whole_crc(reinterpret_cast<unsigned char *>(part.data()), length, pageSize),
                    expected);
        }
    }
}

void TestChecksums::crc32Continues()
{
    const QByteArray data = randomBytes(3000, 11);
    const quint32 whole = zlibCrc(data);
    for (int cut : {0, 1, 7, 1500, 2999, 3000}) {
        const quint32 first = crc32next(0, u(data), quint64(cut));
        QCOMPARE(crc32next(first, u(data) + cut, quint64(data.size() - cut)), whole);
    }
    QCOMPARE(crc32next(0x12345678u, u(data), 0), 0x12345678u);
}

void TestChecksums::crc16RunningForm_data()
{
    QTest::addColumn<QByteArray>("message");
    QTest::addColumn<int>("cut");

    QTest::newRow("one call") << QByteArray("123456789") << 9;
    QTest::newRow("two calls") << QByteArray("123456789") << 4;
    QTest::newRow("first empty") << QByteArray("123456789") << 0;
    QTest::newRow("random") << randomBytes(777, 3) << 300;
}

void TestChecksums::crc16RunningForm()
{
    QFETCH(QByteArray, message);
    QFETCH(int, cut);
    quint16 running = 0;
    crc16(&running, message.data(), cut);
    crc16(&running, message.data() + cut, message.size() - cut);
    QCOMPARE(quint32(running), crc16(message));

    // The array form always starts afresh; a length of 0 or less leaves the value alone.
    QCOMPARE(crc16(message), crc16(message));
    for (int length : {0, -1, -1000}) {
        quint16 value = 0xBEEF;
        crc16(&value, message.data(), length);
        QCOMPARE(value, quint16(0xBEEF));
    }
}

void TestChecksums::crc8OfRomCode()
{
    // A 1-Wire ROM code: family 0x02, serial, and its CRC byte 0xA2.
    const QByteArray rom = QByteArray::fromHex("021CB801000000");
    QCOMPARE(crc8(rom), quint8(0xA2));
    QCOMPARE(crc8(rom + char(0xA2)), quint8(0));
}

QTEST_APPLESS_MAIN(TestChecksums)
#include "tst_checksums.moc"
