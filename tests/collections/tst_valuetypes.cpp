// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/collections/valuetypes.h"

#include <QtTest>

class TestValueTypes : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { registerCollectionTypes(); }
    void containersByName_data();
    void containersByName();
    void qtFoldsVectorsIntoLists();
    void networkText_data();
    void networkText();
};

void TestValueTypes::containersByName_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<int>("id");

    QTest::newRow("u16") << QByteArray("QVector<quint16>") << qMetaTypeId<QVector<quint16>>();
    QTest::newRow("u32") << QByteArray("QVector<quint32>") << qMetaTypeId<QVector<quint32>>();
    QTest::newRow("str") << QByteArray("QVector<QString>") << qMetaTypeId<QVector<QString>>();
    QTest::newRow("bytes") << QByteArray("QVector<QByteArray>")
                           << qMetaTypeId<QVector<QByteArray>>();
    QTest::newRow("columns") << QByteArray("QVector<QVector<QByteArray> >")
                             << qMetaTypeId<ColumnVectors>();
    QTest::newRow("uints") << QByteArray("QList<uint>") << qMetaTypeId<QList<uint>>();
    QTest::newRow("named u16") << QByteArray("QList<NamedUShort>")
                               << qMetaTypeId<QList<NamedUShort>>();
    QTest::newRow("named u32") << QByteArray("QList<NamedUInt>") << qMetaTypeId<QList<NamedUInt>>();
}

void TestValueTypes::containersByName()
{
    QFETCH(QByteArray, name);
    QFETCH(int, id);

#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    QCOMPARE(QMetaType::fromName(name).id(), id);
#else
    QCOMPARE(QMetaType::type(name.constData()), id);
#endif
    QCOMPARE(collectionTypeId(name.constData()), id);
}

// Qt 6 makes QVector<T> the same type as QList<T>: the documented names still find their
// type, but "QVector<quint32>" and "QList<uint>" become one type under Qt 6's own names.
void TestValueTypes::qtFoldsVectorsIntoLists()
{
    const QVariant vector = QVariant::fromValue(QVector<QByteArray>{});
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    QCOMPARE(collectionTypeId("QVector<quint32>"), collectionTypeId("QList<uint>"));
    QCOMPARE(QByteArray(vector.typeName()), QByteArray("QByteArrayList"));
#else
    QVERIFY(collectionTypeId("QVector<quint32>") != collectionTypeId("QList<uint>"));
    QCOMPARE(QByteArray(vector.typeName()), QByteArray("QVector<QByteArray>"));
#endif
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
