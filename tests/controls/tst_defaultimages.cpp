// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/controls/cfgcheckbox.h"
#include "telecfg/controls/cfgcombobox.h"
#include "telecfg/controls/cfgradiobutton.h"
#include "telecfg/images/defaultimages.h"
#include "tests/support/testhost.h"

#include <QImage>
#include <QRegularExpression>
#include <QtTest>
#include <utility>

class TestDefaultImages : public QObject
{
    Q_OBJECT

private slots:
    void everyImageTheSheetsName();
};

namespace {
void collectUrls(const QString &sheet, QSet<QString> *urls)
{
    static const QRegularExpression url(QStringLiteral("url\\(([^)]*)\\)"));
    for (auto it = url.globalMatch(sheet); it.hasNext();)
        urls->insert(it.next().captured(1));
}
} // namespace

// Every image any sheet names, in every state a control paints, loads from the default set,
// and the set holds nothing beyond them.
void TestDefaultImages::everyImageTheSheetsName()
{
    initDefaultImages();
    initDefaultImages();

    TestHost host;
    host.add(3, 1, true).minVersions[0] = 0;
    host.add(4, 4, 1).minimum = 1;
    host.records[4].minVersions[0] = 0;
    host.add(5, 0, QStringLiteral("a")).options[0] = {QStringLiteral("a"), QStringLiteral("a")};
    host.records[5].minVersions[0] = 0;
    CfgCheckBox box;
    CfgRadioButton radio;
    CfgComboBox combo;
    box.setReference(&host, 3, nullptr, {});
    radio.setReference(&host, 4, nullptr, {});
    combo.setReference(&host, 5, nullptr, {});
    QSet<QString> urls;
    for (bool enabled : {true, false}) {
        for (bool modified : {false, true}) {
            host.modified = modified ? QSet<int>{3, 4, 5} : QSet<int>{};
            for (QWidget *widget : {static_cast<QWidget *>(&box), static_cast<QWidget *>(&radio),
                                    static_cast<QWidget *>(&combo)})
                widget->setEnabled(enabled);
            box.updateControl(1);
            radio.updateControl(1);
            combo.updateControl(1);
            for (QWidget *widget : {static_cast<QWidget *>(&box), static_cast<QWidget *>(&radio),
                                    static_cast<QWidget *>(&combo)})
                collectUrls(widget->styleSheet(), &urls);
        }
    }
    QCOMPARE(urls.size(), 16);
    for (const QString &url : std::as_const(urls))
        QVERIFY2(!QImage(url).isNull(), qPrintable(url));
    QCOMPARE(QDir(QStringLiteral(":/images")).entryList().size(), 16);
}

QTEST_MAIN(TestDefaultImages)
#include "tst_defaultimages.moc"
