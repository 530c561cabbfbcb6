// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/version.h"

#include <QtTest>

class TestVersion : public QObject
{
    Q_OBJECT
private slots:
    void runTimeVersionIsTheCompiledOne()
    {
        const QString parts = QStringLiteral("%1.%2.%3")
                                  .arg(TELECFG_VERSION_MAJOR)
                                  .arg(TELECFG_VERSION_MINOR)
                                  .arg(TELECFG_VERSION_PATCH);
        QCOMPARE(QString::fromLatin1(TELECFG_VERSION_STRING), parts);
        QCOMPARE(QString::fromLatin1(telecfgVersion()), parts);
    }

    // A host's `#if` needs the packed form to order versions as numbers, not as digits.
    void checkOrdersVersions()
    {
        QVERIFY(TELECFG_VERSION_CHECK(1, 0, 9) < TELECFG_VERSION_CHECK(1, 1, 0));
        QVERIFY(TELECFG_VERSION_CHECK(1, 255, 255) < TELECFG_VERSION_CHECK(2, 0, 0));
        QVERIFY(TELECFG_VERSION >= TELECFG_VERSION_CHECK(1, 0, 0));
        QCOMPARE(TELECFG_VERSION,
                 TELECFG_VERSION_CHECK(TELECFG_VERSION_MAJOR, TELECFG_VERSION_MINOR,
                                       TELECFG_VERSION_PATCH));
    }
};

QTEST_GUILESS_MAIN(TestVersion)
#include "tst_version.moc"
