// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/config/mainconfig.h"
#include "tests/support/datatable.h"
#include "tests/support/testcase.h"

#include <QtTest>

using VersionMap = QMap<int, int>;
Q_DECLARE_METATYPE(VersionMap)

class TestMainConfig : public TestCase
{
    Q_OBJECT

private slots:
    void versionRange_data();
    void versionRange();
    void lookupDoesNotInsert();
};

void TestMainConfig::versionRange_data()
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

void TestMainConfig::versionRange()
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

void TestMainConfig::lookupDoesNotInsert()
{
    MainConfigObject object;
    object.versionKey = 4;
    getConfigMinVersion(object);
    getConfigMaxVersion(object);
    QVERIFY(object.minVersions.isEmpty());
    QVERIFY(object.maxVersions.isEmpty());
}

QTEST_GUILESS_MAIN(TestMainConfig)
#include "tst_mainconfig.moc"
