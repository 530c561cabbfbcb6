#include "telecfg/collections/valuetypes.h"

#include <QSequentialIterable>
#include <QtTest>

class TestValueTypes : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { registerCollectionTypes(); }
    void containersByName_data();
    void containersByName();
    void networkText_data();
    void networkText();
};

void TestValueTypes::containersByName_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QVariant>("sample");

    QTest::newRow("u16") << QByteArray("QVector<quint16>")
                         << QVariant::fromValue(QVector<quint16>{1, 2});
    QTest::newRow("u32") << QByteArray("QVector<quint32>")
                         << QVariant::fromValue(QVector<quint32>{1, 2});
    QTest::newRow("strings") << QByteArray("QVector<QString>")
                             << QVariant::fromValue(QVector<QString>{"a", "b"});
    QTest::newRow("bytes") << QByteArray("QVector<QByteArray>")
                           << QVariant::fromValue(QVector<QByteArray>{"a", "b"});
    QTest::newRow("columns") << QByteArray("QVector<QVector<QByteArray> >")
                             << QVariant::fromValue(ColumnVectors{{"a"}, {"b"}});
    QTest::newRow("uint list") << QByteArray("QList<uint>")
                               << QVariant::fromValue(QList<uint>{1, 2});
    // The named lists are known by name but not walked as sequences.
    QTest::newRow("named u16") << QByteArray("QList<NamedUShort>")
                               << QVariant::fromValue(QList<NamedUShort>{{1, "a"}, {2, "b"}});
    QTest::newRow("named u32") << QByteArray("QList<NamedUInt>")
                               << QVariant::fromValue(QList<NamedUInt>{{1, "a"}, {2, "b"}});
}

void TestValueTypes::containersByName()
{
    QFETCH(QByteArray, name);
    QFETCH(QVariant, sample);

    QCOMPARE(QMetaType::type(name.constData()), sample.userType());
    QCOMPARE(collectionTypeId(name.constData()), sample.userType());
    if (!name.startsWith("QList<Named"))
        QCOMPARE(sample.value<QSequentialIterable>().size(), 2);
}

void TestValueTypes::networkText_data()
{
    QTest::addColumn<quint32>("id");
    QTest::addColumn<QString>("text");

    QTest::newRow("country and operator")
        << quint32(266243) << "260003 Polska Orange / PTK Centertel Sp. z o.o.";
    QTest::newRow("all operators") << quint32((260u << 10) | 998u) << "260998 Polska Wszystkie";
    QTest::newRow("small number padded") << quint32(5) << "000005 Nieznany Nieznany";
    QTest::newRow("country above 999") << quint32(1000u << 10) << "1000000 Nieznany Nieznany";
}

void TestValueTypes::networkText()
{
    QFETCH(quint32, id);
    QFETCH(QString, text);
    QCOMPARE(::networkText(id), text);
}

QTEST_MAIN(TestValueTypes)
#include "tst_valuetypes.moc"
