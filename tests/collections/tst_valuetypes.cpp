// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/collections/valuetypes.h"
#include "tests/support/datatable.h"
#include "tests/support/testcase.h"

#include <QtTest>

class TestValueTypes : public TestCase
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
    columns<QByteArray, int>("name", "id");

    row("u16", QByteArray("QVector<quint16>"), qMetaTypeId<QVector<quint16>>());
    row("u32", QByteArray("QVector<quint32>"), qMetaTypeId<QVector<quint32>>());
    row("str", QByteArray("QVector<QString>"), qMetaTypeId<QVector<QString>>());
    row("bytes", QByteArray("QVector<QByteArray>"), qMetaTypeId<QVector<QByteArray>>());
    row("columns", QByteArray("QVector<QVector<QByteArray> >"), qMetaTypeId<ColumnVectors>());
    row("uints", QByteArray("QList<uint>"), qMetaTypeId<QList<uint>>());
    row("named u16", QByteArray("QList<NamedUShort>"), qMetaTypeId<QList<NamedUShort>>());
    row("named u32", QByteArray("QList<NamedUInt>"), qMetaTypeId<QList<NamedUInt>>());
}

void TestValueTypes::containersByName()
{
    auto [name, id] = fetch<QByteArray, int>("name", "id");

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
    columns<quint32, QString>("id", "text");

    row("country and operator", quint32(266243), "260003 Polska Orange / PTK Centertel Sp. z o.o.");
    row("all operators", quint32((260u << 10) | 998u), "260998 Polska Wszystkie");
    row("small number padded", quint32(5), "000005 Nieznany Nieznany");
    row("country above 999", quint32(1000u << 10), "1000000 Nieznany Nieznany");
}

void TestValueTypes::networkText()
{
    auto [id, text] = fetch<quint32, QString>("id", "text");
    QCOMPARE(::networkText(id), text);
}

QTEST_MAIN(TestValueTypes)
#include "tst_valuetypes.moc"
