// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/collections/valuetypes.h"
#include "telecfg/config/mainconfig.h"
#include "telecfg/config/parametertable.h"
#include "telecfg/config/parametertypes.h"
#include "tests/support/datatable.h"
#include "tests/support/testcase.h"

#include <QTemporaryDir>
#include <QtTest>

namespace {
QByteArray tableWith(const QByteArray &parameter)
{
    return "{\"version\": 12, \"parameters\": [" + parameter + "]}";
}
} // namespace

using VersionMap = QMap<int, int>;
Q_DECLARE_METATYPE(VersionMap)

class TestParameterTable : public TestCase
{
    Q_OBJECT

private slots:
    void modified_data()
    {
        columns<QVariant, QVariant, bool>("stored", "current", "modified");

        row("same int", QVariant(400), QVariant(400), false);
        row("other int", QVariant(400), QVariant(380), true);
        row("int and uint", QVariant(7), QVariant(7u), false);
        row("int flag and bool", QVariant(1), QVariant(true), false);
        row("bool and int 0", QVariant(true), QVariant(0), true);
        row("number and its text", QVariant(300), QVariant(QStringLiteral("300")), false);
        row("double and whole text", QVariant(835.0), QVariant(QStringLiteral("835")), false);
        row("texts", QVariant(QStringLiteral("1234")), QVariant(QStringLiteral("12345")), true);
        row("uint vectors equal", vec<quint32>({1, 2, 0}), vec<quint32>({1, 2, 0}), false);
        row("uint vectors differ", vec<quint32>({1, 2, 0}), vec<quint32>({1, 3, 0}), true);
        row("ushort vectors differ", vec<quint16>({5, 0}), vec<quint16>({0, 5}), true);
        row("byte arrays differ", vec<QByteArray>({"A", ""}), vec<QByteArray>({"B", ""}), true);
        row("strings equal", vec<QString>({QStringLiteral("x")}),
            vec<QString>({QStringLiteral("x")}), false);
        row("table cell differs", QVariant::fromValue(ColumnVectors{{"1", "2"}, {"10", "20"}}),
            QVariant::fromValue(ColumnVectors{{"1", "2"}, {"10", "21"}}), true);
        row("table equal", QVariant::fromValue(ColumnVectors{{"1"}, {"10"}}),
            QVariant::fromValue(ColumnVectors{{"1"}, {"10"}}), false);
    }

    void modified()
    {
        auto [stored, current, modified] =
            fetch<QVariant, QVariant, bool>("stored", "current", "modified");
        ParameterTable table;
        MainConfigObject record;
        record.value = stored;
        table.addRecord(101, record);
        table.setValue(101, current);
        QCOMPARE(table.isModified(101), modified);
        QCOMPARE(table.matchesStored(101, current), !modified);
        table.save();
        QVERIFY(!table.isModified(101));
    }

