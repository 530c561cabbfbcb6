// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
// The control reads numbers through the system locale, which the toolkit takes from the
// environment at start-up: CTest runs this suite with a point locale and with a comma one.
#include "telecfg/controls/cfgdoublespinbox.h"
#include "tests/support/datatable.h"
#include "tests/support/testcase.h"
#include "tests/support/testhost.h"

#include <QtTest>
#include <utility>

namespace {
const QString red = QStringLiteral("QDoubleSpinBox{background: red;}");
const QString yellow = QStringLiteral("QDoubleSpinBox{background: yellow;}");
const QString white = QStringLiteral("QDoubleSpinBox{background: white;}");

// "1#5" written with the system locale's separator, or with the other one.
QString local(QString text)
{
    return text.replace(QLatin1Char('#'), QLocale::system().decimalPoint());
}
QString foreign(QString text)
{
    const QChar other =
        QLocale::system().decimalPoint() == QLatin1Char('.') ? QLatin1Char(',') : QLatin1Char('.');
    return text.replace(QLatin1Char('#'), other);
}
} // namespace

class TestCfgDoubleSpinBox : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        // The widget's own locale follows the system one, as in a host.
        QLocale::setDefault(QLocale::system());
    }

    void binding_data()
    {
        // record: minimum, maximum, value
        // shown: minimum, maximum, value
        columns<int, QVariantList, QList<double>>("type", "record", "shown");

        row("value in local notation", 3, QVariantList{local("0#5"), "100", local("0#75")},
            QList<double>{0.5, 100, 0.75});
        row("value in the other notation is adapted", 3, QVariantList{"0", "100", foreign("0#75")},
            QList<double>{0, 100, 0.75});
        row("bound in the other notation reads 0", 3, QVariantList{foreign("0#5"), "100", "20"},
            QList<double>{0, 100, 20});
    }

    void binding()
    {
        auto [type, record, shown] =
            fetch<int, QVariantList, QList<double>>("type", "record", "shown");

        TestHost host;
        MainConfigObject &object = host.add(10, type, record[2]);
        object.minimum = record[0];
        object.maximum = record[1];
        object.step = 0; // every nonzero value then passes the step rule
        CfgDoubleSpinBox box;
        box.setReference(&host, 10, nullptr, {});
        QCOMPARE((QList<double>{box.minimum(), box.maximum(), box.value()}), shown);
        for (const TestHost::Write &write : std::as_const(host.writes))
            QCOMPARE(write.value.userType(), int(QMetaType::Double));
    }

    void edits_data()
    {
        columns<int, double, bool>("step", "edited", "written");

        row("multiple written", 2, 6.0, true);
        row("fraction refused", 1, 2.5, false);
        row("step 0, value 0: not a number, refused", 0, 0.0, false);
        row("step 0, other value: infinite, written", 0, 5.0, true);
        row("near multiple within a float passes", 3, 100000001.0, true);
        row("no multiple within a float's reach", 3, 1000001.0, false);
    }

    void edits()
    {
        auto [step, edited, written] = fetch<int, double, bool>("step", "edited", "written");

        TestHost host;
        MainConfigObject &object = host.add(10, 3, QString::number(12));
        object.minimum = QStringLiteral("0");
        object.maximum = QStringLiteral("1000000000");
        object.step = step;
        host.onWrite = [&](int ref, const QVariant &) { host.modified.insert(ref); };
        CfgDoubleSpinBox box;
        box.setReference(&host, 10, nullptr, {});
        host.writes.clear();
        host.modified.clear();
        box.updateControl(1);
        QCOMPARE(box.styleSheet(), white);

        box.setValue(edited); // the widget's change path, as after the user's edit
        // A refused number is red, written nowhere, and still shown.
        QCOMPARE(host.writes.size(), written ? 1 : 0);
        if (written)
            QCOMPARE(host.writes[0].value, QVariant(edited));
        QCOMPARE(box.styleSheet(), written ? yellow : red);
        QCOMPARE(box.value(), edited);
        box.updateControl(0); // the refresh does not repeat the rule
        QCOMPARE(box.styleSheet(), written ? yellow : white);
    }
};

QTEST_MAIN(TestCfgDoubleSpinBox)
#include "tst_cfgdoublespinbox.moc"