    void validity_data()
    {
        // parameter: the keys of parameter 3 after "ref"
        columns<QString, bool, QList<int>>("parameter", "valid", "invalidItems");

        const QList<int> none;
        const QString range = R"("rules": {"min": 10, "max": 1500})";
        row("in range", R"("value": 400, )" + range, true, none);
        row("above max", R"("value": 1501, )" + range, false, none);
        row("below min, text", R"("value": "9", "rules": {"min": 10})", false, none);
        row("no number", R"("value": "x", "rules": {"max": 10})", false, none);
        row("record's range", R"("minimum": 10, "maximum": 15, "value": 16)", false, none);
        row("rules' bound over the record's range",
            R"("minimum": 1, "maximum": 5, "value": 8, "rules": {"max": 9})", true, none);
        row("one bound is no range", R"("minimum": 10, "value": 5)", true, none);
        row("radio choice's own value is no range",
            R"("type": 4, "minimum": 2, "maximum": 2, "group": 3, "value": 1)", true, none);
        row("too long", R"("value": "abcd", "rules": {"maxLength": 3})", false, none);
        row("longest length", R"("value": "abc", "rules": {"maxLength": 3})", true, none);
        row("pattern whole text", R"("value": "12345", "rules": {"pattern": "\\d{4}"})", false,
            none);
        row("pattern matches", R"("value": "1234", "rules": {"pattern": "\\d{4}"})", true, none);
        row("repeated list element", R"("type": 24, "capacity": 4, "value": [7, 8, 7])", false,
            QList<int>{2});
        row("free places repeat freely",
            R"("type": 20, "capacity": 4, "value": ["A", "\u0000", "\u0000"])", true, none);
        row("table cell no number", R"("columns": [1, 2], "capacity": 4, "value": [[0, 0],
            [1, "x"]], "rules": {"numericCells": true})",
            false, QList<int>{1});
        row("repeated row identifier",
            R"("columns": [1, 2], "capacity": 4, "value": [[5, 0], [5, 1]])", false, QList<int>{1});
    }

    void validity()
    {
        auto [parameter, valid, invalidItems] =
            fetch<QString, bool, QList<int>>("parameter", "valid", "invalidItems");
        ParameterTable table;
        QString error;
        QVERIFY2(table.loadJson(tableWith(R"({"ref": 3, )" + parameter.toUtf8() + "}"), &error),
                 qPrintable(error));
        QCOMPARE(table.isValid(3), valid);
        QCOMPARE(table.invalidItems(3), invalidItems);
        QCOMPARE(table.invalidParameters(), valid ? QList<int>() : QList<int>{3});
    }

    void writesSignalAndGroups()
    {
        ParameterTable table;
        QVERIFY(table.loadJson(tableWith(
            R"({"ref": 3, "type": 4, "minimum": 0, "value": 1, "group": 9},
                                            {"ref": 4, "type": 4, "minimum": 1, "value": 1, "group": 9},
                                            {"ref": 5, "value": 400}, {"ref": 6, "value": 7})")));
        QSignalSpy changes(&table, &ParameterTable::valueChanged);
        table.setValue(5, 400); // an echo of the same value
        QCOMPARE(changes.count(), 0);
        QCOMPARE(table.value(6),
                 QVariant(7)); // parameters without a group stand alone
        table.setValue(3, 0);
        QCOMPARE(table.value(4),
                 QVariant(0)); // the other choice of the group follows
        // Each choice whose value changed is told, the one written first.
        QCOMPARE(changes.count(), 2);
        QCOMPARE(changes.takeFirst().value(0).toInt(), 3);
        QCOMPARE(changes.takeFirst().value(0).toInt(), 4);
        QCOMPARE(table.modifiedParameters(), (QList<int>{3, 4}));
        table.revert();
        QCOMPARE(table.value(3), QVariant(1));
        QCOMPARE(changes.count(), 2);
        QVERIFY(table.modifiedParameters().isEmpty());
    }

    void jsonRoundTrip()
    {
        QFile file(QStringLiteral(TELECFG_SAMPLE_TABLE));
        QVERIFY(file.open(QIODevice::ReadOnly));
        ParameterTable first;
        QString error;
        QVERIFY2(first.loadJson(file.readAll(), &error), qPrintable(error));
        QVERIFY(first.modifiedParameters().size() > 3);
        const QByteArray saved = first.saveJson();
        ParameterTable second;
        QVERIFY2(second.loadJson(saved, &error), qPrintable(error));
        QCOMPARE(second.saveJson(), saved);
        QCOMPARE(second.parameters(), first.parameters());
        QCOMPARE(second.title, first.title);
        QCOMPARE(second.version(), 12u);
        for (int ref : first.parameters()) {
            const MainConfigObject &a = first.object(ref);
            const MainConfigObject &b = second.object(ref);
            QVERIFY2(ParameterTable::sameValue(a.value, b.value), qPrintable(QString::number(ref)));
            QCOMPARE(second.isModified(ref), first.isModified(ref));
            QCOMPARE(second.isValid(ref), first.isValid(ref));
            QCOMPARE(b.value.userType(), a.value.userType());
            QCOMPARE(b.type, a.type);
            QCOMPARE(b.minVersions, a.minVersions);
            QCOMPARE(b.hardwareIds, a.hardwareIds);
            QCOMPARE(b.licenceGate, a.licenceGate);
            QCOMPARE(b.options, a.options);
            QCOMPARE(b.capacity, a.capacity);
            QCOMPARE(second.presentation(ref).control, first.presentation(ref).control);
        }
        // A saved table holds what was edited, and the stored value beside it.
        first.setValue(102, 1000);
        first.save();
        first.setValue(102, 1005);
        QVERIFY(second.loadJson(first.saveJson()));
        QCOMPARE(second.value(102), QVariant(1005));
        QCOMPARE(second.storedValue(102), QVariant(1000));
    }

    void badJson_data()
    {
        QTest::addColumn<QByteArray>("json");
        row("not json", QByteArray("{\"version\": "));
        row("an array", QByteArray("[1, 2]"));
        row("reserved parameter", tableWith(R"({"ref": 2, "value": 1})"));
        row("repeated parameter", tableWith(R"({"ref": 5, "value": 1}, {"ref": 5, "value": 2})"));
    }

    void badJson()
    {
        QFETCH(QByteArray, json);
        ParameterTable table;
        QVERIFY(table.loadJson(tableWith(R"({"ref": 7, "value": 1})")));
        QString error;
        QVERIFY(!table.loadJson(json, &error));
        QVERIFY(!error.isEmpty());
        QVERIFY(table.parameters().isEmpty());
    }

    void jsonFiles()
    {
        QTemporaryDir dir;
        ParameterTable table;
        QString error;
        QVERIFY(!table.loadJsonFile(dir.filePath("none.json"), &error));
        QVERIFY2(error.startsWith(dir.filePath("none.json") + ": "), qPrintable(error));
        QVERIFY(table.loadJson(tableWith(R"({"ref": 7, "value": 1, "stored": 0})")));
        QVERIFY(!table.saveJsonFile(dir.filePath("no/folder.json"), &error));
        QVERIFY(table.isModified(7)); // a failed write stores nothing
        QVERIFY(table.saveJsonFile(dir.filePath("t.json")));
        QVERIFY(!table.isModified(7));
        ParameterTable again;
        QVERIFY(again.loadJsonFile(dir.filePath("t.json")));
        QCOMPARE(again.value(7).toInt(), 1);
        QVERIFY(!again.isModified(7)); // written with its values as the stored ones
    }

    void versionRange_data()
    {
        columns<VersionMap, VersionMap, int, int, int>("minVersions", "maxVersions", "versionKey",
                                                       "expectedMin", "expectedMax");

        row("both empty", VersionMap(), VersionMap(), 5, 99, 0);
        row("key found", VersionMap{{5, 12}, {0, 3}}, VersionMap{{5, 40}, {0, 50}}, 5, 12, 40);
        row("key 0 fallback", VersionMap{{0, 3}}, VersionMap{{0, 50}}, 5, 3, 50);
        row("mixed: min by key, max by 0", VersionMap{{7, 8}}, VersionMap{{0, 30}}, 7, 8, 30);
        row("other keys ignored", VersionMap{{1, 8}}, VersionMap{{1, 30}}, 7, 99, 0);
        row("stored max 0", VersionMap{{0, 1}}, VersionMap{{0, 0}}, 0, 1, 0);
        row("negative key", VersionMap{{-1, 4}}, VersionMap{{-1, 9}}, -1, 4, 9);
    }

    void versionRange()
    {
        auto [minVersions, maxVersions, versionKey] =
            fetch<VersionMap, VersionMap, int>("minVersions", "maxVersions", "versionKey");
        MainConfigObject object;
        object.minVersions = minVersions;
        object.maxVersions = maxVersions;
        object.versionKey = versionKey;
        QTEST(getConfigMinVersion(object), "expectedMin");
        QTEST(getConfigMaxVersion(object), "expectedMax");
    }

    void lookupDoesNotInsert()
    {
        MainConfigObject object;
        object.versionKey = 4;
        getConfigMinVersion(object);
        getConfigMaxVersion(object);
        QVERIFY(object.minVersions.isEmpty());
        QVERIFY(object.maxVersions.isEmpty());
    }
};

QTEST_MAIN(TestParameterTable)
#include "tst_parametertable.moc"
